#pragma once

#include "tarp/containers.h"

#include <QLayoutItem>
#include <QList>
#include <QObject>

namespace pendant {

class StatusItem;

/// Makes room in the status bar when plugins bring items or the screen is narrow: first the icons go of items whose
/// words say enough, then the item that the others can spare.
class StatusRoom : public QObject {
    Q_OBJECT

public:
    /// \param items   those that can do without their icon
    /// \param spared  one of them, which can go altogether
    StatusRoom(tarp::StatusBar* bar, const QList<StatusItem*>& items, StatusItem* spared);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();
    int wantedWidth(bool withIcons, bool withSpared) const;
    int widthOf(QLayoutItem* place, bool withIcons, bool withSpared) const;

    tarp::StatusBar* m_bar;
    QList<StatusItem*> m_items;
    StatusItem* m_spared;
};

} // namespace pendant
