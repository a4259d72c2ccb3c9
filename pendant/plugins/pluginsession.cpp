#include "pluginsession.h"

#include "callguard.h"
#include "pluginloader.h"
#include "report.h"

#include "briskx/navigationmodel.h"
#include "tarp/factory.h"

#include <algorithm>

namespace pendant {

PluginSession::PluginSession(CallGuard* guard, const PluginLoader* loader, QObject* parent)
    : QObject(parent), m_guard(guard), m_loader(loader) {}

PluginSession::~PluginSession() {
    stop();
}

void PluginSession::start(tarp::CenterWidget* center) {
    if (m_started)
        return;
    m_started = true;
    m_center = center;
    QStringList names = bfactory()->creators.keys();
    names.sort();
    for (const QString& name : names)
        make(name);

    callAll("setup", &tarp::BModule::setup, /*failureIsFinal*/ true);
    callAll("afterSetup", &tarp::BModule::afterSetup, /*failureIsFinal*/ true);
    callAll("init", &tarp::BModule::init, /*failureIsFinal*/ true);
    callAll("afterInit", &tarp::BModule::afterInit, /*failureIsFinal*/ false);

    if (m_center)
        connect(m_center, &tarp::CenterWidget::currentChanged, this, &PluginSession::followPages);
    followPages();
    emit changed();
}

void PluginSession::make(const QString& name) {
    m_plugins.append({name, nullptr, PluginState::Running, QString(), name});
    const int index = m_plugins.size() - 1;
    // A copy: the module's construction may take its entry away.
    const auto creator = bfactory()->creators.value(name);
    tarp::BModule* module = nullptr;
    const QString thrown =
        m_guard->run(name, QStringLiteral("constructor"), [&] { module = creator ? creator(this) : nullptr; });
    if (!thrown.isEmpty())
        return fail(index, tr("Its constructor threw: %1").arg(thrown));
    if (!module)
        return failUnthrown(index, tr("Nothing was made for it."));
    m_plugins[index].module = module;
    connect(module, &QObject::destroyed, this, [this, index] {
        if (!m_stopping)
            failUnthrown(index, tr("It was deleted while the pendant was running."));
    });
}

void PluginSession::fail(int index, const QString& reason) {
    Plugin& plugin = m_plugins[index];
    if (plugin.state == PluginState::Failed)
        return;
    plugin.state = PluginState::Failed;
    plugin.reason = reason;
    emit changed();
}

// What was thrown has been reported by the guard.
void PluginSession::failUnthrown(int index, const QString& reason) {
    reportError(m_plugins.at(index).name, reason);
    fail(index, reason);
}

void PluginSession::callAll(const char* name, Call method, bool failureIsFinal) {
    for (int i = 0; i < m_plugins.size(); ++i)
        call(i, name, method, failureIsFinal);
}

void PluginSession::call(int index, const char* name, Call method, bool failureIsFinal) {
    const Plugin& plugin = m_plugins.at(index);
    const QPointer<tarp::BModule> module = plugin.module;
    if (!module || plugin.state == PluginState::Failed)
        return;
    const QString thrown = m_guard->run(plugin.name, QLatin1String(name), [&] { (module->*method)(); });
    if (failureIsFinal && !thrown.isEmpty())
        fail(index, tr("%1 threw: %2").arg(QLatin1String(name), thrown));
}

int PluginSession::indexOf(const QObject* module) const {
    const auto found = std::find_if(m_plugins.begin(), m_plugins.end(),
                                    [module](const Plugin& plugin) { return module && plugin.module == module; });
    return found == m_plugins.end() ? -1 : static_cast<int>(found - m_plugins.begin());
}

// A plugin may switch pages from within any of these calls: the page that is left gets all its calls before it idles.
void PluginSession::followPages() {
    if (m_following || !m_center)
        return;
    m_following = true;
    while (m_center && m_center->current() != m_renderedPage) {
        leavePage();
        if (!m_center)
            break;
        m_renderedPage = m_center->current();
        enterPage(qobject_cast<tarp::BModule*>(m_center->owner(m_renderedPage)));
    }
    m_following = false;
}

void PluginSession::leavePage() {
    const int index = indexOf(m_rendered);
    m_rendered = nullptr;
    m_renderedPage.clear();
    if (index < 0)
        return;
    call(index, "idle", &tarp::BModule::idle, /*failureIsFinal*/ false);
    call(index, "afterIdle", &tarp::BModule::afterIdle, /*failureIsFinal*/ false);
}

void PluginSession::enterPage(tarp::BModule* module) {
    const int index = indexOf(module);
    if (index < 0)
        return;
    m_rendered = module;
    call(index, "render", &tarp::BModule::render, /*failureIsFinal*/ false);
    call(index, "afterRender", &tarp::BModule::afterRender, /*failureIsFinal*/ false);
}

void PluginSession::stop() {
    if (!m_started || m_stopping)
        return;
    m_stopping = true;
    if (m_center)
        disconnect(m_center, nullptr, this, nullptr);
    leavePage();
    callAll("beforeDetach", &tarp::BModule::beforeDetach, /*failureIsFinal*/ false);
    callAll("detach", &tarp::BModule::detach, /*failureIsFinal*/ false);
    destroyAll();
    emit changed();
}

void PluginSession::destroyAll() {
    for (Plugin& plugin : m_plugins)
        plugin.title = titleOf(plugin);
    for (Plugin& plugin : m_plugins) {
        if (plugin.module)
            m_guard->run(plugin.name, QStringLiteral("destructor"), [&] { delete plugin.module; });
        if (plugin.state == PluginState::Running)
            plugin.state = PluginState::Stopped;
    }
}

QString PluginSession::pageOf(const tarp::BModule* module) const {
    if (!m_center || !module)
        return QString();
    for (const QString& key : m_center->keys()) {
        if (m_center->owner(key) == module)
            return key;
    }
    return QString();
}

QString PluginSession::titleOf(const Plugin& plugin) const {
    const QString page = pageOf(plugin.module);
    const QString title = page.isEmpty() ? QString() : ot::gyre::standin::NavigationModel::instance()->titleOf(page);
    return title.isEmpty() ? plugin.title : title;
}

QList<PluginInfo> PluginSession::plugins() const {
    QList<PluginInfo> infos;
    for (const Plugin& plugin : m_plugins) {
        const QString page = pageOf(plugin.module);
        const QString file = m_loader ? m_loader->fileOf(plugin.name) : QString();
        infos.append({plugin.name, titleOf(plugin), file, page, plugin.state, plugin.reason});
    }
    return infos;
}

bool PluginSession::hasFailures() const {
    return std::any_of(m_plugins.begin(), m_plugins.end(),
                       [](const Plugin& plugin) { return plugin.state == PluginState::Failed; });
}

tarp::BModule* PluginSession::module(const QString& plugin) const {
    const auto found = std::find_if(m_plugins.begin(), m_plugins.end(),
                                    [&](const Plugin& candidate) { return candidate.name == plugin; });
    return found == m_plugins.end() ? nullptr : found->module.data();
}

} // namespace pendant
