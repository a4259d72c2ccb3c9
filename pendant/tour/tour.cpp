#include "tour.h"

#include "developer/developerdock.h"
#include "developer/dockswitch.h"
#include "frame/pagekeys.h"
#include "linkwait.h"
#include "plugins/report.h"
#include "press.h"
#include "programtour.h"
#include "tourbuttons.h"
#include "tourname.h"

#include "briskx/buttonpages.h"
#include "briskx/navigationmodel.h"
#include "helm/messagelist.h"

#include <QSaveFile>

#include <cstdio>

using ot::gyre::standin::ButtonPage;
using ot::gyre::standin::ButtonPages;
using ot::gyre::standin::Entry;
using ot::gyre::standin::Group;
using ot::gyre::standin::NavigationModel;

namespace pendant {

namespace {

const QLatin1String transcriptName("tour.md");
const int linkTimeoutMs = 2000;

QString nameOf(const QAbstractButton* button) {
    const QString text = button->text().remove(QLatin1Char('&'));
    return text.isEmpty() ? button->objectName() : text;
}

} // namespace

Tour::Tour(const TourStage& stage, const QString& folder) : m_stage(stage), m_folder(folder) {}

int Tour::run() {
    m_folder.mkpath(QStringLiteral("."));
    clearFolder();
    // From the start, so that it has something to show.
    m_stage.dock->watch();
    waitForLinks(linkTimeoutMs);
    settle();
    step(tr("The pendant has started."), QStringLiteral("start"), QString(), m_stage.window->grab());
    walkPages();
    walkProgram();
    walkSideBar();
    walkButtonPages();
    walkDock();
    m_stage.session->stop();
    settle();
    note(tr("The plugins have been stopped."));
    return m_transcript.failures().isEmpty() && m_written ? 0 : 1;
}

void Tour::collectFailures() {
    for (const QString& error : reportedErrors())
        m_transcript.addFailure(error);
}

// Only what a tour writes: the folder may hold other things.
void Tour::clearFolder() {
    for (const QString& name : m_folder.entryList({QStringLiteral("[0-9][0-9]-*.png")}, QDir::Files))
        m_folder.remove(name);
}

void Tour::walkPages() {
    QStringList walked;
    for (const Group& group : NavigationModel::instance()->groups()) {
        for (const Entry& entry : group.entries) {
            showPage(entry.nav, entry.title);
            walked.append(entry.nav);
        }
    }
    for (const QString& key : m_stage.center->keys()) {
        if (!walked.contains(key))
            showPage(key, key);
    }
}

void Tour::showPage(const QString& key, const QString& title) {
    const QString plugin = pluginOf(m_stage.center->owner(key));
    if (!m_stage.center->switchTo(nullptr, key))
        return note(tr("The entry \"%1\" of the navigation has no page (%2).").arg(title, key));
    settle();
    const QString subject = plugin.isEmpty() ? title : plugin;
    step(plugin.isEmpty() ? tr("Page \"%1\".").arg(title) : tr("Page \"%1\" of %2.").arg(title, plugin),
         QStringLiteral("page"), subject, m_stage.window->grab());
    if (!plugin.isEmpty() && m_stage.center->page(key))
        pressButtons(subject, m_stage.center->page(key));
}

void Tour::pressButtons(const QString& subject, const QWidget* page) {
    const auto buttons = tourButtons(page);
    for (const QPointer<QAbstractButton>& button : buttons) {
        if (button && button->isEnabled())
            pressButton(subject, button);
    }
}

void Tour::pressButton(const QString& subject, const QPointer<QAbstractButton>& button) {
    const QString name = nameOf(button);
    const QString pictured =
        subject + QLatin1Char(' ') + (button->objectName().isEmpty() ? name : button->objectName());
    const QString pressed = tr("Pressed \"%1\" on the page of %2.").arg(name, subject);
    const Appeared appeared = press(button);
    for (const QPixmap& picture : appeared.closed)
        step(pressed, QStringLiteral("window"), pictured, picture);
    for (const QPointer<QWidget>& window : appeared.windows) {
        if (window)
            step(pressed, QStringLiteral("window"), pictured, window->grab());
    }
    if (!appeared.closed.isEmpty())
        return;
    if (appeared.windows.isEmpty())
        step(pressed, QStringLiteral("press"), pictured, m_stage.window->grab());
    if (!pressBack(button, appeared.windows))
        m_transcript.addFailure(
            tr("%1: what \"%2\" opened did not go away when it was pressed again.").arg(subject, name));
}

void Tour::walkProgram() {
    ProgramTour tour(m_stage.program);
    if (tour.types().isEmpty() || !m_stage.center->switchTo(nullptr, pagekeys::program()))
        return;
    settle();
    tour.walk([this](const QString& text, const QString& subject) {
        step(text, QStringLiteral("program"), subject, m_stage.window->grab());
    });
}

void Tour::walkSideBar() {
    const bool wasOpen = m_stage.sideBar->isVisible();
    for (const QString& key : m_stage.sideBar->keys()) {
        const QString plugin = pluginOf(m_stage.sideBar->owner(key));
        if (plugin.isEmpty() || !m_stage.sideBar->switchTo(nullptr, key))
            continue;
        m_stage.sideBar->setVisible(true);
        settle();
        const QWidget* page = m_stage.sideBar->page(key);
        const QString title = page ? page->windowTitle() : QString();
        // "kite.weld.procedures" -> "procedures"
        const QString id = key.section(QLatin1Char('.'), -1);
        step(tr("Side-bar page \"%1\" of %2.").arg(title.isEmpty() ? id : title, plugin), QStringLiteral("sidebar"),
             plugin + QLatin1Char(' ') + id, m_stage.window->grab());
    }
    m_stage.sideBar->setVisible(wasOpen);
    settle();
}

void Tour::walkButtonPages() {
    const QList<ButtonPage> pages = ButtonPages::instance()->pages();
    for (const ButtonPage& page : pages) {
        if (!page.enabled || !m_stage.showButtonPage || !m_stage.showButtonPage(page.name)) {
            note(tr("The physical keys \"%1\" of %2 are disabled now.").arg(page.name, page.source));
            continue;
        }
        settle();
        step(tr("Physical keys \"%1\" of %2.").arg(page.name, page.source), QStringLiteral("keys"),
             page.source + QLatin1Char(' ') + page.name, m_stage.window->grab());
    }
}

QString Tour::pluginOf(const QObject* module) const {
    for (const PluginInfo& plugin : m_stage.session->plugins()) {
        if (module && m_stage.session->module(plugin.name) == module)
            return plugin.name;
    }
    return QString();
}

void Tour::walkDock() {
    m_stage.dock->open();
    DeveloperDock* dock = m_stage.dock->dock();
    dock->resize(DeveloperDock::wantedSize());
    const QStringList names = DeveloperDock::tabNames();
    for (int tab = 0; tab < names.size(); ++tab) {
        dock->showTab(tab);
        settle();
        step(tr("Developer dock, tab \"%1\".").arg(dock->tabTitle(tab)), QStringLiteral("developer"), names.at(tab),
             dock->grab());
    }
    m_stage.dock->close();
}

void Tour::step(const QString& text, const QString& kind, const QString& subject, const QPixmap& picture) {
    const QString name = pictureName(++m_pictures, kind, subject);
    const bool saved = picture.save(m_folder.filePath(name));
    if (!saved) {
        m_written = false;
        std::fprintf(stderr, "%s\n", qPrintable(tr("Cannot write %1.").arg(m_folder.filePath(name))));
    }
    m_transcript.addStep(text, saved ? name : QString());
    m_written = write() && m_written;
}

void Tour::note(const QString& text) {
    m_transcript.addStep(text);
    m_written = write() && m_written;
}

// After every step, so that there is a transcript also of a tour that a plugin ends by a crash.
bool Tour::write() {
    collectFailures();
    QSaveFile file(m_folder.filePath(transcriptName));
    const QByteArray text =
        m_transcript
            .toMarkdown(m_stage.loader->files(), m_stage.session->plugins(), m_stage.guard->records(),
                        helm::standin::MessageList::instance()->messages())
            .toUtf8();
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return true;
    std::fprintf(stderr, "%s\n",
                 qPrintable(tr("Cannot write %1: %2").arg(m_folder.filePath(transcriptName), file.errorString())));
    return false;
}

} // namespace pendant
