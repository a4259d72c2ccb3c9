#include "statusitems.h"

#include "brisk/relay.h"
#include "helm/managerhelper.h"
#include "livevalue.h"
#include "statusitem.h"

#include <QEvent>

namespace pendant {

namespace {

const QString bus = QStringLiteral("bus");
const QString controller = QStringLiteral("controller");
const QString power = QStringLiteral("power");
const QString mode = QStringLiteral("mode");
const QString tool = QStringLiteral("tool");
const QString workObject = QStringLiteral("workobject");

} // namespace

StatusItems::StatusItems(tarp::StatusBar* bar, const Theme& theme) : QObject(bar), m_bar(bar), m_theme(theme) {
    for (const QString& name : {bus, controller, power, mode, tool, workObject})
        add(name);
    // Whoever stands at the machine has to read these two, however many items plugins bring.
    for (const QString& name : {bus, controller})
        m_items[name]->setShownWhole(true);
    followLinks();
    follow(power, QStringLiteral("helm.r.power"));
    follow(mode, QStringLiteral("helm.r.mode"));
    follow(tool, QStringLiteral("orca.toolpage.tool"));
    follow(workObject, QStringLiteral("orca.toolpage.wobj"));
    retranslate();
    bar->installEventFilter(this);
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
    const auto show = [this, name](const QString& value) {
        m_values[name] = value;
        if (name == power)
            showPower();
        else if (name == mode)
            showText(name, tr("Unknown"));
        else
            showText(name, name == tool ? QStringLiteral("tool0") : QStringLiteral("wobj0"));
    };
    new LiveValue(key, show, this);
}

void StatusItems::followLinks() {
    helm::ControllerManager* manager = helm::ManagerHelper::instance()->controllerManager();
    connect(relay()->mobj()->c(QStringLiteral("connected"), true), &brisk::ModuleObject::changed, this,
            &StatusItems::showBus);
    connect(manager, &helm::ControllerManager::rcConnected, this, &StatusItems::showController);
    connect(manager, &helm::ControllerManager::rcDisconnected, this, &StatusItems::showController);
}

void StatusItems::retranslate() {
    m_items[bus]->setCaption(tr("Bus"));
    m_items[controller]->setCaption(tr("Controller"));
    m_items[power]->setCaption(tr("Drives"));
    m_items[mode]->setCaption(tr("Mode"));
    m_items[tool]->setCaption(tr("Tool"));
    m_items[workObject]->setCaption(tr("Work object"));
    showBus();
    showController();
    showPower();
    showText(mode, tr("Unknown"));
    showText(tool, QStringLiteral("tool0"));
    showText(workObject, QStringLiteral("wobj0"));
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
    const QString value = m_values.value(power);
    if (value == QLatin1String("on"))
        m_items[power]->setValue(tr("On", "drive power"), power, StatusItem::State::Good);
    else if (value == QLatin1String("off"))
        m_items[power]->setValue(tr("Off", "drive power"), power, StatusItem::State::Neutral);
    else
        m_items[power]->setValue(value.isEmpty() ? tr("Unknown") : value, power, StatusItem::State::Neutral);
}

void StatusItems::showText(const QString& name, const QString& fallback) {
    const QString value = m_values.value(name);
    m_items[name]->setValue(value.isEmpty() ? fallback : value, name, StatusItem::State::Neutral);
}

} // namespace pendant
