#pragma once

#include "helm/managerhelper.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

/// The host's settings, in a file that is removed when the process ends. The host looks for it where it works when its
/// managers are made, so begin() comes before anything else.
class HostSettings {
public:
    static void begin() {
        if (!folder().isValid() || !QDir::setCurrent(folder().path()))
            qFatal("There is no temporary folder for the settings.");
        helm::ManagerHelper::instance();
    }
    static QString get(const QString& key) {
        return helm::ManagerHelper::instance()->settingManager()->getStr(key, QString());
    }
    static void set(const QString& key, const QString& value) {
        file().setValue(key, value);
        if (get(key) != value)
            qFatal("The host does not read the settings of this test.");
    }
    static void remove(const QString& key) { file().remove(key); }

private:
    static QTemporaryDir& folder() {
        static QTemporaryDir folder;
        return folder;
    }
    static QSettings& file() {
        static QSettings file(folder().filePath("settings.ini"), QSettings::IniFormat);
        file.setIniCodec("UTF-8");
        return file;
    }
};
