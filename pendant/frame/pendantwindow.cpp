#include "pendantwindow.h"

#include "clock.h"
#include "developerbutton.h"
#include "helm/messagelist.h"
#include "keycolumn.h"
#include "messageline.h"
#include "navigation.h"
#include "pagekeys.h"
#include "pagetitle.h"
#include "sidebarbutton.h"
#include "sidebarheader.h"
#include "statusitems.h"
#include "style/resources.h"
#include "style/stylesheet.h"
#include "tarp/rendering.h"

#include <QGridLayout>
#include <QShortcut>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace pendant {

PendantWindow::PendantWindow(const Theme& theme, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_statusBar(new tarp::StatusBar(this)),
      m_navigation(new Navigation(theme, this)), m_center(new tarp::CenterWidget(this)),
      m_pageTitle(new PageTitle(m_center, this)), m_sideBar(new tarp::ExpandSideBar(this)),
      m_sideBarHeader(new SideBarHeader(m_sideBar, theme)), m_keys(new KeyColumn(theme, this)),
      m_messageLine(new MessageLine(theme, this)), m_statusItems(new StatusItems(m_statusBar, theme)) {
    initResources();
    setObjectName(QStringLiteral("pendant"));
    m_statusBar->setObjectName(QStringLiteral("statusBar"));
    m_center->setObjectName(QStringLiteral("center"));
    m_sideBar->setObjectName(QStringLiteral("sideBar"));
    fillStatusBar();
    arrange();
    connectParts();
    setTheme(theme);
}

PendantWindow::~PendantWindow() = default;

void PendantWindow::setTheme(const Theme& theme) {
    m_theme = theme;
    setPalette(theme.palette());
    const QString sheet = frameStyleSheet(theme);
    for (QWidget* part : QList<QWidget*>{m_statusBar, m_navigation, m_pageTitle, m_sideBar, m_messageLine})
        part->setStyleSheet(sheet);
    tarp::standin::setRenderStyleSheet(controlStyleSheet(theme));
    m_navigation->setTheme(theme);
    m_statusItems->setTheme(theme);
    m_developerButton->setTheme(theme);
    m_sideBarButton->setTheme(theme);
    m_sideBarHeader->setTheme(theme);
    m_keys->setTheme(theme);
    m_messageLine->setTheme(theme);
    emit themeChanged(theme);
}

void PendantWindow::showPage(const QString& key) {
    if (m_center->switchTo(nullptr, key))
        return;
    MessageList::instance()->add(MessageLevel::Warning, QStringLiteral("pendant"),
                                 tr("There is no page “%1” to show.").arg(key));
}

void PendantWindow::setDeveloperOpen(bool open) {
    m_developerButton->setChecked(open);
}

void PendantWindow::fillStatusBar() {
    auto* stretch = new QWidget(m_statusBar);
    m_statusBar->addItem(this, QStringLiteral("orca.body.statuspage.wgtStrech2"), stretch, 1);
    m_statusBar->addItem(this, QStringLiteral("orca.body.statuspage.clock"), new Clock(m_statusBar));
    m_developerButton = new DeveloperButton(m_theme, m_statusBar);
    m_statusBar->addItem(this, QStringLiteral("orca.body.statuspage.developer"), m_developerButton);
    m_sideBarButton = new SideBarButton(m_sideBar, m_sideBarHeader, m_theme, m_statusBar);
    m_statusBar->addItem(this, QStringLiteral("orca.body.statuspage.sidebar"), m_sideBarButton);
}

void PendantWindow::arrange() {
    m_statusBar->setFixedHeight(56);
    m_statusBar->layout()->setSpacing(8);
    m_statusBar->layout()->setContentsMargins(8, 0, 0, 0);
    m_statusBar->setAttribute(Qt::WA_StyledBackground);
    m_sideBar->setAttribute(Qt::WA_StyledBackground);
    m_center->layout()->setContentsMargins(16, 8, 16, 16);
    m_center->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    // The screen does not grow with what a plugin puts on it.
    grid->setSizeConstraint(QLayout::SetNoConstraint);
    setMinimumSize(800, 480);
    grid->addWidget(m_statusBar, 0, 0, 1, 3);
    grid->addWidget(m_navigation, 1, 0);
    grid->addLayout(arrangePage(), 1, 1);
    grid->addWidget(m_sideBar, 1, 2);
    grid->addWidget(m_messageLine, 2, 0, 1, 3);
    grid->addWidget(m_keys, 0, 3, 3, 1);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
}

QLayout* PendantWindow::arrangePage() {
    m_pageTitle->setContentsMargins(16, 12, 16, 0);
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_pageTitle);
    column->addWidget(m_center, 1);
    return column;
}

void PendantWindow::connectParts() {
    connect(m_center, &tarp::CenterWidget::currentChanged, m_navigation, &Navigation::setCurrent);
    connect(m_navigation, &Navigation::chosen, this, &PendantWindow::open);
    connect(m_messageLine, &MessageLine::clicked, this, &PendantWindow::toggleMessages);
    connect(m_developerButton, &DeveloperButton::clicked, this, &PendantWindow::developerAsked);
    auto* key = new QShortcut(QKeySequence(Qt::Key_F12), this);
    key->setContext(Qt::ApplicationShortcut);
    connect(key, &QShortcut::activated, this, &PendantWindow::developerAsked);
}

void PendantWindow::open(const QString& title, const QString& nav) {
    if (m_center->switchTo(nullptr, nav))
        return;
    const QString text = nav.isEmpty() ? tr("The entry “%1” of the navigation names no page.").arg(title)
                                       : tr("The entry “%1” of the navigation leads to the page “%2”, which does not "
                                            "exist.")
                                             .arg(title, nav);
    MessageList::instance()->add(MessageLevel::Warning, QStringLiteral("pendant"), text);
}

void PendantWindow::toggleMessages() {
    const QString messages = pagekeys::messages();
    if (m_center->current() != messages) {
        m_pageBeforeMessages = m_center->current();
        showPage(messages);
        return;
    }
    if (!m_center->switchTo(nullptr, m_pageBeforeMessages))
        showPage(pagekeys::start());
}

} // namespace pendant
