#include "linkwait.h"

#include "brisk/channel.h"

#include <QEventLoop>
#include <QTimer>

using brisk::standin::Channel;

namespace pendant {

namespace {

bool areUp() {
    return Channel::bus()->isUp() && Channel::controller()->isUp();
}

} // namespace

bool waitForLinks(int timeoutMs) {
    if (areUp())
        return true;
    QEventLoop loop;
    const auto look = [&loop] {
        if (areUp())
            loop.quit();
    };
    QObject::connect(Channel::bus(), &Channel::upChanged, &loop, look);
    QObject::connect(Channel::controller(), &Channel::upChanged, &loop, look);
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    loop.exec();
    return areUp();
}

} // namespace pendant
