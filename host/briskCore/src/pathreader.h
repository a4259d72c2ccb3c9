#pragma once

#include <QStringView>

namespace brisk {

/// Reads a dotted path part by part and allocates nothing. "a..b" -> "a", "", "b"; an empty path has no parts.
class PathReader {
public:
    explicit PathReader(QStringView path)
        : m_at(path.data()), m_end(path.data() + path.size()), m_more(!path.isEmpty()) {}

    bool next() {
        if (!m_more)
            return false;
        const QChar* start = m_at;
        while (m_at != m_end && *m_at != QLatin1Char('.'))
            ++m_at;
        m_name = QStringView(start, m_at);
        m_more = m_at != m_end;
        if (m_more)
            ++m_at;
        return true;
    }

    QStringView name() const { return m_name; }
    bool atEnd() const { return !m_more; }

private:
    const QChar* m_at;
    const QChar* m_end;
    QStringView m_name;
    bool m_more;
};

} // namespace brisk
