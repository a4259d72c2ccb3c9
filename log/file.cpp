#include "kite/log.h"
#include "kite/logfilemanager.h"

#include "log/logfiles.h"

#include <QTextStream>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace kite {

namespace {

// A signal may interrupt what waits, for a pipe's reader or a disk that is far away.
int openToAppend(const QByteArray& fileName) {
    int descriptor;
    do
        descriptor = ::open(fileName.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

// A file that opens has its folder, so the folder is looked for only when it does not.
int openToAppend(const QString& fileName) {
    if (!canBeOnDisk(fileName))
        return -1;
    const QByteArray encoded = QFile::encodeName(fileName);
    const int descriptor = openToAppend(encoded);
    if (descriptor >= 0)
        return descriptor;
    makeFolderOf(fileName);
    return openToAppend(encoded);
}

// By a descriptor, which spares QFile two looks at the file. It is the descriptor that appends: told to append, QFile
// would look for the end, which a pipe has not. Without QFile's own buffer, since the stream has one.
void openToAppend(QFile& file, const QString& fileName) {
    file.setFileName(fileName);
    const int descriptor = openToAppend(fileName);
    if (descriptor < 0)
        return;
    const auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    if (!file.open(descriptor, mode, QFileDevice::AutoCloseHandle))
        ::close(descriptor);
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
