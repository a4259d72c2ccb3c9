#include "livevalue.h"

#include <utility>

namespace pendant {

LiveValue::LiveValue(const QString& key, std::function<void(const QString&)> show, QObject* parent)
    : QObject(parent), m_node(key), m_show(std::move(show)) {
    connect(&m_node, &FollowedNode::renewed, this, &LiveValue::listen);
    listen(m_node.node());
}

void LiveValue::listen(brisk::ModuleObject* node) {
    connect(node, &brisk::ModuleObject::changed, this, &LiveValue::read);
    connect(node, &brisk::ModuleObject::cleared, this, &LiveValue::read);
    read();
}

void LiveValue::read() {
    m_show(m_node.node() ? m_node.node()->getString() : QString());
}

} // namespace pendant
