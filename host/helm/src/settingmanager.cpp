#include "helm/settingmanager.h"

#include "helm/settingsfile.h"

#include <QFileInfo>
#include <QSettings>

namespace helm {

namespace {

QString& chosenPath() {
    static QString path;
    return path;
}

} // namespace

namespace standin {

void readSettingsFrom(const QString& path) {
    chosenPath() = path;
}

} // namespace standin

struct SettingManager::Private {
    QSettings* current() {
        const QString path = chosenPath().isEmpty() ? own : chosenPath();
        if (!file || file->fileName() != path) {
            file.reset(new QSettings(path, QSettings::IniFormat));
            file->setIniCodec("UTF-8");
        }
        return file.get();
    }

    const QString own = QFileInfo(QStringLiteral("settings.ini")).absoluteFilePath();
    std::unique_ptr<QSettings> file;
};

SettingManager::SettingManager(QObject* parent) : QObject(parent), d(new Private) {}
SettingManager::~SettingManager() = default;

QString SettingManager::getStr(const QString& key, const QString& fallback) const {
    const QVariant value = d->current()->value(key, fallback);
    // A value with a comma that is not quoted is read as several: "/home/x/a, b"
    return value.type() == QVariant::StringList ? value.toStringList().join(QStringLiteral(", ")) : value.toString();
}

} // namespace helm
