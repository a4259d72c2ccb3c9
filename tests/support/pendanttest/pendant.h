#pragma once

#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"
#include "plugins/callguard.h"
#include "plugins/pluginloader.h"
#include "plugins/pluginsession.h"
#include "plugins/thrownhandler.h"
#include "project/framemirror.h"
#include "project/projectmirror.h"
#include "state/statemirror.h"

#include "helm/messagelist.h"
#include "kite/pluginbase.h"

#include <QAbstractButton>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace pendanttest {

/// A pendant without a screen, for the tests of a plugin:
///
///     pendanttest::Pendant pendant;
///     QVERIFY(pendant.load(PLUGIN_hello));
///     pendant.start();
///     QVERIFY(pendant.open("hello"));
///     QVERIFY(pendant.press("Start"));
///     QCOMPARE(pendant.messages().last().text, "Started.");
///
/// As on a pendant, the controller's project is loaded into the tree when the links come up, and the two are kept alike
/// from then on; what the controller tells of itself is in the tree too.
///
/// It runs in an empty folder of its own, which is the working directory meanwhile; the setting "workspace" leads to a
/// folder three levels down in it, and projects on disk come and go there. A warning or an error line that the
/// test has not named by expectError() fails the test, and so does a named one that does not come; the check is made by
/// close() and by verify().
///
/// One pendant can live at a time. A plugin that is compiled into the test (add()) can be started in every pendant of
/// the process; a shared object registers its plugins only once in a process, so load() it in one pendant that the
/// cases of a test program share.
class Pendant {
public:
    Pendant();
    /// Closes it.
    ~Pendant();

    /// Loads a shared object as the pendant does.
    /// \return false when it brings no plugin; the reason is then an error line and in the message list
    bool load(const QString& path);
    /// Registers a plugin that is part of the test program.
    void add(const QString& name, std::function<kite::PluginBase*(QObject*)> creator);
    template <typename Plugin> void add(const QString& name) {
        add(name, [](QObject* parent) { return new Plugin(parent); });
    }

    /// Makes the plugins, sets up all and initialises all.
    void start();
    /// Leaves the page that is shown, detaches and destroys the plugins and verifies the log. Once.
    void close();

    /// Shows the page of the plugin; false when it has none. A plugin's page renders when it is shown.
    bool open(const QString& plugin);
    /// Shows the empty start page; the plugin's page idles.
    void leave();
    /// The plugin's page; null when it has none.
    QWidget* page(const QString& plugin) const;
    /// The titles of the navigation's entries, in order.
    QStringList navigation() const;
    QWidget* statusItem(const QString& plugin, int index) const;
    /// The plugin's side-bar page; an empty id stands for the plugin's name.
    QWidget* sideBarPage(const QString& plugin, const QString& id = QString()) const;

    /// The visible button of that object name or, without regard to the mark of a mnemonic, text, on the page that is
    /// shown, in a full-screen window, the side bar or the status bar; null when there is none.
    QAbstractButton* findButton(const QString& nameOrText) const;
    /// Clicks it with the left mouse button; false when there is none or it is disabled. What its handler throws is an
    /// error line.
    bool press(const QString& nameOrText);
    /// Presses (`held`) or lets go of the physical key `key` of the enabled page `page`; false when there is none.
    bool holdKey(const QString& page, const QString& key, bool held);

    /// The windows that plugins have lifted out of their pages.
    QList<QWidget*> fullScreenWindows() const;
    /// A picture of the pendant's window.
    QPixmap grab();

    /// The message list, oldest first.
    QList<helm::standin::Message> messages() const;
    /// The lines of the log files, oldest first.
    QStringList logLines() const;
    /// The workspace's folder, an absolute path.
    QString workspace() const;
    /// What the pendant called in the plugin, in order: "init", "render", ...
    QStringList calls(const QString& plugin) const;

    /// One warning or error line that contains `part` is going to come.
    void expectError(const QString& part);
    /// Fails the running test for what came unexpected and for what was expected and did not come.
    bool verify();

    Frame& frame() { return m_frame; }
    LogWatch& log() { return m_log; }
    pendant::PluginLoader& loader() { return m_loader; }
    pendant::CallGuard& guard() { return m_guard; }
    pendant::PluginSession& session() { return m_session; }

private:
    Q_DISABLE_COPY(Pendant)

    /// The settings of its own folder, with a workspace in them, for as long as it lives.
    class Settings {
    public:
        Settings();
        ~Settings();
    };

    void reportSubscriptionsOf(const QString& plugin);

    WorkingFolder m_folder;
    Settings m_settings;
    LogWatch m_log;
    pendant::ThrownHandler m_thrownHandler;
    pendant::ProjectMirror m_projectMirror;
    pendant::FrameMirror m_frameMirror;
    pendant::StateMirror m_stateMirror;
    Frame m_frame;
    pendant::CallGuard m_guard;
    pendant::PluginLoader m_loader;
    pendant::PluginSession m_session;
    bool m_closed = false;
};

} // namespace pendanttest
