#include "statusitems.h"

#include "brisk/relay.h"
#include "helm/managerhelper.h"
#include "livevalue.h"
#include "project/projectkeys.h"
#include "state/statekeys.h"
#include "state/statelink.h"
#include "statusitem.h"
#include "statusroom.h"

#include <QEvent>

namespace pendant {

namespace {

const QString bus = QStringLiteral("bus");
const QString controller = QStringLiteral("controller");
const QString power = QStringLiteral("power");
const QString mode = QStringLiteral("mode");
const QString state = QStringLiteral("state");
const QString tool = QStringLiteral("tool");
const QString workObject = QStringLiteral("workobject");
const QString forced = QStringLiteral("forced");

} // namespace

StatusItems::StatusItems(tarp::StatusBar* bar, const Theme& theme) : QObject(bar), m_bar(bar), m_theme(theme) {
    for (const QString& name : {bus, controller, power, mode, state, forced, tool, workObject})
        add(name);
    // Whoever stands at the machine has to read these, however many items plugins bring.
    for (const QString& name : {bus, controller, forced})
        m_items[name]->setShownWhole(true);
    followLinks();
    follow(power, statekeys::power());
    follow(mode, statekeys::mode());
    follow(state, statekeys::robotState());
    follow(tool, projectkeys::tool());
    follow(workObject, projectkeys::workObject());
    connect(&m_forced, &ForcedCount::changed, this, &StatusItems::showForced);
    retranslate();
    bar->installEventFilter(this);
    new StatusRoom(bar, {m_items[power], m_items[mode], m_items[state], m_items[tool], m_items[workObject]},
                   m_items[state]);
}

void StatusItems::setTheme(const Theme& theme) {
    m_theme = theme;
    for (StatusItem* item : m_items)
        item->setTheme(theme);
}

bool StatusItems::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}

StatusItem* StatusItems::add(const QString& name) {
    auto* item = new StatusItem(name, m_theme, m_bar);
    m_bar->addItem(this, QStringLiteral("orca.body.statuspage.") + name, item);
    m_items.insert(name, item);
    return item;
}

void StatusItems::follow(const QString& name, const QString& key) {
    const auto take = [this, name](const QString& value) {
        m_values[name] = value;
        show(name);
    };
    new LiveValue(key, take, this);
}

void StatusItems::show(const QString& name) {
    if (name == power)
        showPower();
    else if (name == mode)
        showMode();
    else if (name == state)
        showRobotState();
    else
        showName(name, name == tool ? QStringLiteral("tool0") : QStringLiteral("wobj0"));
}

void StatusItems::followLinks() {
    helm::ControllerManager* manager = helm::ManagerHelper::instance()->controllerManager();
    connect(relay()->mobj()->c(QStringLiteral("connected"), true), &brisk::ModuleObject::changed, this,
            &StatusItems::showBus);
    statelink::follow(this, [this] { showRobot(); });
    connect(manager, &helm::ControllerManager::rcConnected, this, &StatusItems::showController);
    connect(manager, &helm::ControllerManager::rcDisconnected, this, &StatusItems::showController);
}

void StatusItems::retranslate() {
    m_items[bus]->setCaption(tr("Bus"));
    m_items[controller]->setCaption(tr("Controller"));
    m_items[power]->setCaption(tr("Drives"));
    m_items[mode]->setCaption(tr("Mode"));
    m_items[state]->setCaption(tr("Robot"));
    m_items[forced]->setCaption(tr("Forced", "signals"));
    m_items[tool]->setCaption(tr("Tool"));
    m_items[workObject]->setCaption(tr("Work object"));
    showBus();
    showController();
    showForced();
    for (const QString& name : {power, mode, state, tool, workObject})
        show(name);
}

void StatusItems::showRobot() {
    for (const QString& name : {power, mode, state})
        show(name);
}

// What was told last may be long gone.
QString StatusItems::toldOf(const QString& name) const {
    return statelink::isCurrent() ? m_values.value(name) : QString();
}

void StatusItems::showBus() {
    const brisk::ModuleObject* connected = relay()->mobj()->c(QStringLiteral("connected"));
    showLink(bus, connected && connected->getBool());
}

void StatusItems::showController() {
    showLink(controller, helm::ManagerHelper::instance()->controllerManager()->controllerConnected());
}

void StatusItems::showLink(const QString& name, bool up) {
    if (up)
        m_items[name]->setValue(tr("Online"), name, StatusItem::State::Good);
    else
        m_items[name]->setValue(tr("Offline"), QStringLiteral("link-down"), StatusItem::State::Error);
}

void StatusItems::showPower() {
    const QString value = toldOf(power);
    if (value == QLatin1String("on"))
        m_items[power]->setValue(tr("On", "drive power"), power, StatusItem::State::Good);
    else if (value == QLatin1String("off"))
        m_items[power]->setValue(tr("Off", "drive power"), power, StatusItem::State::Neutral);
    else
        m_items[power]->setValue(value.isEmpty() ? tr("Unknown") : value, power, StatusItem::State::Neutral);
}

void StatusItems::showMode() {
    const QString value = toldOf(mode);
    const QHash<QString, QString> words{{QString(), tr("Unknown")},
                                        {QStringLiteral("manual"), tr("Manual")},
                                        {QStringLiteral("auto"), tr("Automatic")}};
    m_items[mode]->setValue(words.value(value, value), mode, StatusItem::State::Neutral);
}

void StatusItems::showRobotState() {
    const QString value = toldOf(state);
    const QHash<QString, QString> words{{QString(), tr("Unknown")},
                                        {QStringLiteral("idle"), tr("Standing")},
                                        {QStringLiteral("off"), tr("Standing")},
                                        {QStringLiteral("moving"), tr("Moving")},
                                        {QStringLiteral("stopping"), tr("Stopping")},
                                        {QStringLiteral("error"), tr("Error")}};
    const bool isError = value == QLatin1String("error");
    const bool moves = value == QLatin1String("moving") || value == QLatin1String("stopping");
    const QString icon = isError ? QStringLiteral("error") : moves ? QStringLiteral("moving") : QStringLiteral("stop");
    m_items[state]->setValue(words.value(value, value), icon,
                             isError ? StatusItem::State::Error : StatusItem::State::Neutral);
}

// Whatever page is in front: a forced input hides what stands at the machine.
void StatusItems::showForced() {
    const int count = m_forced.count();
    m_items[forced]->setValue(QString::number(count), forced, StatusItem::State::Warning);
    m_items[forced]->setVisible(count > 0);
}

void StatusItems::showName(const QString& name, const QString& fallback) {
    const QString value = m_values.value(name);
    m_items[name]->setValue(value.isEmpty() ? fallback : value, name, StatusItem::State::Neutral);
}

} // namespace pendant
