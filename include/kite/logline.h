#pragma once

#include "kite/log.h"
#include "kite/logtime.h"

#include <QLatin1Char>
#include <QLatin1String>
#include <QString>

namespace kite {
namespace detail {

/// 'E' -> "[E|03/14 09:26:53.058]"
inline QString logTag(char level) {
    return QLatin1String("[") + QLatin1Char(level) + QLatin1Char('|') + logTime() + QLatin1Char(']');
}

inline QString logPath(const QString& logger) {
    return QLatin1String("./log/") + logger;
}

} // namespace detail

/// A line that says that something failed, in red. On the console and in the log:
///
///     kite::ErrorLine("<weld>") << "No wire for " << seconds << " s";
///     ->  [E|03/14 09:26:53.058]<weld>No wire for 3 s
///
/// \since 0.1
class ErrorLine : public QFLog {
public:
    /// \param module who says it, with its brackets; empty for nobody
    /// \param logger the log's name, whose files stand in "./log/" beneath the pendant's working directory. All plugins
    ///               and the library share "kite"; one that writes thousands of lines takes its own. Without '_', see
    ///               PluginLogFileManager
    explicit ErrorLine(const QString& module, const QString& logger = QStringLiteral("kite"))
        : QFLog(QStringLiteral("\x1b[31m"), detail::logTag('E'), module, detail::logPath(logger),
                QStringLiteral("log")) {}
};

/// A line about what was sent and what came back, in magenta and with the level 'S'. Its arguments are ErrorLine's.
/// \since 0.1
class ServiceLine : public QFLog {
public:
    explicit ServiceLine(const QString& module, const QString& logger = QStringLiteral("kite"))
        : QFLog(QStringLiteral("\x1b[35m"), detail::logTag('S'), module, detail::logPath(logger),
                QStringLiteral("log")) {}
};

/// A line that is good to know, in cyan and with the level 'I'. Its arguments are ErrorLine's.
/// \since 0.1
class InformationLine : public QFLog {
public:
    explicit InformationLine(const QString& module, const QString& logger = QStringLiteral("kite"))
        : QFLog(QStringLiteral("\x1b[36m"), detail::logTag('I'), module, detail::logPath(logger),
                QStringLiteral("log")) {}
};

} // namespace kite
