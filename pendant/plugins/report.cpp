#include "report.h"

#include "brisk/log.h"
#include "helm/messagelist.h"

#include <QDateTime>

namespace pendant {

namespace {

const int mostKept = 1000;

QStringList& kept() {
    static QStringList errors;
    return errors;
}

void keep(const QString& error) {
    if (kept().size() < mostKept && !kept().contains(error))
        kept().append(error);
}

} // namespace

void reportError(const QString& source, const QString& text) {
    helm::standin::MessageList::instance()->add(helm::standin::MessageLevel::Error, source, text);
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("MM/dd hh:mm:ss.zzz"));
    brisk::QFLog(QStringLiteral("\x1b[31m"), QStringLiteral("[E|%1]").arg(now), QStringLiteral("<pendant>"),
                 QStringLiteral("./log/kite"), QStringLiteral("log"))
        << source << ": " << text;
    keep(source + QLatin1String(": ") + text);
}

QStringList reportedErrors() {
    return kept();
}

} // namespace pendant
