// What a plugin places in the host's containers.

#include "kite/kitemodule.h"

#include "brisk/modulemanager.h"
#include "briskx/physicalbuttons.h"
#include "tarp/containers.h"

#include <QPointer>

namespace kite {

namespace {

// The item of the status page before which plugins stand; spelt so by the host.
const char statusBarStretch[] = "orca.body.statuspage.wgtStrech2";

} // namespace

void Kite::createCenterWidgte(QWidget* w) {
    if (w && settingPage)
        settingPage->createCenterWidget(w);
}

bool Kite::changeFullScreen(bool full) {
    return settingPage && settingPage->changeFullWidget(full);
}

bool Kite::changePhyBtnStatus(const QString& pageName, bool enable) {
    enableRegisterPhysicalButtons(this, pageName, enable);
    return true;
}

bool Kite::createPhyBtnPage(const QString& pageName, const QList<helm::PhysicalButton>& first,
                            const QList<helm::PhysicalButton>& second, QStringList names) {
    registerPhysicalButtons(this, pageName, first, second, names);
    return true;
}

bool Kite::createStatusBar(QWidget* w, int index) {
    if (!w)
        return false;
    tarp::StatusBar* bar = instantiatedStatusBar(this);
    return bar && bar->addBeforeItem(this, mName(name(), storedName, QString::number(index)),
                                     QLatin1String(statusBarStretch), w);
}

QString Kite::sideBarKey(const QString& pageId) const {
    return mName(name(), storedName, pageId.isEmpty() ? storedName : pageId);
}

bool Kite::createRightExpandWidgte(QWidget* w, const QString& pageId) {
    if (!w)
        return false;
    tarp::ExpandSideBar* side = instantiatedRightExpandSideWidget(this);
    return side && side->addPage(this, sideBarKey(pageId), w);
}

void Kite::switchRightExpandWidgte(const QString& pageId) {
    // What its pages and listeners do meanwhile may delete it.
    const QPointer<tarp::ExpandSideBar> side(instantiatedRightExpandSideWidget(this));
    if (!side || !side->switchTo(this, sideBarKey(pageId)) || !side || side->isVisible())
        return;
    side->setVisible(true);
    if (side)
        side->update();
}

} // namespace kite
