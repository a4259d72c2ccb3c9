#include "developerdock.h"

#include "linkspanel.h"
#include "style/stylesheet.h"
#include "trafficpanel.h"
#include "treepanel.h"

#include <QEvent>
#include <QShowEvent>
#include <QVBoxLayout>

namespace pendant {

// No parent and no tool window: such a one would stay above the pendant.
DeveloperDock::DeveloperDock(brisk::ModuleObject* root, const Theme& theme) : m_tabs(new QTabWidget(this)) {
    setObjectName(QStringLiteral("developerDock"));
    // The pendant ends with its own window.
    setAttribute(Qt::WA_QuitOnClose, false);
    m_panels = {new TreePanel(root, theme, this), new TrafficPanel(theme, this), new LinksPanel(theme, this)};
    for (DockPanel* panel : qAsConst(m_panels))
        m_tabs->addTab(panel, QString());
    m_tabs->setDocumentMode(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_tabs);
    setMinimumSize(leastSize());
    resize(wantedSize());
    setTheme(theme);
    retranslate();
}

QStringList DeveloperDock::tabNames() {
    return {QStringLiteral("tree"), QStringLiteral("traffic"), QStringLiteral("links")};
}

void DeveloperDock::setTheme(const Theme& theme) {
    setPalette(theme.palette());
    setStyleSheet(developerStyleSheet(theme));
    for (DockPanel* panel : qAsConst(m_panels))
        panel->setTheme(theme);
}

void DeveloperDock::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    setLive(true);
    emit shownChanged(true);
}

// A window that is only minimised goes on looking.
void DeveloperDock::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    setLive(false);
    emit shownChanged(false);
}

void DeveloperDock::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void DeveloperDock::setLive(bool live) {
    for (DockPanel* panel : qAsConst(m_panels))
        panel->setLive(live);
}

void DeveloperDock::retranslate() {
    setWindowTitle(tr("Developer dock"));
    for (int i = 0; i < m_panels.size(); ++i)
        m_tabs->setTabText(i, m_panels.at(i)->title());
}

} // namespace pendant
