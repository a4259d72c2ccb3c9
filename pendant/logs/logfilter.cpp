#include "logfilter.h"

namespace pendant {

namespace {

LogFilter::Level levelOf(LogLevel level) {
    switch (level) {
    case LogLevel::Error:
        return LogFilter::Error;
    case LogLevel::Service:
        return LogFilter::Service;
    case LogLevel::Information:
        return LogFilter::Information;
    case LogLevel::Other:
    case LogLevel::Plain:
        break;
    }
    return LogFilter::Other;
}

} // namespace

LogMatcher::LogMatcher(const LogFilter& filter) : m_filter(filter), m_text(filter.text, Qt::CaseInsensitive) {}

bool LogMatcher::matches(const QByteArray& entry) const {
    const bool byHead = m_filter.levels != LogFilter::AllLevels || !m_filter.module.isEmpty();
    if (byHead) {
        const int lineEnd = entry.indexOf('\n');
        const LogLine head = parseLogLine(lineEnd < 0 ? entry : entry.left(lineEnd));
        if (!(m_filter.levels & levelOf(head.level)) || !head.module.contains(m_filter.module, Qt::CaseInsensitive))
            return false;
    }
    return m_filter.text.isEmpty() || m_text.indexIn(QString::fromUtf8(entry)) >= 0;
}

} // namespace pendant
