#pragma once

#include "logrows.h"

#include <QVector>

namespace pendant {

class LogText;

/// The rows of the entries that a search found. Only where they are is kept, 16 bytes each.
class LogHits : public LogRows {
public:
    /// So many entries are kept; the oldest go.
    static constexpr int mostHits = 200000;

    explicit LogHits(const LogText* text) : m_text(text) {}

    void clear();
    int count() const { return m_older.size() + m_newer.size(); }
    bool isFull() const { return count() >= mostHits; }
    /// Adds an entry that is older than every other. `length` in bytes.
    void prepend(const LogPlace& place, int length);
    /// Adds an entry that is newer than every other.
    void append(const LogPlace& place, int length);
    /// Adds an entry in its place among the others.
    void insert(const LogPlace& place, int length);
    void dropBefore(int file);
    void dropFrom(const LogPlace& place);

    LogPlace first() const override;
    LogPlace end() const override;
    LogPlace next(const LogPlace& row) const override;
    LogPlace previous(const LogPlace& row) const override;
    LogPlace rowAt(const LogPlace& place) const override;
    double fractionBefore(const LogPlace& row) const override;
    LogPlace rowAtFraction(double fraction) const override;

private:
    struct Hit {
        qint64 offset;
        int file;
        int length;
        LogPlace place() const { return {file, offset}; }
    };

    const Hit& at(int index) const;
    /// The last that begins at or before `place`; -1 for none.
    int indexAt(const LogPlace& place) const;
    bool holds(int index, const LogPlace& place) const;

    const LogText* m_text;
    QVector<Hit> m_older; ///< the newest first
    QVector<Hit> m_newer; ///< the newest last
};

} // namespace pendant
