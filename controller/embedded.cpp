#include "controller/embedded.h"

#include "brisk/channel.h"

using brisk::standin::Channel;

namespace controller {

namespace {

const int controllerLinkAfterMs = 50;

void takeOut(Channel* channel, const EmbeddedLink* link) {
    if (channel->link() == link)
        channel->setLink(nullptr);
}

} // namespace

Embedded::Embedded(QObject* parent) : QObject(parent) {
    connect(&m_controller, &VirtualController::remarked, &m_bus, &EmbeddedLink::remark);
    Channel::bus()->setLink(&m_bus);
    Channel::controller()->setLink(&m_controllerLink);
}

Embedded::~Embedded() {
    takeOut(Channel::controller(), &m_controllerLink);
    takeOut(Channel::bus(), &m_bus);
}

void Embedded::start(int delayMs) {
    m_controller.clock()->runByItself(true);
    m_bus.comeUpIn(delayMs);
    m_controllerLink.comeUpIn(delayMs + controllerLinkAfterMs);
}

} // namespace controller
