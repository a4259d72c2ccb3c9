#pragma once

#include "controller/embedded.h"
#include "developer/dockswitch.h"
#include "frame/pendantwindow.h"
#include "options.h"
#include "pages/ownpages.h"
#include "plugins/callguard.h"
#include "plugins/pluginloader.h"
#include "plugins/pluginsession.h"
#include "plugins/thrownhandler.h"
#include "project/framemirror.h"
#include "project/projectmirror.h"
#include "state/statemirror.h"

#include <QString>

namespace pendant {

class Application;

/// A run of the pendant: its window with all pages, the controller in its process, and the plugins of a command line.
/// It works in the current folder. One at a time; several may follow each other in a process, but a shared object
/// brings its plugins to the first alone.
class PendantRun {
public:
    /// \param application must outlive it
    PendantRun(Application& application, const Options& options);
    /// Closes it.
    ~PendantRun();

    /// Why it cannot be started, a sentence; empty when it can.
    const QString& error() const { return m_error; }
    /// Shows the window and starts the plugins; the links come up soon after. To be called when there is no error.
    void start();
    /// Takes the links down, keeps program and project, and stops the plugins. Once; a run that was not started has
    /// nothing to close.
    void close();

    PendantWindow& window() { return m_window; }
    OwnPages& pages() { return m_pages; }
    DockSwitch& dock() { return m_dock; }
    controller::Embedded& embedded() { return m_embedded; }
    CallGuard& guard() { return m_guard; }
    PluginLoader& loader() { return m_loader; }
    PluginSession& session() { return m_session; }

private:
    Q_DISABLE_COPY(PendantRun)

    QString prepare();
    void followSettings();
    void closeProgram();
    void closeProject();

    Application& m_application;
    const Options m_options;
    const Theme m_theme; // the application speaks and looks as it should from here on
    const ThrownHandler m_thrownHandler;
    controller::Embedded m_embedded; // goes when nobody can ask it any more
    const QString m_error;
    // Before the plugins, so that they find project and state in the tree when they hear that the links are up.
    ProjectMirror m_projectMirror;
    const FrameMirror m_frameMirror;
    const StateMirror m_stateMirror;
    PendantWindow m_window;
    OwnPages m_pages;
    DockSwitch m_dock;
    CallGuard m_guard;
    PluginLoader m_loader;
    PluginSession m_session;
    bool m_isRunning = false;
};

} // namespace pendant
