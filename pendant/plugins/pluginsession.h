#pragma once

#include "tarp/bmodule.h"
#include "tarp/containers.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>

namespace pendant {

class CallGuard;
class PluginLoader;

enum class PluginState { Running, Failed, Stopped };

/// What people are told about one plugin.
struct PluginInfo {
    QString name;
    QString title; ///< of its navigation entry; the name while it has none
    QString file;  ///< path of its shared object; empty for one that is part of the program
    QString page;  ///< key of its centre page; empty when it has none
    PluginState state;
    QString reason; ///< why it failed
};

/// The plugins of a run of the pendant: makes their modules and drives them through the lifecycle.
///
/// A plugin that throws while it is made, set up or initialised is switched off: it gets no further call but its
/// destruction. What it throws later is reported each time, and it goes on.
class PluginSession : public QObject {
    Q_OBJECT

public:
    /// \param loader tells which file a plugin comes from; null when there is none. Must outlive the session, as must
    ///               `guard`.
    PluginSession(CallGuard* guard, const PluginLoader* loader = nullptr, QObject* parent = nullptr);
    ~PluginSession() override;

    /// Makes the modules of all registered names in the order of the names; sets up all, then initialises all. From
    /// then on the pages of `center` render when they are shown and idle when they are left. Does nothing the second
    /// time.
    void start(tarp::CenterWidget* center);
    /// Idles the page that is shown, detaches all and destroys them. Once; the containers must still be there.
    void stop();

    /// In the order of the names.
    QList<PluginInfo> plugins() const;
    bool hasFailures() const;
    /// The module of the plugin; null when it has none.
    tarp::BModule* module(const QString& plugin) const;

signals:
    /// plugins() has something else to say.
    void changed();

private:
    struct Plugin {
        QString name;
        QPointer<tarp::BModule> module;
        PluginState state;
        QString reason;
        QString title; ///< what its navigation entry showed at last, once that is gone
    };
    using Call = void (tarp::BModule::*)();

    void make(const QString& name);
    void callAll(const char* name, Call call, bool failureIsFinal);
    void call(int index, const char* name, Call call, bool failureIsFinal);
    void fail(int index, const QString& reason);
    void failUnthrown(int index, const QString& reason);
    void destroyAll();

    int indexOf(const QObject* module) const;
    void followPages();
    void leavePage();
    void enterPage(tarp::BModule* module);
    QString pageOf(const tarp::BModule* module) const;
    QString titleOf(const Plugin& plugin) const;

    CallGuard* m_guard;
    const PluginLoader* m_loader;
    QPointer<tarp::CenterWidget> m_center;
    QList<Plugin> m_plugins;
    QPointer<tarp::BModule> m_rendered;
    QString m_renderedPage;
    bool m_following = false;
    bool m_started = false;
    bool m_stopping = false;
};

} // namespace pendant
