#include "log/hostline.h"

#include <QDateTime>

namespace kite {
namespace hostline {

namespace {

// "[E|%1]" -> "[E|03/14 09:26:53.058]"
brisk::QFLog line(const char* colour, const char* tag, const QString& module) {
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("MM/dd hh:mm:ss.zzz"));
    return brisk::QFLog(QString::fromLatin1(colour), QString::fromLatin1(tag).arg(now), module,
                        QStringLiteral("./log/%1").arg(QLatin1String("kite")), QStringLiteral("log"));
}

} // namespace

brisk::QFLog error(const QString& module) {
    return line("\x1b[31m", "[E|%1]", module);
}
brisk::QFLog service(const QString& module) {
    return line("\x1b[35m", "[S|%1]", module);
}
brisk::QFLog information(const QString& module) {
    return line("\x1b[36m", "[I|%1]", module);
}

QString pluginModule() {
    return QStringLiteral("<kite>");
}
QString interfaceModule() {
    return QStringLiteral("<kite interfacemanager>");
}

} // namespace hostline
} // namespace kite
