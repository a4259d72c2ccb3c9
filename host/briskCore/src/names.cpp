#include "names.h"

#include <QMutex>
#include <QSet>

#include <cstring>

namespace {

constexpr int maxItemDigits = 9; // fits an int
constexpr int firstSweep = 4096;

// Names come and go with items ("#1", "#2", ...), so those that no node holds any more are swept out now and then.
class NamePool {
public:
    QString shared(const QString& name) {
        const QMutexLocker locker(&m_mutex);
        if (m_names.size() >= m_nextSweep)
            sweep();
        return *m_names.insert(name);
    }

private:
    void sweep() {
        for (auto name = m_names.begin(); name != m_names.end();) {
            if (name->isDetached())
                name = m_names.erase(name);
            else
                ++name;
        }
        m_nextSweep = qMax(firstSweep, 2 * m_names.size());
    }

    QMutex m_mutex;
    QSet<QString> m_names;
    int m_nextSweep = firstSweep;
};

} // namespace

namespace brisk {

uint nameHash(QStringView name) {
    uint hash = 0;
    for (const QChar c : name)
        hash = hashStep(hash, c);
    return hash;
}

bool sameName(QStringView a, QStringView b) {
    if (a.size() != b.size())
        return false;
    return a.isEmpty() || std::memcmp(a.data(), b.data(), size_t(a.size()) * sizeof(QChar)) == 0;
}

QString sharedName(const QString& name) {
    // Never destroyed: nodes may be made by destructors of other statics.
    static auto* pool = new NamePool;
    return name.isEmpty() ? QString() : pool->shared(name);
}

QString itemName(int number) {
    return QLatin1Char('#') + QString::number(number);
}

int itemNumber(QStringView name) {
    if (name.size() < 2 || name.size() > maxItemDigits + 1 || name.at(0) != QLatin1Char('#'))
        return -1;
    if (name.at(1) == QLatin1Char('0') && name.size() > 2)
        return -1;
    int number = 0;
    for (qsizetype i = 1; i < name.size(); ++i) {
        const int digit = name.at(i).unicode() - '0';
        if (digit < 0 || digit > 9)
            return -1;
        number = number * 10 + digit;
    }
    return number;
}

PathReader::PathReader(QStringView path)
    : m_at(path.data()), m_end(path.data() + path.size()), m_more(!path.isEmpty()) {}

bool PathReader::next() {
    if (!m_more)
        return false;
    const QChar* start = m_at;
    m_hash = 0;
    for (; m_at != m_end && *m_at != QLatin1Char('.'); ++m_at)
        m_hash = hashStep(m_hash, *m_at);
    m_name = QStringView(start, m_at);
    m_more = m_at != m_end;
    if (m_more)
        ++m_at;
    return true;
}

} // namespace brisk
