#include "weldplugin.h"

#include "logmodule.h"
#include "procedure.h"
#include "procedurepage.h"
#include "statusitem.h"
#include "weldpage.h"
#include "wireandgas.h"
#include "wirechange.h"

KITE_PLUGIN(WeldPlugin, "weld");

namespace {

const QString proceduresPage = QStringLiteral("procedures");
const QString wirePage = QStringLiteral("wire");
const QString buttonPage = QStringLiteral("Wire and gas");

// Resources of the plugin open under its own name.
kite::PhysicalButton makeButton(const QString& name, const QString& up, const QString& held,
                                std::function<void(bool)> callback) {
    return {name, QStringLiteral("weld:") + up, QStringLiteral("weld:") + held, std::move(callback)};
}

} // namespace

WeldPlugin::WeldPlugin(QObject* parent)
    : PluginBase(parent), m_store(new ProcedureStore(this)), m_wireAndGas(new WireAndGas(this)) {
    setPluginLabel(tr("Weld"));
}

void WeldPlugin::init() {
    makePage();
    makeSideBar();
    makeButtons();
    kite::CreateStatusBar(kitePluginName, new StatusItem(m_store), 0);
}

void WeldPlugin::render() {
    kite::ChangePhyButtonStatus(kitePluginName, buttonPage, true);
}

// Wire must not run on while nobody looks at the page.
void WeldPlugin::idle() {
    if (m_wireAndGas->motion() != WireAndGas::Still)
        kite::ErrorLine(logModule) << "The page was left while the wire was moving: stopped";
    m_wireAndGas->feed(WireAndGas::Still);
    m_wireAndGas->openGas(false);
}

// Status bar, side bar and physical buttons live on in the pendant for a moment: nothing of ours may run in them.
void WeldPlugin::detach() {
    idle();
    kite::ChangePhyButtonStatus(kitePluginName, buttonPage, false);
}

void WeldPlugin::makePage() {
    m_page = new WeldPage(m_store);
    kite::CreateCenterWidget(kitePluginName, m_page);
    connect(m_page, &WeldPage::fullScreenPressed, this, &WeldPlugin::toggleFullScreen);
    connect(m_page, &WeldPage::wireChangePressed, this, &WeldPlugin::changeWire);
    connect(m_page, &WeldPage::proceduresPressed, this,
            [] { kite::SwitchRightExpandWidgte(kitePluginName, proceduresPage); });
}

void WeldPlugin::makeSideBar() {
    kite::CreateRightExpandWidgte(kitePluginName, new ProcedurePage(m_store), proceduresPage);
    kite::CreateRightExpandWidgte(kitePluginName, new WireAndGasPage(m_wireAndGas), wirePage);
}

void WeldPlugin::makeButtons() {
    const auto feed = [this](WireAndGas::Motion motion) {
        return [this, motion](bool held) { m_wireAndGas->feed(held ? motion : WireAndGas::Still); };
    };
    const auto gas = [this](bool held) { m_wireAndGas->openGas(held); };
    const QString moving = QStringLiteral("wire-moving.svg");
    const QString flowing = QStringLiteral("gas-flowing.svg");
    kite::CreatePhyButtonList(
        kitePluginName, buttonPage,
        {makeButton(tr("Forward"), QStringLiteral("wire-forward.svg"), moving, feed(WireAndGas::Forward)),
         makeButton(tr("Gas"), QStringLiteral("gas.svg"), flowing, gas)},
        {makeButton(tr("Back"), QStringLiteral("wire-back.svg"), moving, feed(WireAndGas::Back)),
         makeButton(tr("Purge"), QStringLiteral("purge.svg"), flowing, gas)},
        {tr("Wire"), tr("Gas")});
}

void WeldPlugin::toggleFullScreen() {
    m_full = !m_full;
    kite::ChangeFullScreen(kitePluginName, m_full);
    m_page->showFullScreenState(m_full);
}

void WeldPlugin::changeWire() {
    auto* window = new WireChange(m_page);
    kite::ChangeModelWindowStatus(kitePluginName, true);
    connect(window, &QDialog::finished, this, [] { kite::ChangeModelWindowStatus(kitePluginName, false); });
    connect(window, &QDialog::accepted, this, [] {
        kite::ThrowLog(kitePluginName, kite::ThrowInformation, tr("The wire has been changed."));
        kite::InformationLine(logModule) << "Wire changed";
    });
    window->open();
}
