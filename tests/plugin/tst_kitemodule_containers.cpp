#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "briskx/buttonpages.h"
#include "kite/kitemodule.h"

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using kite::Kite;
using ot::gyre::standin::ButtonPage;
using ot::gyre::standin::ButtonPages;

class TestContainers : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log.reset(new pendanttest::LogWatch);
        m_frame.reset(new pendanttest::Frame);
        m_module.reset(new Kite("weld", nullptr));
        m_module->setup();
    }

    void cleanup() {
        m_module.reset();
        m_frame.reset();
        pendanttest::resetHost();
        m_log.reset();
    }

    void aStatusItemStandsBeforeTheStretch() {
        const QPointer<QLabel> item(new QLabel("gas"));
        QVERIFY(m_module->createStatusBar(item, 0));
        QCOMPARE(m_frame->statusBar()->keys(), QStringList({"kite.weld.0", "orca.body.statuspage.wgtStrech2"}));
        QCOMPARE(m_frame->statusBar()->item("kite.weld.0"), item.data());
        QCOMPARE(item->parentWidget(), m_frame->statusBar());
    }

    void twoIndexesAreTwoItems() {
        QVERIFY(m_module->createStatusBar(new QLabel, 0));
        QVERIFY(m_module->createStatusBar(new QLabel, 1));
        QVERIFY(m_frame->statusBar()->item("kite.weld.0") != m_frame->statusBar()->item("kite.weld.1"));
        QVERIFY(m_frame->statusBar()->item("kite.weld.1"));
    }

    void anIndexInUseIsRefusedAndTheWidgetStaysTheCallers() {
        QVERIFY(m_module->createStatusBar(new QLabel, 0));
        QLabel second;
        QVERIFY(!m_module->createStatusBar(&second, 0));
        QCOMPARE(second.parent(), static_cast<QObject*>(nullptr));
    }

    void twoPluginsMayUseTheSameIndex() {
        Kite paint("paint", nullptr);
        QVERIFY(m_module->createStatusBar(new QLabel, 0));
        QVERIFY(paint.createStatusBar(new QLabel, 0));
    }

    void aNullStatusItemIsRefusedWithoutAWord() {
        QVERIFY(!m_module->createStatusBar(nullptr, 0));
        QVERIFY(!m_frame->statusBar()->keys().contains("kite.weld.0"));
        QVERIFY(m_log->lines().isEmpty());
    }

    void withoutTheStretchAStatusItemIsRefused() {
        const tarp::StatusBar bare;
        QLabel item;
        QVERIFY(!m_module->createStatusBar(&item, 0));
        QCOMPARE(item.parent(), static_cast<QObject*>(nullptr));
    }

    void aSideBarPageIsAddedUnderItsId() {
        const QPointer<QLabel> page(new QLabel);
        QVERIFY(m_module->createRightExpandWidgte(page, "procedures"));
        QCOMPARE(m_frame->sideBar()->page("kite.weld.procedures"), page.data());
        QCOMPARE(m_frame->sideBar()->owner("kite.weld.procedures"), m_module.get());
        QVERIFY(!m_frame->sideBar()->isVisible());
    }

    void anEmptyIdStandsForThePluginsName() {
        QVERIFY(m_module->createRightExpandWidgte(new QLabel, QString()));
        QCOMPARE(m_frame->sideBar()->keys(), QStringList("kite.weld.weld"));
        QLabel same;
        QVERIFY(!m_module->createRightExpandWidgte(&same, "weld"));
        QVERIFY(!m_module->createRightExpandWidgte(&same, ""));
    }

    void anIdInUseIsRefusedAndTheWidgetStaysTheCallers() {
        QVERIFY(m_module->createRightExpandWidgte(new QLabel, "procedures"));
        QLabel second;
        QVERIFY(!m_module->createRightExpandWidgte(&second, "procedures"));
        QCOMPARE(second.parent(), static_cast<QObject*>(nullptr));
    }

    void aNullSideBarPageIsRefusedWithoutAWord() {
        QVERIFY(!m_module->createRightExpandWidgte(nullptr, "procedures"));
        QCOMPARE(m_frame->sideBar()->keys(), QStringList());
        QVERIFY(m_log->lines().isEmpty());
    }

    void switchingShowsTheSideBarAndThePage() {
        m_module->createRightExpandWidgte(new QLabel, "procedures");
        m_module->createRightExpandWidgte(new QLabel, "wire");
        m_module->switchRightExpandWidgte("wire");
        QVERIFY(m_frame->sideBar()->isVisible());
        QCOMPARE(m_frame->sideBar()->current(), QString("kite.weld.wire"));
        m_module->switchRightExpandWidgte("procedures");
        QVERIFY(m_frame->sideBar()->isVisible());
        QCOMPARE(m_frame->sideBar()->current(), QString("kite.weld.procedures"));
    }

    void switchingToAnEmptyIdShowsThePageOfThePluginsName() {
        m_module->createRightExpandWidgte(new QLabel, "wire");
        m_module->createRightExpandWidgte(new QLabel, QString());
        m_module->switchRightExpandWidgte("");
        QCOMPARE(m_frame->sideBar()->current(), QString("kite.weld.weld"));
        QVERIFY(m_frame->sideBar()->isVisible());
    }

    void switchingToAPageThatIsNotThereChangesNothing() {
        m_module->createRightExpandWidgte(new QLabel, "wire");
        m_module->switchRightExpandWidgte("procedures");
        QVERIFY(!m_frame->sideBar()->isVisible());
        QCOMPARE(m_frame->sideBar()->current(), QString("kite.weld.wire"));
    }

    void onePluginDoesNotReachThePagesOfAnother() {
        Kite paint("paint", nullptr);
        paint.createRightExpandWidgte(new QLabel, "colours");
        m_module->switchRightExpandWidgte("colours");
        QVERIFY(!m_frame->sideBar()->isVisible());
    }

    void withoutContainersEverythingIsRefused() {
        m_module.reset();
        m_frame.reset();
        Kite module("weld", nullptr);
        module.setup();
        QLabel widget;
        QVERIFY(!module.createStatusBar(&widget, 0));
        QVERIFY(!module.createRightExpandWidgte(&widget, QString()));
        module.switchRightExpandWidgte(QString());
        QCOMPARE(widget.parent(), static_cast<QObject*>(nullptr));
    }

    void thePhysicalKeysArriveAsTheyWereGiven() {
        QList<bool> pressed;
        const helm::PhysicalButton upper{"Forward", QIcon(), QIcon(), [&](bool held) { pressed.append(held); }};
        const helm::PhysicalButton lower{"Back", QIcon(), QIcon(), nullptr};
        QVERIFY(m_module->createPhyBtnPage("Wire", {upper, lower}, {lower}, {"Wire", "Gas"}));
        QCOMPARE(ButtonPages::instance()->pages().size(), 1);
        const ButtonPage page = ButtonPages::instance()->pages().first();
        QCOMPARE(page.module.data(), m_module.get());
        QCOMPARE(page.source, QString("weld"));
        QCOMPARE(page.name, QString("Wire"));
        QCOMPARE(page.captions, QStringList({"Wire", "Gas"}));
        QCOMPARE(page.first.size(), 2);
        QCOMPARE(page.first.at(0).name, QString("Forward"));
        QCOMPARE(page.first.at(1).name, QString("Back"));
        QCOMPARE(page.second.size(), 1);
        QVERIFY(page.enabled);
        page.first.at(0).callback(true);
        page.first.at(0).callback(false);
        QCOMPARE(pressed, QList<bool>({true, false}));
    }

    void anEmptyPageOfKeysIsAPage() {
        QVERIFY(m_module->createPhyBtnPage("Wire", {}, {}, {}));
        QCOMPARE(ButtonPages::instance()->pages().size(), 1);
    }

    void keysAreDisabledAndEnabledByPage() {
        m_module->createPhyBtnPage("Wire", {}, {}, {});
        m_module->createPhyBtnPage("Gas", {}, {}, {});
        QVERIFY(m_module->changePhyBtnStatus("Wire", false));
        QVERIFY(!ButtonPages::instance()->pages().at(0).enabled);
        QVERIFY(ButtonPages::instance()->pages().at(1).enabled);
        QVERIFY(m_module->changePhyBtnStatus("Wire", true));
        QVERIFY(ButtonPages::instance()->pages().at(0).enabled);
    }

    void aPageOfKeysThatIsNotThereIsPassedOver() {
        QVERIFY(m_module->changePhyBtnStatus("Wire", false));
        QVERIFY(m_module->changePhyBtnStatus(QString(), true));
        QVERIFY(ButtonPages::instance()->pages().isEmpty());
    }

    void whatWasPlacedStaysWhenTheModuleGoes() {
        m_module->createStatusBar(new QLabel, 0);
        m_module->createRightExpandWidgte(new QLabel, "wire");
        m_module->createPhyBtnPage("Wire", {}, {}, {});
        m_module.reset();
        QVERIFY(m_frame->statusBar()->item("kite.weld.0"));
        QVERIFY(m_frame->sideBar()->page("kite.weld.wire"));
        QCOMPARE(ButtonPages::instance()->pages().size(), 1);
        QVERIFY(!m_frame->center()->keys().contains("kite.weld"));
    }

    void nullLeavesThePresentCentreWidgetInPlace() {
        auto* widget = new QLabel;
        m_module->createCenterWidgte(widget);
        m_module->createCenterWidgte(nullptr);
        QVERIFY(m_module->changeFullScreen(true));
        QVERIFY(widget->isWindow());
        QVERIFY(m_module->changeFullScreen(false));
    }

    void theSideBarMayBeDeletedWhenItSwitches() {
        m_module->createRightExpandWidgte(new QLabel, "wire");
        m_module->createRightExpandWidgte(new QLabel, "gas");
        m_module->switchRightExpandWidgte("wire");
        const QPointer<tarp::ExpandSideBar> side(m_frame->sideBar());
        connect(side, &tarp::ExpandSideBar::currentChanged, this, [side] { delete side; });
        m_module->switchRightExpandWidgte("gas");
        QVERIFY(!side);
    }

    void aWidgetIsTakenOnce() {
        auto* item = new QLabel;
        QVERIFY(m_module->createStatusBar(item, 0));
        QVERIFY(!m_module->createStatusBar(item, 1));
        auto* page = new QLabel;
        QVERIFY(m_module->createRightExpandWidgte(page, "wire"));
        QVERIFY(!m_module->createRightExpandWidgte(page, "gas"));
    }

    void aSideBarPageMayBeDeletedByItsPlugin() {
        auto* page = new QLabel;
        m_module->createRightExpandWidgte(page, "wire");
        m_module->switchRightExpandWidgte("wire");
        delete page;
        QCoreApplication::processEvents();
        QCOMPARE(m_frame->sideBar()->keys(), QStringList());
    }

    void aStatusItemMayBeDeletedByItsPlugin() {
        auto* item = new QLabel;
        m_module->createStatusBar(item, 0);
        delete item;
        QVERIFY(!m_frame->statusBar()->keys().contains("kite.weld.0"));
        QVERIFY(m_module->createStatusBar(new QLabel, 0));
    }

private:
    pendanttest::WorkingFolder m_folder;
    std::unique_ptr<pendanttest::LogWatch> m_log;
    QScopedPointer<pendanttest::Frame> m_frame;
    std::unique_ptr<Kite> m_module;
};

QTEST_MAIN(TestContainers)
#include "tst_kitemodule_containers.moc"
