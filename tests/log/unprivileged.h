#pragma once

#include <QFile>
#include <QString>

#include <sys/stat.h>
#include <unistd.h>

/// While it lives, the process is bound by the permissions of files, also when root runs it.
class Unprivileged {
public:
    Unprivileged() { m_isBound = !m_isRoot || ::seteuid(nobody) == 0; }
    ~Unprivileged() { giveBack(); }

    bool isBound() const { return m_isBound; }
    void giveBack() {
        if (m_isRoot && ::seteuid(0) != 0)
            qFatal("The process cannot become root again.");
    }

private:
    Q_DISABLE_COPY(Unprivileged)
    static const uid_t nobody = 65534;
    const bool m_isRoot = ::geteuid() == 0;
    bool m_isBound = false;
};

inline bool setPermissions(const QString& path, mode_t mode) {
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}
