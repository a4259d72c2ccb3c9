#include "kite/kitemodule.h"

#include "kite/pluginregister.h"
#include "log/hostline.h"

#include "brisk/modulemanager.h"
#include "briskx/navigation.h"
#include "helm/managerhelper.h"
#include "tarp/containers.h"

#include <QPointer>
#include <QVariant>

namespace kite {

namespace {

const char pageGroup[] = "robot.pack";

int countAt(const QString& key) {
    const brisk::ModuleObject* node = m(key);
    return node ? node->getInt(0) : 0;
}

// An entry that was never told its page is not found by it.
void removeOrphan(brisk::ModuleObject* entry) {
    if (entry && entry->pmobj())
        entry->pmobj()->removeChild(entry, /*notify*/ true);
}

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

void Kite::setup() {
    if (settingPage)
        return;
    tarp::CenterWidget* center = instantiatedCenterWidget();
    settingPage = new PluginSettingPage(name(), storedName, center, this);
    if (center)
        center->addPage(this, pageKey(), settingPage->wgt());
}

void Kite::init() {
    const QString label = plugin ? plugin->getPluginLabel() : QString();
    const QString title = label.isEmpty() ? storedName : label;
    // Whoever hears of the new entry, or of the new style below, may delete this module.
    const QPointer<QObject> self(this);
    const QPointer<brisk::ModuleObject> entry =
        ot::gyre::registerPage(this, title, QLatin1String(pageGroup), QLatin1String(""), -1);
    if (!self) {
        removeOrphan(entry);
        return;
    }
    if (entry)
        entry->set(this, QStringLiteral("nav"), QVariant(pageKey()), true);
    if (self && plugin)
        plugin->init();
}

void Kite::afterInit() {
    if (plugin)
        plugin->afterInit();
}

void Kite::render() {
    const bool globalSheet = !plugin || plugin->getDefaultGlobalSheet();
    const QPointer<QObject> self(this);
    if (globalSheet && settingPage)
        settingPage->startRender();
    if (self && plugin)
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
    const QString key = mName(QStringLiteral("helm.msg"), QStringLiteral("_"));
    brisk::ModuleObject* node = m(key);
    if (!node)
        return false;
    // Whoever hears of the new count may clear the tree or delete this module.
    const QPointer<QObject> self(this);
    // No lower bound on purpose: the host or another plugin may have lowered the count in between.
    node->setValue(this, node->getInt(0) + (shown ? 1 : -1));
    hostline::service(hostline::pluginModule()) << "Current Model Count : " << countAt(key);
    if (self)
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
