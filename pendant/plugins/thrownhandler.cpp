#include "thrownhandler.h"

#include "report.h"
#include "thrown.h"

#include "brisk/guarded.h"

using brisk::standin::GuardedCall;

namespace pendant {

ThrownHandler::ThrownHandler() {
    brisk::standin::setThrownHandler([](GuardedCall call, const QString& name, const std::exception_ptr& exception) {
        const QString thrown = thrownBy([&] { std::rethrow_exception(exception); });
        const QString text = call == GuardedCall::BusDelivery ? tr("A callback on the bus key “%1” threw: %2")
                                                              : tr("A network task “%1” threw: %2");
        reportError(QStringLiteral("pendant"), text.arg(name, thrown));
    });
}

ThrownHandler::~ThrownHandler() {
    brisk::standin::setThrownHandler(nullptr);
}

} // namespace pendant
