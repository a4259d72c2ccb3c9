#include "kite/kitemodule.h"

#include "kite/pluginregister.h"
#include "log/hostline.h"

#include "brisk/modulemanager.h"
#include "briskx/navigation.h"
#include "helm/managerhelper.h"
#include "tarp/containers.h"

#include <QVariant>

namespace kite {

namespace {

const char pageGroup[] = "robot.pack";

} // namespace

Kite::Kite(const QString& pluginName, QObject* parent) : BModule(parent), storedName(pluginName) {
    helm::ManagerHelper::instance()->registQrcAlias(pluginName);
    bindMobj(mName(QStringLiteral("brisk"), QStringLiteral("kite"), pluginName));
}

// Both lines stand at the error level on purpose, although nothing has failed: they are found at a glance in a log.
Kite::~Kite() {
    hostline::error(hostline::pluginModule()) << "~Kite begin";
    kiteFactory()->cancel(storedName);
    if (tarp::CenterWidget* center = instantiatedCenterWidget())
        center->removeItem(this, pageKey(), false);
    cancelPage(QLatin1String(pageGroup), pageKey());
    hostline::error(hostline::pluginModule()) << "~Kite end!";
}

QString Kite::name() const {
    return QStringLiteral("kite");
}

QString& Kite::pluginName() {
    return storedName;
}

QString Kite::pageKey() const {
    return mName(QStringLiteral("kite"), storedName);
}

// A plugin object that is deleted by its own code must not be called again.
void Kite::setPlugin(PluginBase* object) {
    plugin = object;
    if (plugin)
        connect(plugin, &QObject::destroyed, this, [this] { plugin = nullptr; });
}

void Kite::setup() {
    tarp::CenterWidget* center = instantiatedCenterWidget();
    settingPage = new PluginSettingPage(name(), storedName, center, this);
    connect(settingPage, &QObject::destroyed, this, [this] { settingPage = nullptr; });
    if (center)
        center->addPage(this, pageKey(), settingPage->wgt());
}

void Kite::init() {
    const QString label = plugin ? plugin->getPluginLabel() : QString();
    const QString title = label.isEmpty() ? storedName : label;
    brisk::ModuleObject* entry = ot::gyre::registerPage(this, title, QLatin1String(pageGroup), QString(), -1);
    if (entry)
        entry->set(this, QStringLiteral("nav"), QVariant(pageKey()), true);
    if (plugin)
        plugin->init();
}

void Kite::afterInit() {
    if (plugin)
        plugin->afterInit();
}

void Kite::render() {
    const bool globalSheet = !plugin || plugin->getDefaultGlobalSheet();
    if (globalSheet && settingPage)
        settingPage->startRender();
    if (plugin)
        plugin->render();
}

void Kite::idle() {
    if (plugin)
        plugin->idle();
}

void Kite::detach() {
    if (plugin)
        plugin->detach();
}

bool Kite::changeModelWindowStatus(bool shown) {
    if (shown == modelWindowShown)
        return false;
    brisk::ModuleObject* node = m(mName(QStringLiteral("helm.msg"), QStringLiteral("_")));
    if (!node)
        return false;
    // No lower bound on purpose: the host or another plugin may have lowered the count in between.
    node->setValue(this, node->getInt(0) + (shown ? 1 : -1));
    hostline::service(hostline::pluginModule()) << "Current Model Count : " << node->getInt(0);
    modelWindowShown = shown;
    return true;
}

int Kite::ThrowLog(kite::enThrowLogLevel level, const QString& message) {
    helm::ManagerHelper::instance();
    const char* const word = level == ThrowWarning ? "warning" : level == ThrowError ? "error" : "info";
    helm::ManagerHelper::throwLog(this, QLatin1String(word), message);
    return 0;
}

} // namespace kite
