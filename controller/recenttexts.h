#pragma once

#include <QQueue>
#include <QSet>
#include <QString>

namespace controller {

/// Texts without repetitions, oldest first. The oldest go when there are more than `capacity`.
class RecentTexts {
public:
    static constexpr int capacity = 1000;

    /// \return false when it is there already; it does not become the youngest then
    bool add(const QString& text);
    bool contains(const QString& text) const { return m_known.contains(text); }
    int size() const { return m_order.size(); }
    /// The oldest, which goes; there must be one.
    QString takeOldest();

private:
    QQueue<QString> m_order;
    QSet<QString> m_known;
};

} // namespace controller
