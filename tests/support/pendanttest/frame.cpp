#include "pendanttest/frame.h"

#include "brisk/modulemanager.h"
#include "briskx/buttonpages.h"
#include "helm/messagelist.h"
#include "helm/vexmanager.h"
#include "tarp/factory.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace pendanttest {

namespace {

const QSize windowSize(1280, 800);

// The item before which plugins stand; the pendant spells it so.
const char statusBarStretch[] = "orca.body.statuspage.wgtStrech2";

} // namespace

const char Frame::startPage[] = "start";

Frame::Frame()
    : m_statusBar(new tarp::StatusBar), m_center(new tarp::CenterWidget), m_sideBar(new tarp::ExpandSideBar) {
    auto* body = new QHBoxLayout;
    body->addWidget(m_center, 1);
    body->addWidget(m_sideBar);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_statusBar);
    layout->addLayout(body, 1);

    m_statusBar->addItem(nullptr, QLatin1String(statusBarStretch), new QWidget, /*stretch*/ 1);
    m_center->addPage(nullptr, QLatin1String(startPage), new QWidget);
    m_center->switchTo(nullptr, QLatin1String(startPage));
    resize(windowSize);
    show();
}

void resetHost() {
    helm::standin::MessageList::instance()->clear();
    ot::gyre::standin::ButtonPages::instance()->clear();
    for (const char* key : {"gyre.page", "brisk.kite", "helm.msg._", "orca.project", "orca.toolpage"})
        m(QLatin1String(key))->clear(nullptr, /*notify*/ false, /*own*/ true);
    bfactory()->creators.clear();
    bfactory()->node->clear(nullptr, /*notify*/ false, /*own*/ true);
    brisk::pluginManager()->plugins.clear();
    brisk::pluginManager()->node->clear(nullptr, /*notify*/ false, /*own*/ true);
    *helm::VexManager::getVexManager() = helm::VexManager();
}

} // namespace pendanttest
