#pragma once

#include <QCoreApplication>

namespace pendant {

/// While it lives, what plugins throw out of callbacks on bus keys and out of network tasks is reported in the message
/// list under the key or the task, and the pendant goes on. One at a time.
class ThrownHandler {
    Q_DECLARE_TR_FUNCTIONS(pendant::ThrownHandler)

public:
    ThrownHandler();
    ~ThrownHandler();

private:
    Q_DISABLE_COPY(ThrownHandler)
};

} // namespace pendant
