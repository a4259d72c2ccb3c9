#pragma once

#include <QString>
#include <QStringView>

namespace brisk {

/// One step of the hash by which children are found.
inline uint hashStep(uint hash, QChar c) {
    return hash * 31u + c.unicode();
}
uint nameHash(QStringView name);

bool sameName(QStringView a, QStringView b);

/// The one copy of `name` that all nodes of that name share.
QString sharedName(const QString& name);

/// 7 -> "#7"
QString itemName(int number);
/// "#7" -> 7; -1 for what is no item's name.
int itemNumber(QStringView name);

/// Reads a dotted path part by part and allocates nothing. "a..b" -> "a", "", "b"; an empty path has no parts.
class PathReader {
public:
    explicit PathReader(QStringView path);

    bool next();
    bool atEnd() const { return !m_more; }
    QStringView name() const { return m_name; }
    uint hash() const { return m_hash; }

private:
    const QChar* m_at;
    const QChar* m_end;
    QStringView m_name;
    uint m_hash = 0;
    bool m_more;
};

} // namespace brisk
