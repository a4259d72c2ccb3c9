#pragma once

#include "state/forcedcount.h"
#include "style/theme.h"
#include "tarp/containers.h"

#include <QHash>
#include <QObject>
#include <QString>

namespace pendant {

class StatusItem;

/// The robot's values in the status bar, live: links, drives, mode, state, forced signals, tool and work object. How
/// the robot is, is unknown until the controller has told it.
class StatusItems : public QObject {
    Q_OBJECT

public:
    StatusItems(tarp::StatusBar* bar, const Theme& theme);

    void setTheme(const Theme& theme);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    StatusItem* add(const QString& name);
    void follow(const QString& name, const QString& key);
    void show(const QString& name);
    void followLinks();
    void showRobot();
    void showForced();
    QString toldOf(const QString& name) const;
    void retranslate();
    void showBus();
    void showController();
    void showLink(const QString& name, bool up);
    void showPower();
    void showMode();
    void showRobotState();
    void showName(const QString& name, const QString& fallback);

    tarp::StatusBar* m_bar;
    Theme m_theme;
    ForcedCount m_forced;
    QHash<QString, StatusItem*> m_items;
    QHash<QString, QString> m_values; ///< as the tree has them, by the name of the item
};

} // namespace pendant
