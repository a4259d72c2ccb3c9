#include "messagewords.h"

#include <QCoreApplication>

using helm::standin::MessageLevel;

namespace pendant {

QString levelWord(MessageLevel level) {
    switch (level) {
    case MessageLevel::Error:
        return QCoreApplication::translate("pendant::Messages", "Error");
    case MessageLevel::Warning:
        return QCoreApplication::translate("pendant::Messages", "Warning");
    case MessageLevel::Information:
        break;
    }
    return QCoreApplication::translate("pendant::Messages", "Information");
}

QString levelName(MessageLevel level) {
    switch (level) {
    case MessageLevel::Error:
        return QStringLiteral("error");
    case MessageLevel::Warning:
        return QStringLiteral("warning");
    case MessageLevel::Information:
        break;
    }
    return QStringLiteral("information");
}

QString levelToken(MessageLevel level) {
    return level == MessageLevel::Information ? QStringLiteral("text") : levelName(level);
}

} // namespace pendant
