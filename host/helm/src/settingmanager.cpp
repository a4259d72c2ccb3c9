#include "helm/settingmanager.h"

#include <QSettings>

namespace helm {

struct SettingManager::Private {
    QSettings file{QStringLiteral("settings.ini"), QSettings::IniFormat};
};

SettingManager::SettingManager(QObject* parent) : QObject(parent), d(new Private) {}
SettingManager::~SettingManager() = default;

QString SettingManager::getStr(const QString& key, const QString& fallback) const {
    return d->file.value(key, fallback).toString();
}

} // namespace helm
