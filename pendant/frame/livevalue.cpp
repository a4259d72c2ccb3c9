#include "livevalue.h"

#include "brisk/modulemanager.h"

#include <QTimer>

#include <utility>

namespace pendant {

LiveValue::LiveValue(const QString& key, std::function<void(const QString&)> show, QObject* parent)
    : QObject(parent), m_key(key), m_show(std::move(show)) {
    follow();
}

void LiveValue::follow() {
    m_node = m(m_key);
    connect(m_node, &brisk::ModuleObject::changed, this, &LiveValue::read);
    connect(m_node, &brisk::ModuleObject::cleared, this, &LiveValue::read);
    // The tree is in the middle of its removal when a node dies.
    connect(m_node, &QObject::destroyed, this, [this] { QTimer::singleShot(0, this, &LiveValue::follow); });
    read();
}

void LiveValue::read() {
    m_show(m_node ? m_node->getString() : QString());
}

} // namespace pendant
