#include "pendanttest/pendant.h"

#include "plugins/report.h"
#include "plugins/thrown.h"
#include "project/settings.h"
#include "project/workspace.h"

#include "brisk/modulemanager.h"
#include "briskx/buttonpages.h"
#include "briskx/navigationmodel.h"
#include "helm/settingsfile.h"
#include "kite/interfacemanager.h"
#include "kite/pluginregister.h"

#include <QApplication>
#include <QDir>
#include <QTest>

using helm::standin::Message;
using helm::standin::MessageList;
using ot::gyre::standin::ButtonPage;
using ot::gyre::standin::ButtonPages;
using ot::gyre::standin::Entry;
using ot::gyre::standin::Group;
using ot::gyre::standin::NavigationModel;

namespace pendanttest {

namespace {

bool isNamed(const QAbstractButton* button, const QString& nameOrText) {
    return button->objectName() == nameOrText || button->text().remove(QLatin1Char('&')) == nameOrText;
}

QAbstractButton* buttonIn(const QWidget* place, const QString& nameOrText) {
    for (QAbstractButton* button : place->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && isNamed(button, nameOrText))
            return button;
    }
    return nullptr;
}

const helm::PhysicalButton* keyOf(const ButtonPage& page, const QString& name) {
    for (const QList<helm::PhysicalButton>* keys : {&page.first, &page.second}) {
        for (const helm::PhysicalButton& key : *keys) {
            if (key.name == name)
                return &key;
        }
    }
    return nullptr;
}

} // namespace

Pendant::Settings::Settings() {
    const QString folder = QDir::currentPath();
    helm::standin::readSettingsFrom(folder + QStringLiteral("/settings.ini"));
    // A call that deletes ".." of a project's folder still deletes nothing outside.
    pendant::settings::setText(QStringLiteral("workspace"), folder + QStringLiteral("/one/two/workspace"));
    if (pendant::Workspace::path() != folder + QStringLiteral("/one/two/workspace"))
        qFatal("The host does not read the settings of this pendant.");
}

Pendant::Settings::~Settings() {
    helm::standin::readSettingsFrom(QString());
}

// What the controller refuses shows in the message list alone.
Pendant::Pendant() : m_session(&m_guard, &m_loader) {
    QObject::connect(MessageList::instance(), &MessageList::added, &m_frame, [this](const Message& message) {
        if (message.source == QLatin1String("controller"))
            m_log.take(message.text);
    });
}

Pendant::~Pendant() {
    close();
    resetHost();
}

bool Pendant::load(const QString& path) {
    m_loader.loadFile(path);
    return !m_loader.files().isEmpty() && m_loader.files().last().error.isEmpty();
}

void Pendant::add(const QString& name, std::function<kite::PluginBase*(QObject*)> creator) {
    kiteFactory()->regist(name, std::move(creator));
}

void Pendant::start() {
    m_session.start(m_frame.center());
}

void Pendant::close() {
    if (m_closed)
        return;
    m_closed = true;
    const QList<pendant::PluginInfo> plugins = m_session.plugins();
    m_session.stop();
    m_projectMirror.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const pendant::PluginInfo& plugin : plugins)
        reportSubscriptionsOf(plugin.name);
    m_log.verify();
}

// Nobody ends them for a plugin that is gone: their callbacks reach into freed memory.
void Pendant::reportSubscriptionsOf(const QString& plugin) {
    for (const QString& key : kite::kiteInterface()->getConnectRelayKeyList(plugin))
        m_log.take(QStringLiteral("The plugin \"%1\" has left its subscription \"%2\" behind.").arg(plugin, key));
}

bool Pendant::open(const QString& plugin) {
    for (const pendant::PluginInfo& info : m_session.plugins()) {
        if (info.name == plugin && !info.page.isEmpty())
            return m_frame.center()->switchTo(nullptr, info.page);
    }
    return false;
}

void Pendant::leave() {
    m_frame.center()->switchTo(nullptr, QLatin1String(Frame::startPage));
}

QWidget* Pendant::page(const QString& plugin) const {
    for (const pendant::PluginInfo& info : m_session.plugins()) {
        if (info.name == plugin)
            return m_frame.center()->page(info.page);
    }
    return nullptr;
}

QStringList Pendant::navigation() const {
    QStringList titles;
    for (const Group& group : NavigationModel::instance()->groups()) {
        for (const Entry& entry : group.entries)
            titles.append(entry.title);
    }
    return titles;
}

QWidget* Pendant::statusItem(const QString& plugin, int index) const {
    return m_frame.statusBar()->item(mName(QStringLiteral("kite"), plugin, QString::number(index)));
}

QWidget* Pendant::sideBarPage(const QString& plugin, const QString& id) const {
    return m_frame.sideBar()->page(mName(QStringLiteral("kite"), plugin, id.isEmpty() ? plugin : id));
}

QAbstractButton* Pendant::findButton(const QString& nameOrText) const {
    for (const QWidget* window : fullScreenWindows()) {
        if (QAbstractButton* button = buttonIn(window, nameOrText))
            return button;
    }
    return buttonIn(&m_frame, nameOrText);
}

bool Pendant::press(const QString& nameOrText) {
    QAbstractButton* button = findButton(nameOrText);
    if (!button || !button->isEnabled())
        return false;
    const QString thrown = pendant::thrownBy([button] { QTest::mouseClick(button, Qt::LeftButton); });
    if (!thrown.isEmpty())
        pendant::reportError(QStringLiteral("pendant"),
                             QStringLiteral("The button \"%1\" threw: %2").arg(nameOrText, thrown));
    return true;
}

bool Pendant::holdKey(const QString& page, const QString& key, bool held) {
    for (const ButtonPage& candidate : ButtonPages::instance()->pages()) {
        if (candidate.name != page || !candidate.enabled)
            continue;
        const helm::PhysicalButton* button = keyOf(candidate, key);
        if (!button || !button->callback)
            return false;
        // A copy: the key may register its page anew.
        const auto callback = button->callback;
        callback(held);
        return true;
    }
    return false;
}

QList<QWidget*> Pendant::fullScreenWindows() const {
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool onTop = window->windowFlags() & Qt::WindowStaysOnTopHint;
        if (window->isVisible() && onTop && window->windowType() == Qt::Tool)
            windows.append(window);
    }
    return windows;
}

QPixmap Pendant::grab() {
    return m_frame.grab();
}

QList<Message> Pendant::messages() const {
    return MessageList::instance()->messages();
}

QString Pendant::workspace() const {
    return pendant::Workspace::path();
}

QStringList Pendant::logLines() const {
    return m_folder.logLines();
}

QStringList Pendant::calls(const QString& plugin) const {
    QStringList names;
    for (const pendant::CallRecord& record : m_guard.records()) {
        if (record.plugin == plugin)
            names.append(record.call);
    }
    return names;
}

void Pendant::expectError(const QString& part) {
    m_log.expect(part);
}

bool Pendant::verify() {
    return m_log.verify();
}

} // namespace pendanttest
