#include "touchlog.h"

#include "senderlabel.h"

#include <QDateTime>
#include <QVector>

#include <algorithm>

namespace pendant {

void TouchLog::record(brisk::ModuleObject* node, QObject* sender) {
    if (m_touches.size() >= capacity && !m_touches.contains(node))
        makeRoom();
    Touch& touch = m_touches[node];
    if (touch.node != node)
        touch.node = node;
    touch.who = labelOf(sender);
    touch.whenMs = QDateTime::currentMSecsSinceEpoch();
}

const TouchLog::Touch* TouchLog::find(brisk::ModuleObject* node) const {
    const auto touch = m_touches.constFind(node);
    return touch != m_touches.constEnd() && touch->node == node ? &*touch : nullptr;
}

void TouchLog::clear() {
    m_touches.clear();
    m_lastSender = nullptr;
    m_lastLabel.clear();
}

// Most writes of a burst come from one sender.
const QString& TouchLog::labelOf(QObject* sender) {
    if (!sender || m_lastSender != sender) {
        m_lastSender = sender;
        m_lastLabel = senderLabel(sender);
    }
    return m_lastLabel;
}

void TouchLog::makeRoom() {
    QVector<qint64> times;
    times.reserve(m_touches.size());
    for (const Touch& touch : qAsConst(m_touches))
        times.append(touch.node ? touch.whenMs : 0);
    const auto middle = times.begin() + times.size() / 2;
    std::nth_element(times.begin(), middle, times.end());
    int toGo = m_touches.size() / 2;
    for (auto touch = m_touches.begin(); touch != m_touches.end();) {
        const bool goes = !touch->node || (touch->whenMs <= *middle && toGo > 0);
        toGo -= goes ? 1 : 0;
        touch = goes ? m_touches.erase(touch) : std::next(touch);
    }
}

} // namespace pendant
