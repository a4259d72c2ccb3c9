#include "heldfolder.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pendant {

// While it is open the file system gives its number to no other folder.
void HeldFolder::hold(const QString& path) {
    letGo();
    m_path = path;
    if (!path.isEmpty())
        m_descriptor = ::open(QFile::encodeName(path).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
}

void HeldFolder::letGo() {
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
}

bool HeldFolder::isGone() const {
    struct stat held;
    struct stat named;
    if (m_descriptor < 0 || ::fstat(m_descriptor, &held) != 0)
        return false;
    return ::stat(QFile::encodeName(m_path).constData(), &named) != 0 || held.st_ino != named.st_ino ||
           held.st_dev != named.st_dev;
}

bool HeldFolder::isReplaced() const {
    struct stat named;
    return isGone() && ::stat(QFile::encodeName(m_path).constData(), &named) == 0 && S_ISDIR(named.st_mode);
}

} // namespace pendant
