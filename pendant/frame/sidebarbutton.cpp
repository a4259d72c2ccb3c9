#include "sidebarbutton.h"

#include "sidebarheader.h"
#include "style/icons.h"

#include <QEvent>

namespace pendant {

SideBarButton::SideBarButton(tarp::ExpandSideBar* bar, SideBarHeader* header, const Theme& theme, QWidget* parent)
    : QToolButton(parent), m_bar(bar), m_header(header) {
    setObjectName(QStringLiteral("sideBarButton"));
    setCheckable(true);
    setIconSize({24, 24});
    setVisible(!bar->keys().isEmpty());
    connect(this, &QToolButton::clicked, this, &SideBarButton::press);
    connect(bar, &tarp::ExpandSideBar::openChanged, this, &SideBarButton::setChecked);
    connect(bar, &tarp::ExpandSideBar::pagesChanged, this, [this] { setVisible(!m_bar->keys().isEmpty()); });
    setTheme(theme);
    retranslate();
}

void SideBarButton::setTheme(const Theme& theme) {
    setIcon(lineIcon(QStringLiteral("sidebar"), theme.color(QStringLiteral("text")), theme));
}

void SideBarButton::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void SideBarButton::press() {
    if (m_header->isOpen())
        m_header->close();
    else
        m_header->open();
    setChecked(m_header->isOpen());
}

void SideBarButton::retranslate() {
    setToolTip(tr("Side bar"));
    setAccessibleName(toolTip());
}

} // namespace pendant
