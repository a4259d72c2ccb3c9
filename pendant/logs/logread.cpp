#include "logread.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pendant {

namespace {

const int beginningLength = 64;

class OpenFile {
public:
    // Without O_NONBLOCK the opening of a named pipe would wait for a writer.
    explicit OpenFile(const QString& path)
        : m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~OpenFile() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY(OpenFile)

    /// 0, or what is wrong as a number of the system.
    int look(struct stat* about) const {
        if (m_descriptor < 0 || ::fstat(m_descriptor, about) != 0)
            return errno;
        if (S_ISDIR(about->st_mode))
            return EISDIR;
        return S_ISREG(about->st_mode) ? 0 : EINVAL;
    }

    QByteArray read(qint64 offset, qint64 length) const {
        QByteArray bytes(static_cast<int>(length), Qt::Uninitialized);
        qint64 done = 0;
        while (done < length) {
            const ssize_t got =
                ::pread(m_descriptor, bytes.data() + done, static_cast<size_t>(length - done), offset + done);
            if (got <= 0 && !(got < 0 && errno == EINTR))
                break;
            done += qMax<ssize_t>(got, 0);
        }
        bytes.truncate(static_cast<int>(done));
        return bytes;
    }

private:
    int m_descriptor;
};

} // namespace

LogFileLook lookAtLogFile(const QString& path) {
    LogFileLook result;
    const OpenFile file(path);
    struct stat about = {};
    const int wrong = file.look(&about);
    if (wrong != 0) {
        result.problem = qt_error_string(wrong);
        return result;
    }
    result.size = about.st_size;
    result.identity = about.st_ino;
    result.beginning = file.read(0, qMin<qint64>(beginningLength, about.st_size));
    return result;
}

bool hasOnlyGrown(const LogFileLook& before, const LogFileLook& now) {
    if (before.size == 0)
        return true;
    return now.identity == before.identity && now.size >= before.size && now.beginning.startsWith(before.beginning);
}

QByteArray readLogFile(const QString& path, qint64 offset, qint64 length) {
    const OpenFile file(path);
    struct stat about = {};
    return length > 0 && file.look(&about) == 0 ? file.read(offset, length) : QByteArray();
}

} // namespace pendant
