#include "kite/pluginfunctions.h"

#include "kite/kitemodule.h"
#include "log/hostline.h"

#include "brisk/modulemanager.h"
#include "tarp/containers.h"

#include <QIcon>

namespace kite {

namespace {

const int emptyName = -1;
const int noModule = -2;

QString keyOf(const QString& pluginName) {
    return mName(QStringLiteral("brisk"), QStringLiteral("kite"), pluginName);
}

// A module of that key that is not a plugin's counts as none.
Kite* moduleOf(const QString& pluginName) {
    return dynamic_cast<Kite*>(bModule(keyOf(pluginName)));
}

int reportMissing(const QString& pluginName) {
    hostline::error(hostline::interfaceModule()) << keyOf(pluginName) << " unuseful";
    return noModule;
}

// What `call` says of the plugin's module, or why it was not called.
template <typename Call> int withModule(const QString& pluginName, Call call) {
    if (pluginName.isEmpty())
        return emptyName;
    Kite* module = moduleOf(pluginName);
    return module ? call(*module) : reportMissing(pluginName);
}

void closeSideBar() {
    if (tarp::ExpandSideBar* side = instantiatedRightExpandSideWidget())
        side->setVisible(false);
}

QList<helm::PhysicalButton> hostButtons(const QList<PhysicalButton>& buttons) {
    QList<helm::PhysicalButton> converted;
    converted.reserve(buttons.size());
    for (const PhysicalButton& button : buttons)
        converted.append({button.name, QIcon(button.firstIcon), QIcon(button.secondIcon), button.callback});
    return converted;
}

} // namespace

int ChangeFullScreen(const QString& pluginName, bool full) {
    return withModule(pluginName, [full](Kite& module) {
        module.changeFullScreen(full);
        return 0;
    });
}

int ChangeModelWindowStatus(const QString& pluginName, bool shown) {
    return withModule(pluginName, [shown](Kite& module) {
        module.changeModelWindowStatus(shown);
        return 0;
    });
}

int ChangePhyButtonStatus(const QString& pluginName, const QString& pageName, bool enable) {
    return withModule(pluginName, [&pageName, enable](Kite& module) {
        module.changePhyBtnStatus(pageName, enable);
        return 0;
    });
}

// Intended: unlike the others, an empty name is no failure here, and a missing module closes the side bar first.
// Plugins close the side bar with the empty name.
int SwitchRightExpandWidgte(const QString& pluginName, const QString& pageId) {
    Kite* module = pluginName.isEmpty() ? nullptr : moduleOf(pluginName);
    if (module) {
        module->switchRightExpandWidgte(pageId);
        return 0;
    }
    closeSideBar();
    return pluginName.isEmpty() ? 0 : reportMissing(pluginName);
}

// Intended, here and for the status bar: 1 is success and 0 a refusal, the other way round than everywhere else.
int CreateRightExpandWidgte(const QString& pluginName, QWidget* w, const QString& pageId) {
    return withModule(pluginName,
                      [w, &pageId](Kite& module) { return int(module.createRightExpandWidgte(w, pageId)); });
}

int CreateStatusBar(const QString& pluginName, QWidget* w, int index) {
    return withModule(pluginName, [w, index](Kite& module) { return int(module.createStatusBar(w, index)); });
}

int CreateCenterWidget(const QString& pluginName, QWidget* w) {
    return withModule(pluginName, [w](Kite& module) {
        module.createCenterWidgte(w);
        return 0;
    });
}

int ThrowLog(const QString& pluginName, kite::enThrowLogLevel level, const QString& message) {
    return withModule(pluginName, [level, &message](Kite& module) { return module.ThrowLog(level, message); });
}

int CreatePhyButtonList(const QString& pluginName, const QString& pageName, const QList<kite::PhysicalButton>& first,
                        const QList<kite::PhysicalButton>& second, QStringList names) {
    return withModule(pluginName, [&](Kite& module) {
        module.createPhyBtnPage(pageName, hostButtons(first), hostButtons(second), names);
        return 0;
    });
}

int GetPluginDataPath(QString& path, const QString& pluginName) {
    return withModule(pluginName, [&path, &pluginName](Kite&) {
        path = QStringLiteral("upgrade/plugins/client/%1/data/").arg(pluginName);
        return 0;
    });
}

int GetRightExpandSideBar(QWidget** out) {
    if (!out)
        return -1;
    *out = instantiatedRightExpandSideWidget();
    return 0;
}

} // namespace kite
