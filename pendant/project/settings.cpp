#include "settings.h"

#include "helm/managerhelper.h"

#include <QSettings>

namespace pendant {
namespace settings {

QString text(const QString& key) {
    return helm::ManagerHelper::instance()->settingManager()->getStr(key, QString());
}

void setText(const QString& key, const QString& text) {
    QSettings file(QStringLiteral("settings.ini"), QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    file.setValue(key, text);
}

} // namespace settings
} // namespace pendant
