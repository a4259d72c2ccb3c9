#include "monitorplugin.h"

#include "commandpanel.h"
#include "linkpanel.h"
#include "robotwatch.h"
#include "valuepanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

KITE_PLUGIN(MonitorPlugin, "monitor");

MonitorPlugin::MonitorPlugin(QObject* parent) : PluginBase(parent) {
    setPluginLabel(tr("Monitor"));
}

void MonitorPlugin::init() {
    m_watch = new RobotWatch(kitePluginName, this);
    connect(m_watch, &RobotWatch::linksChanged, this, &MonitorPlugin::tell);

    auto* page = new QWidget;
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(new ValuePanel(m_watch), 3);
    top->addWidget(new LinkPanel(m_watch), 2);
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(16);
    layout->addLayout(top, 1);
    layout->addWidget(new CommandPanel(m_watch));
    kite::CreateCenterWidget(kitePluginName, page);
}

void MonitorPlugin::tell(const QString& text) {
    kite::ThrowLog(kitePluginName, m_watch->isConnected() ? kite::ThrowInformation : kite::ThrowWarning, text);
}
