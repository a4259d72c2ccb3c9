#include "statusroom.h"

#include "statusitem.h"

#include <QEvent>
#include <QLayout>

namespace pendant {

StatusRoom::StatusRoom(tarp::StatusBar* bar, const QList<StatusItem*>& items, StatusItem* spared)
    : QObject(bar), m_bar(bar), m_items(items), m_spared(spared) {
    bar->installEventFilter(this);
}

bool StatusRoom::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        fit();
    return QObject::eventFilter(watched, event);
}

// From the widths that everything would have, so that what is hidden does not change the answer.
void StatusRoom::fit() {
    const int width = m_bar->width();
    const bool withSpared = wantedWidth(false, true) <= width;
    const bool withIcons = wantedWidth(true, withSpared) <= width;
    for (StatusItem* item : m_items)
        item->setIconShown(withIcons);
    m_spared->setVisible(withSpared);
}

int StatusRoom::wantedWidth(bool withIcons, bool withSpared) const {
    const QLayout* layout = m_bar->layout();
    const QMargins margins = layout->contentsMargins();
    int wanted = margins.left() + margins.right();
    for (int i = 0; i < layout->count(); ++i) {
        const int width = widthOf(layout->itemAt(i), withIcons, withSpared);
        wanted += width > 0 ? width + layout->spacing() : 0;
    }
    return wanted;
}

// 0 for what takes no room.
int StatusRoom::widthOf(QLayoutItem* place, bool withIcons, bool withSpared) const {
    auto* const item = qobject_cast<StatusItem*>(place->widget());
    if (!item || !m_items.contains(item))
        return place->sizeHint().width();
    return item == m_spared && !withSpared ? 0 : item->wantedWidth(withIcons);
}

} // namespace pendant
