#pragma once

#include <QtGlobal>

#include <sys/prctl.h>
#include <unistd.h>

/// While this lives, the process may do what any user may. What is read-only binds everybody but root, so root borrows
/// the rights of nobody. Ends the process where that does not work: a test must not pass because nothing bound it.
class OrdinaryUser {
public:
    OrdinaryUser() : m_wasRoot(geteuid() == 0), m_group(getegid()) {
        if (m_wasRoot && (setegid(nobody) != 0 || seteuid(nobody) != 0))
            qFatal("Root cannot borrow the rights of nobody here, so what is read-only cannot be tried.");
    }
    ~OrdinaryUser() {
        if (!m_wasRoot)
            return;
        if (seteuid(0) != 0 || setegid(m_group) != 0)
            qFatal("The rights of root do not come back.");
        // Who has borrowed rights cannot be looked into any more, which the search for leaks does at the end.
        prctl(PR_SET_DUMPABLE, 1);
    }

private:
    Q_DISABLE_COPY(OrdinaryUser)
    static const uid_t nobody = 65534;
    const bool m_wasRoot;
    const gid_t m_group;
};
