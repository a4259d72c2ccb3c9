#include "controller/project/wholefile.h"

#include <QSaveFile>

#include <cerrno>
#include <unistd.h>

namespace controller {

QString writeWhole(const QString& path, const QByteArray& bytes) {
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
    return file.commit() ? QString() : file.errorString();
}

} // namespace controller
