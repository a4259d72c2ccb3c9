#include "helm/settingmanager.h"

#include <QSettings>

namespace helm {

struct SettingManager::Private {
    Private() { file.setIniCodec("UTF-8"); }
    QSettings file{QStringLiteral("settings.ini"), QSettings::IniFormat};
};

SettingManager::SettingManager(QObject* parent) : QObject(parent), d(new Private) {}
SettingManager::~SettingManager() = default;

QString SettingManager::getStr(const QString& key, const QString& fallback) const {
    const QVariant value = d->file.value(key, fallback);
    // A value with a comma that is not quoted is read as several: "/home/x/a, b"
    return value.type() == QVariant::StringList ? value.toStringList().join(QStringLiteral(", ")) : value.toString();
}

} // namespace helm
