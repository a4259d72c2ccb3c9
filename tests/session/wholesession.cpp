#include "wholesession.h"

#include "controller/robot/robot.h"

#include "briskx/navigationmodel.h"
#include "helm/messagelist.h"
#include "kite/interfacemanager.h"

#include <QJsonObject>
#include <QTest>

#include <cmath>

using helm::standin::Message;
using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace {

// No larger than the screen that tests have: a press beside it would not arrive.
const QSize windowSize(1280, 590);

pendant::Options optionsFor(const QString& pluginFolder) {
    pendant::Options options;
    options.pluginFolders = QStringList{pluginFolder};
    options.language = QStringLiteral("en");
    options.size = windowSize;
    return options;
}

} // namespace

WholeSession::WholeSession(pendant::Application& application, const QString& pluginFolder)
    : pendant(application, optionsFor(pluginFolder)) {
    QObject::connect(MessageList::instance(), &MessageList::added, &pendant.window(), [this](const Message& message) {
        if (message.level != MessageLevel::Information || message.source == "controller")
            log.take(message.source + ": " + message.text);
    });
}

void WholeSession::settle() {
    for (int i = 0; i < 4; ++i)
        QTest::qWait(1);
}

void WholeSession::step(qint64 ms) {
    pendant.embedded().controller()->clock()->step(ms);
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
}

void WholeSession::holdClock() {
    pendant.embedded().controller()->clock()->runByItself(false);
}

void WholeSession::setLinks(bool up) {
    pendant.embedded().bus()->setUp(up);
    pendant.embedded().controllerLink()->setUp(up);
    settle();
}

void WholeSession::show(const QString& page) {
    pendant.window().showPage(page);
    settle();
}

void WholeSession::open(const QString& plugin) {
    for (const pendant::PluginInfo& info : pendant.session().plugins()) {
        if (info.name == plugin)
            show(info.page);
    }
}

bool WholeSession::press(const QString& name) {
    auto* button = find<QAbstractButton>(name);
    if (!button || !button->isEnabled())
        return false;
    QTest::mouseClick(button, Qt::LeftButton);
    settle();
    return true;
}

QStringList WholeSession::rows(const QString& name) {
    QStringList rows;
    const auto* list = find<QAbstractItemView>(name);
    for (int row = 0; list && row < list->model()->rowCount(); ++row)
        rows << list->model()->index(row, 0).data().toString();
    return rows;
}

bool WholeSession::choose(const QString& name, const QString& row) {
    const int found = rows(name).indexOf(row);
    if (found < 0)
        return false;
    auto* list = find<QAbstractItemView>(name);
    const QModelIndex index = list->model()->index(found, 0);
    list->scrollTo(index);
    settle();
    // The window goes to where there is a screen, for only there scrolling lets a tap through.
    const QPoint point = list->visualRect(index).center();
    pendant.window().move(pendant.window().pos() + QPoint(100, 100) - list->viewport()->mapToGlobal(point));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, point);
    settle();
    return true;
}

QString WholeSession::text(const QString& name) {
    const auto* label = find<QLabel>(name);
    return label ? label->text() : QString();
}

void WholeSession::renew(const QString& key) {
    if (auto* held = find(m_heldKey))
        QTest::mouseRelease(held, Qt::LeftButton);
    m_heldKey = key;
    if (auto* next = find(m_heldKey))
        QTest::mousePress(next, Qt::LeftButton);
}

WholeSession::Place WholeSession::here() {
    const QJsonObject at = kite::kiteInterface()->getRelayData("robot.position", "cartesian.pose.frame.pos").toObject();
    return {at["x"].toDouble(), at["y"].toDouble(), at["z"].toDouble()};
}

WholeSession::Place WholeSession::placeOf(const QString& point) {
    return kite::kiteInterface()->getPointDataByName(point).mid(0, 3);
}

double WholeSession::distance(const Place& one, const Place& other) {
    double squares = 0;
    for (int i = 0; i < qMin(one.size(), other.size()); ++i)
        squares += (one.at(i) - other.at(i)) * (one.at(i) - other.at(i));
    return std::sqrt(squares);
}

bool WholeSession::isMoving() {
    return pendant.embedded().controller()->robot()->isMoving();
}

// With a bound: a robot that never comes to rest fails the test.
void WholeSession::untilItStands() {
    for (int i = 0; i < 1000 && isMoving(); ++i)
        step(controller::Clock::tickMs);
    QVERIFY(!isMoving());
    settle();
}

QStringList WholeSession::leftBehind() {
    QStringList left;
    for (const pendant::PluginInfo& plugin : pendant.session().plugins()) {
        for (const QString& key : kite::kiteInterface()->getConnectRelayKeyList(plugin.name))
            left << plugin.name + " is subscribed: " + key;
        if (pendant.session().module(plugin.name))
            left << plugin.name + " is alive";
    }
    for (const ot::gyre::standin::Group& group : ot::gyre::standin::NavigationModel::instance()->groups()) {
        for (const ot::gyre::standin::Entry& entry : group.entries) {
            if (group.path == "robot.pack")
                left << entry.title + " is in the navigation";
        }
    }
    return left;
}
