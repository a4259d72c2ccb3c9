#pragma once

#include "brisk/guarded.h"

#include <QCoreApplication>
#include <QString>

namespace pendant {

/// While it lives, what plugins throw out of what the bus and the managers call is reported in the message list under
/// the key, task, command or link, and the pendant goes on. One at a time.
class ThrownHandler {
    Q_DECLARE_TR_FUNCTIONS(pendant::ThrownHandler)

public:
    ThrownHandler();
    ~ThrownHandler();

private:
    Q_DISABLE_COPY(ThrownHandler)
    static QString sentenceFor(brisk::standin::GuardedCall call);
};

} // namespace pendant
