#include "programfile.h"

#include "program.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextCodec>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pendant {

namespace {

const QByteArray byteOrderMark("\xef\xbb\xbf");

bool decode(const QByteArray& bytes, QString* text) {
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    *text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

QStringList linesOf(const QString& text) {
    QStringList lines = text.split(QLatin1Char('\n'));
    // What stands behind the last line feed is a line only when there is something.
    if (lines.last().isEmpty())
        lines.removeLast();
    for (QString& line : lines) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
    }
    return lines;
}

QByteArray bytesOf(const QStringList& lines) {
    // Reading takes one mark away, which would be the line's own.
    QByteArray bytes = lines.value(0).startsWith(QChar::ByteOrderMark) ? byteOrderMark : QByteArray();
    for (const QString& line : lines)
        bytes += line.toUtf8() + '\n';
    return bytes;
}

// 0, or why nothing can be said of what stands there.
int errorOf(const QString& path) {
    struct stat there;
    return ::stat(QFile::encodeName(path).constData(), &there) == 0 ? 0 : errno;
}

// A name that was given anew is on the disk only when its folder is. Where the file system knows no such thing, there
// is nothing to be done.
void syncFolder(const QString& path) {
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);
    ::close(folder);
}

} // namespace

bool ProgramFile::load(const QString& path, QStringList* lines, QString* error, QByteArray* fingerprint) {
    QByteArray bytes;
    QStringList read;
    QString why = readBytes(path, &bytes);
    if (why.isEmpty())
        why = readLines(bytes, &read);
    if (!why.isEmpty()) {
        *error = tr("The program %1 was not opened: %2").arg(QDir::toNativeSeparators(path), why);
        return false;
    }
    *lines = read;
    if (fingerprint)
        *fingerprint = fingerprintOf(bytes);
    return true;
}

bool ProgramFile::isMissing(const QString& path, const QString& project, QString* error) {
    if (QFileInfo(path).isSymLink() || errorOf(path) == 0)
        return false;
    int why = errorOf(path);
    if (why == ENOENT)
        why = errorOf(QFileInfo(path).path());
    if (why == ENOENT)
        why = errorOf(project);
    if (why != 0)
        *error = tr("The program %1 cannot be read: %2")
                     .arg(QDir::toNativeSeparators(path),
                          why == ENOENT ? tr("the folder of its project is not there.") : qt_error_string(why));
    return why == 0;
}

QByteArray ProgramFile::fingerprintOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

QByteArray ProgramFile::fingerprint(const QStringList& lines) {
    return fingerprintOf(bytesOf(lines));
}

bool ProgramFile::readFingerprint(const QString& path, QByteArray* fingerprint, QString* error) {
    fingerprint->clear();
    if (!QFileInfo(path).isFile())
        return true;
    QByteArray bytes;
    const QString why = readBytes(path, &bytes);
    if (why.isEmpty())
        *fingerprint = fingerprintOf(bytes);
    else
        *error = tr("What stands in %1 now cannot be read, and nothing was written over it: %2")
                     .arg(QDir::toNativeSeparators(path), why);
    return why.isEmpty();
}

// These give what is wrong, and nothing when all is well.
QString ProgramFile::readBytes(const QString& path, QByteArray* bytes) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return tr("it is no file.");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    if (file.size() > maxSize)
        return tooLong();
    *bytes = file.readAll();
    return file.error() == QFileDevice::NoError ? QString() : file.errorString();
}

QString ProgramFile::readLines(const QByteArray& bytes, QStringList* lines) {
    QString text;
    if (!decode(bytes.startsWith(byteOrderMark) ? bytes.mid(byteOrderMark.size()) : bytes, &text))
        return tr("it is no text in UTF-8.");
    *lines = linesOf(text);
    for (int row = 0; row < lines->size(); ++row) {
        const QString why = Program::refusalOf(lines->at(row));
        if (!why.isEmpty())
            return tr("line %1: %2").arg(row + 1).arg(why);
    }
    return QString();
}

QString ProgramFile::tooLong() {
    return tr("it is longer than %1 MiB.").arg(maxSize / 1024 / 1024);
}

bool ProgramFile::save(const QString& path, const QStringList& lines, QString* error) {
    const QString why = write(path, bytesOf(lines));
    if (!why.isEmpty())
        *error = tr("The program was not written to %1: %2").arg(QDir::toNativeSeparators(path), why);
    return why.isEmpty();
}

QString ProgramFile::write(const QString& path, const QByteArray& bytes) {
    if (bytes.size() > maxSize)
        return tooLong();
    if (!QDir().mkpath(QFileInfo(path).path()))
        return tr("its folder cannot be made.");
    QSaveFile file(path);
    // A buffer would be flushed without a look at how much of it was written.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    for (int written = 0; written < bytes.size();) {
        const qint64 now = file.write(bytes.constData() + written, bytes.size() - written);
        if (now <= 0)
            return file.errorString();
        written += int(now);
    }
    // commit() does not ask whether all has reached the disk.
    if (fsync(file.handle()) != 0)
        return qt_error_string(errno);
    if (!file.commit())
        return file.errorString();
    syncFolder(QFileInfo(path).path());
    return QString();
}

} // namespace pendant
