#include "run.h"

#include "application.h"
#include "controller/cellfile.h"
#include "controller/embedded.h"
#include "developer/dockswitch.h"
#include "frame/keycolumn.h"
#include "frame/pendantwindow.h"
#include "helm/messagelist.h"
#include "pages/ownpages.h"
#include "pages/settingspage.h"
#include "pages/startpage.h"
#include "plugins/callguard.h"
#include "plugins/pluginloader.h"
#include "plugins/pluginsession.h"
#include "plugins/thrownhandler.h"
#include "preferences.h"
#include "project/framemirror.h"
#include "project/projectmirror.h"
#include "tour/tour.h"

#include <QDir>

#include <cstdio>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace pendant {

namespace {

Theme themeFor(const Options& options) {
    return Theme::named(options.theme.isEmpty() ? Preferences::theme() : options.theme);
}

void sayWhere() {
    const QString text = Application::tr("Working folder: %1").arg(QDir::currentPath());
    MessageList::instance()->add(MessageLevel::Information, QStringLiteral("pendant"), text);
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);
}

void connectSettings(Application& application, PendantWindow& window, SettingsPage* settings) {
    settings->setLanguage(application.language());
    QObject::connect(settings, &SettingsPage::themeChosen, &window, [&](const QString& name) {
        application.applyTheme(Theme::named(name));
        window.setTheme(Theme::named(name));
        application.redressWindows();
        Preferences::setTheme(name);
    });
    QObject::connect(settings, &SettingsPage::languageChosen, &application, [&](const QString& code) {
        application.setLanguage(code);
        Preferences::setLanguage(code);
    });
}

bool loadCell(const Options& options, controller::Embedded& embedded) {
    const QString path = options.cellFile.isEmpty() ? controller::CellFile::defaultPath() : options.cellFile;
    QString error;
    if (controller::CellFile::load(path, embedded.controller(), &error) &&
        embedded.controller()->keepValuesIn(QDir::current().filePath(QStringLiteral("controller.json")), &error))
        return true;
    std::fprintf(stderr, "%s\n", qPrintable(error));
    return false;
}

} // namespace

int run(Application& application, const Options& options) {
    const Theme theme = themeFor(options);
    application.setLanguage(options.language.isEmpty() ? Preferences::language() : options.language);
    application.applyTheme(theme);
    const ThrownHandler thrownHandler;
    // Goes when nobody can ask it any more.
    controller::Embedded embedded;
    if (!loadCell(options, embedded))
        return 2;
    sayWhere();
    // Before the plugins, so that they find the project in the tree when they hear that the links are up.
    const ProjectMirror projectMirror;
    const FrameMirror frameMirror;

    PendantWindow window(theme);
    window.resize(options.size);
    OwnPages pages(&window);
    connectSettings(application, window, pages.settings());
    DockSwitch dock(&window);

    CallGuard guard;
    PluginLoader loader;
    for (const QString& folder : options.pluginFolders)
        loader.loadFolder(folder);
    PluginSession session(&guard, &loader);
    QObject::connect(&guard, &CallGuard::recorded, &application,
                     [&](const CallRecord& record) { application.restoreLook(record.plugin); });
    window.show();
    session.start(window.center());
    pages.start()->follow(&session, &loader, options.pluginFolders);
    embedded.start();

    int status = 0;
    if (options.tourFolder.isEmpty()) {
        status = application.exec();
    } else {
        Tour tour({&window, window.center(), window.sideBar(),
                   [&](const QString& page) { return window.keys()->showPage(page); }, &dock, &loader, &session,
                   &guard},
                  options.tourFolder);
        status = tour.run();
    }
    // While the plugins are still there to hear of it.
    embedded.controllerLink()->setUp(false);
    embedded.bus()->setUp(false);
    session.stop();
    pages.start()->follow(nullptr, nullptr, {});
    return status;
}

} // namespace pendant
