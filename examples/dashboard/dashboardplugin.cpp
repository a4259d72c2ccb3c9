#include "dashboardplugin.h"

#include "linkbanner.h"
#include "livestate.h"
#include "namespanel.h"
#include "registerpanel.h"
#include "robotpanel.h"
#include "signalpanel.h"

#include <QHBoxLayout>
#include <QTabWidget>
#include <QVBoxLayout>

KITE_PLUGIN(DashboardPlugin, "dashboard");

DashboardPlugin::DashboardPlugin(QObject* parent) : PluginBase(parent) {
    setPluginLabel(tr("Dashboard"));
}

void DashboardPlugin::init() {
    m_live = new LiveState(kitePluginName, this);

    auto* lists = new QTabWidget;
    lists->addTab(new SignalPanel(m_live), tr("Signals"));
    lists->addTab(new RegisterPanel(m_live), tr("Registers"));
    lists->addTab(new NamesPanel(m_live), tr("Names"));

    auto* page = new QWidget;
    auto* columns = new QHBoxLayout;
    columns->setSpacing(16);
    columns->addWidget(new RobotPanel(m_live), 2);
    columns->addWidget(lists, 3);
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(16);
    layout->addWidget(new LinkBanner(m_live));
    layout->addLayout(columns, 1);
    kite::CreateCenterWidget(kitePluginName, page);
}

void DashboardPlugin::render() {
    m_live->setShown(true);
}

// What nobody looks at is not read.
void DashboardPlugin::idle() {
    m_live->setShown(false);
}
