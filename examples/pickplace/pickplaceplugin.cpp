#include "pickplaceplugin.h"

#include "mover.h"
#include "pickplacepage.h"

KITE_PLUGIN(PickPlacePlugin, "pickplace");

namespace {

const QString keyPage = QStringLiteral("Pick and place");

} // namespace

PickPlacePlugin::PickPlacePlugin(QObject* parent) : PluginBase(parent) {
    setPluginLabel(tr("Pick and place"));
}

void PickPlacePlugin::init() {
    m_mover = new Mover(kitePluginName, this);
    m_page = new PickPlacePage(m_mover);
    kite::CreateCenterWidget(kitePluginName, m_page);
    makeKey();
    connect(m_mover, &Mover::stateChanged, this, &PickPlacePlugin::enableKey);
    connect(m_mover, &Mover::failed, this, &PickPlacePlugin::tell);
}

void PickPlacePlugin::makeKey() {
    const kite::PhysicalButton key{tr("Stop"), QStringLiteral("pickplace:stop.svg"),
                                   QStringLiteral("pickplace:stop-held.svg"), [this](bool held) {
                                       if (held)
                                           stop();
                                   }};
    kite::CreatePhyButtonList(kitePluginName, keyPage, {key}, {}, {tr("Move")});
    enableKey();
}

// While the robot moves, the key stays where it is, whichever page is shown: people look at the arm meanwhile.
void PickPlacePlugin::enableKey() {
    kite::ChangePhyButtonStatus(kitePluginName, keyPage, m_shown || m_mover->isMoving());
}

// On its page it stands anyway.
void PickPlacePlugin::tell(const QString& error) {
    if (!m_shown)
        kite::ThrowLog(kitePluginName, kite::ThrowWarning, error);
}

void PickPlacePlugin::stop() {
    m_page->say(m_mover->stop());
}

// The list of points may have changed while nobody looked.
void PickPlacePlugin::render() {
    m_shown = true;
    m_page->readAgain();
    enableKey();
}

void PickPlacePlugin::idle() {
    m_shown = false;
    enableKey();
}

// The key lives on in the pendant for a moment, and then nothing of ours could stop the robot any more.
void PickPlacePlugin::detach() {
    if (m_mover->isMoving())
        m_mover->stop();
    m_mover->disconnect(this);
    kite::ChangePhyButtonStatus(kitePluginName, keyPage, false);
}
