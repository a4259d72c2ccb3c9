#include "teachplugin.h"

#include "keptpanel.h"
#include "keptvalues.h"
#include "pointpanel.h"
#include "teacher.h"

#include <QVBoxLayout>

KITE_PLUGIN(TeachPlugin, "teach");

TeachPlugin::TeachPlugin(QObject* parent)
    : PluginBase(parent), m_teacher(new Teacher(this)), m_values(new KeptValues(this)) {
    setPluginLabel(tr("Teach"));
}

void TeachPlugin::init() {
    m_points = new PointPanel(m_teacher);
    m_kept = new KeptPanel(m_values);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setSpacing(16);
    layout->addWidget(m_points, 1);
    layout->addWidget(m_kept);
    connect(m_teacher, &Teacher::taught, this, &TeachPlugin::keep);
    connect(m_kept, &KeptPanel::told, m_points, &PointPanel::say);
    kite::CreateCenterWidget(kitePluginName, page);
}

// The list may have changed while nobody looked.
void TeachPlugin::render() {
    m_points->readAgain();
    m_kept->readAgain();
}

void TeachPlugin::keep(const QString& name) {
    const QString problem = m_values->pointTaught(name);
    if (!problem.isEmpty())
        kite::ThrowLog(kitePluginName, kite::ThrowWarning, problem);
}
