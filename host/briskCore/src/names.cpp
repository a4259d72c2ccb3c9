#include "names.h"

#include <QMutex>
#include <QSet>

namespace {

constexpr int maxItemDigits = 9; // fits an int
constexpr int firstSweep = 4096;

quint64 mixed(quint64 hash, quint64 word) {
    hash = (hash ^ word) * Q_UINT64_C(0x9e3779b97f4a7c15);
    return hash ^ (hash >> 32);
}

uint folded(quint64 hash) {
    return uint(hash ^ (hash >> 29));
}

// Names come and go with items ("#1", "#2", ...), so those that no node holds any more are swept out now and then.
class NamePool {
public:
    QString shared(const QString& name) {
        const QMutexLocker locker(&m_mutex);
        const auto known = m_names.constFind(name);
        if (known != m_names.constEnd())
            return *known;
        if (m_names.size() >= m_nextSweep)
            sweep();
        // A copy of its own: a literal's characters go with the plugin that it came from.
        return *m_names.insert(QString(name.constData(), name.size()));
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
    const qsizetype size = name.size();
    quint64 hash = quint64(size);
    if (size < charsPerWord) {
        quint64 word = 0;
        for (const QChar c : name)
            word = (word << 16) | c.unicode();
        return folded(mixed(hash, word));
    }
    for (qsizetype i = 0; i + charsPerWord <= size; i += charsPerWord)
        hash = mixed(hash, wordAt(name.data() + i));
    if (size % charsPerWord != 0)
        hash = mixed(hash, wordAt(name.data() + size - charsPerWord));
    return folded(hash);
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

} // namespace brisk
