#pragma once

#include "brisk/export.h"
#include "helm/controllermanager.h"
#include "helm/settingmanager.h"
#include "helm/tasknetworkmanager.h"

#include <QObject>
#include <QString>

#include <memory>

namespace helm {

/// Holds the host's managers. One per process.
class BRISK_EXPORT ManagerHelper : public QObject {
    Q_OBJECT

public:
    /// The process's instance; made on first use.
    static ManagerHelper* instance();

    ControllerManager* controllerManager() const;
    SettingManager* settingManager() const;
    TaskNetworkManager* taskNetworkManager() const;

    /// Makes the resources of the plugin `name` reachable under "NAME:", so that the plugin's resource ":/NAME/a.svg"
    /// opens as "NAME:a.svg".
    void registQrcAlias(const QString& name);

    /// Puts a line into the pendant's message list. `word` is the level: "warning", "error" or "info"; `sender` is the
    /// module that speaks.
    static void throwLog(QObject* sender, const QString& word, const QString& message);

private:
    ManagerHelper();
    ~ManagerHelper() override;
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace helm
