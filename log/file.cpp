#include "kite/log.h"
#include "kite/logfilemanager.h"

#include "log/logfiles.h"

#include <QTextStream>

#include <fcntl.h>

namespace kite {

namespace {

int openToAppend(const QString& fileName) {
    return ::open(QFile::encodeName(fileName).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
}

// By a descriptor, which spares QFile two looks at the file; without QFile's own buffer, since the stream has one. A
// file that opens has its folder, so the folder is looked for only when it does not.
void openToAppend(QFile& file, const QString& fileName) {
    file.setFileName(fileName);
    int descriptor = openToAppend(fileName);
    if (descriptor < 0) {
        makeFolderOf(fileName);
        descriptor = openToAppend(fileName);
    }
    const auto mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;
    if (descriptor >= 0)
        file.open(descriptor, mode, QFileDevice::AutoCloseHandle);
}

QTextStream& endLine(QTextStream& stream) {
    stream << '\n';
    stream.flush();
    return stream;
}

} // namespace

FLog::FLog(const QString& tag, const QString& module, const QString& path, const QString& ext)
    : stream(&file), fileName(PluginLogFileManager::instance()->getProperLogFileName(path, ext)) {
    openToAppend(file, fileName);
    if (!file.isOpen())
        return;
    stream.nospace().noquote() << tag;
    if (!module.isEmpty())
        stream << module;
}

FLog::~FLog() {
    if (!file.isOpen())
        return;
    stream << endLine;
    const qint64 size = file.size();
    file.close();
    PluginLogFileManager::instance()->updateFileSize(fileName, size);
}

// As a C string, so the text ends at a NUL character; intended.
FLog& FLog::operator<<(const QString& text) {
    if (file.isOpen())
        stream << text.toUtf8().constData();
    return *this;
}

FLog& FLog::operator<<(const QVariant& value) {
    return *this << value.toString();
}

FLog& FLog::operator<<(const void* pointer) {
    if (file.isOpen())
        stream << pointer;
    return *this;
}

FLog& FLog::space() {
    stream.setAutoInsertSpaces(true);
    return *this;
}

} // namespace kite
