#include "ownpages.h"

#include "briskx/navigation.h"
#include "briskx/navigationmodel.h"
#include "frame/pagekeys.h"
#include "frame/pendantwindow.h"
#include "iopage.h"
#include "jogpage.h"
#include "logpage.h"
#include "messagespage.h"
#include "pointspage.h"
#include "programpage.h"
#include "projectspage.h"
#include "robotpage.h"
#include "settingspage.h"
#include "startpage.h"
#include "variablespage.h"

#include <QEvent>

using ot::gyre::standin::NavigationModel;

namespace pendant {

namespace {

const QString ownGroup = QStringLiteral("orca.pendant");

} // namespace

OwnPages::OwnPages(PendantWindow* window)
    : QObject(window), m_window(window), m_start(new StartPage(window->theme())),
      m_program(new ProgramPage(window->theme())), m_settings(new SettingsPage(window->theme())) {
    add(pagekeys::start(), QStringLiteral("start"), m_start);
    add(pagekeys::jog(), QStringLiteral("jog"), new JogPage(window->theme()));
    add(pagekeys::robot(), QStringLiteral("robot"), new RobotPage(window->theme()));
    add(pagekeys::projects(), QStringLiteral("folder"), new ProjectsPage(window->theme()));
    add(pagekeys::program(), QStringLiteral("program"), m_program);
    add(pagekeys::variables(), QStringLiteral("variables"), new VariablesPage(window->theme()));
    add(pagekeys::points(), QStringLiteral("points"), new PointsPage(window->theme()));
    add(pagekeys::io(), QStringLiteral("io"), new IoPage(window->theme()));
    add(pagekeys::messages(), QStringLiteral("messages"), new MessagesPage(window->theme()));
    add(pagekeys::log(), QStringLiteral("logfile"), new LogPage(QStringLiteral("log"), window->theme()));
    add(pagekeys::settings(), QStringLiteral("settings"), m_settings);
    connect(m_start, &StartPage::openPressed, window, &PendantWindow::showPage);
    window->installEventFilter(this);
    retranslate();
    window->showPage(pagekeys::start());
}

bool OwnPages::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}

void OwnPages::add(const QString& key, const QString& icon, Page* page) {
    m_window->center()->addPage(m_window, key, page);
    connect(m_window, &PendantWindow::themeChanged, page, &Page::setTheme);
    brisk::ModuleObject* entry = ot::gyre::registerPage(nullptr, QString(), ownGroup, icon, -1);
    entry->set(nullptr, QStringLiteral("nav"), key);
    m_entries.append(entry);
}

void OwnPages::retranslate() {
    m_builtIns.retranslate();
    NavigationModel::instance()->declareGroup(ownGroup, tr("Pendant"), QStringLiteral("settings"));
    NavigationModel::instance()->declareGroup(QStringLiteral("robot.pack"), tr("Plugins"), QStringLiteral("plugin"));
    const QStringList titles{tr("Start"),    tr("Jog"),       tr("Robot"),   tr("Projects"),
                             tr("Program"),  tr("Variables"), tr("Points"),  tr("Signals"),
                             tr("Messages"), tr("Log"),       tr("Settings")};
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i))
            m_entries.at(i)->set(this, QStringLiteral("title"), titles.at(i));
    }
}

} // namespace pendant
