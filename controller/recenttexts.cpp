#include "controller/recenttexts.h"

namespace controller {

bool RecentTexts::add(const QString& text) {
    if (m_known.contains(text))
        return false;
    if (size() == capacity)
        takeOldest();
    m_known.insert(text);
    m_order.enqueue(text);
    return true;
}

QString RecentTexts::takeOldest() {
    const QString text = m_order.dequeue();
    m_known.remove(text);
    return text;
}

} // namespace controller
