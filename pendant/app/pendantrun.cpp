#include "pendantrun.h"

#include "application.h"
#include "controller/cellfile.h"
#include "pages/programpage.h"
#include "pages/settingspage.h"
#include "pages/startpage.h"
#include "preferences.h"
#include "project/settings.h"
#include "project/workspace.h"
#include "state/statewriter.h"

#include <QDir>

#include <cstdio>

namespace pendant {

namespace {

Theme dressed(Application& application, const Options& options) {
    const Theme theme = Theme::named(options.theme.isEmpty() ? Preferences::theme() : options.theme);
    application.setLanguage(options.language.isEmpty() ? Preferences::language() : options.language);
    application.applyTheme(theme);
    return theme;
}

// The virtual controller answers on this machine; what a person has set stays.
void declareAddress() {
    const QString key = QStringLiteral("server.ip");
    if (settings::text(key).isEmpty())
        settings::setText(key, QStringLiteral("127.0.0.1"));
}

void warn(const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

PendantRun::PendantRun(Application& application, const Options& options)
    : m_application(application), m_options(options), m_theme(dressed(application, options)), m_error(prepare()),
      m_window(m_theme), m_pages(&m_window), m_dock(&m_window), m_session(&m_guard, &m_loader) {
    m_window.resize(options.size);
    followSettings();
    QObject::connect(&m_guard, &CallGuard::recorded, &m_window,
                     [this](const CallRecord& record) { m_application.restoreLook(record.plugin); });
}

PendantRun::~PendantRun() {
    close();
}

// Plugins ask for the version of the host before the links are up.
QString PendantRun::prepare() {
    controller::VirtualController* controller = m_embedded.controller();
    const QString cell = m_options.cellFile.isEmpty() ? controller::CellFile::defaultPath() : m_options.cellFile;
    QString error;
    if (!controller::CellFile::load(cell, controller, &error) ||
        !controller->keepValuesIn(QDir::current().filePath(QStringLiteral("controller.json")), &error))
        return error;
    Workspace::declare();
    declareAddress();
    const QString host = QStringLiteral("host.info");
    statewriter::write(host, controller->bus()->value(host).get(), nullptr);
    return QString();
}

void PendantRun::followSettings() {
    SettingsPage* settings = m_pages.settings();
    settings->setLanguage(m_application.language());
    QObject::connect(settings, &SettingsPage::themeChosen, &m_window, [this](const QString& name) {
        m_application.applyTheme(Theme::named(name));
        m_window.setTheme(Theme::named(name));
        m_application.redressWindows();
        Preferences::setTheme(name);
    });
    QObject::connect(settings, &SettingsPage::languageChosen, &m_window, [this](const QString& code) {
        m_application.setLanguage(code);
        Preferences::setLanguage(code);
    });
}

void PendantRun::start() {
    for (const QString& folder : m_options.pluginFolders)
        m_loader.loadFolder(folder);
    m_isRunning = true;
    m_window.show();
    m_session.start(m_window.center());
    m_pages.start()->follow(&m_session, &m_loader, m_options.pluginFolders);
    m_embedded.start();
}

// The links go down while the plugins are still there to hear of it.
void PendantRun::close() {
    if (!m_isRunning)
        return;
    m_isRunning = false;
    m_embedded.controllerLink()->setUp(false);
    m_embedded.bus()->setUp(false);
    closeProgram();
    m_session.stop();
    closeProject();
    m_pages.start()->follow(nullptr, nullptr, {});
}

// The widgets of instructions go before the plugins that brought them.
void PendantRun::closeProgram() {
    m_pages.program()->leave();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QString error;
    if (!m_pages.program()->store()->keepUnsaved(&error))
        warn(error);
}

// Past the links: one of them may be down.
void PendantRun::closeProject() {
    controller::BusTable* bus = m_embedded.controller()->bus();
    const std::unique_ptr<brisk::ModuleObject> unsent = m_projectMirror.unsent();
    if (unsent)
        bus->command(QStringLiteral("mirror.put"), brisk::standin::contentOf(unsent.get()));
    const controller::Content answer = bus->command(QStringLiteral("mirror.close"), nullptr);
    const brisk::ModuleObject* error = answer ? answer->c(QStringLiteral("error")) : nullptr;
    if (error)
        warn(error->getString());
}

} // namespace pendant
