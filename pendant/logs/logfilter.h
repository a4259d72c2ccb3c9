#pragma once

#include "logline.h"

#include <QString>
#include <QStringMatcher>

namespace pendant {

/// Which entries of a log are shown.
struct LogFilter {
    enum Level { Error = 1, Service = 2, Information = 4, Other = 8, AllLevels = 15 };

    int levels = AllLevels; ///< of Level; lines without a tag are Other
    QString module;         ///< part of the module, in any case of letters; empty for all
    QString text;           ///< part of the line or of those that belong to it, in any case of letters; empty for all

    bool isEmpty() const { return levels == AllLevels && module.isEmpty() && text.isEmpty(); }
};

inline bool operator==(const LogFilter& left, const LogFilter& right) {
    return left.levels == right.levels && left.module == right.module && left.text == right.text;
}

/// A filter made ready for many entries.
class LogMatcher {
public:
    explicit LogMatcher(const LogFilter& filter);

    /// `entry` is all its lines.
    bool matches(const QByteArray& entry) const;

private:
    LogFilter m_filter;
    QStringMatcher m_text;
};

} // namespace pendant
