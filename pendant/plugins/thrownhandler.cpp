#include "thrownhandler.h"

#include "report.h"
#include "thrown.h"

#include "brisk/guarded.h"

using brisk::standin::GuardedCall;

namespace pendant {

QString ThrownHandler::sentenceFor(GuardedCall call) {
    switch (call) {
    case GuardedCall::BusDelivery:
        return tr("A callback on the bus key “%1” threw: %2");
    case GuardedCall::NetworkTask:
        return tr("A network task “%1” threw: %2");
    case GuardedCall::Response:
        return tr("What listens to the answers to “%1” threw: %2");
    default:
        return tr("What listens to the link “%1” threw: %2");
    }
}

ThrownHandler::ThrownHandler() {
    brisk::standin::setThrownHandler([](GuardedCall call, const QString& name, const std::exception_ptr& exception) {
        const QString thrown = thrownBy([&] { std::rethrow_exception(exception); });
        reportError(QStringLiteral("pendant"), sentenceFor(call).arg(name, thrown));
    });
}

ThrownHandler::~ThrownHandler() {
    brisk::standin::setThrownHandler(nullptr);
}

} // namespace pendant
