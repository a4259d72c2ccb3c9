#include "links.h"

#include <QSignalSpy>

#include <memory>

using helm::ManagerHelper;
using kite::InterfaceManager;
using pendanttest::FakeLink;

class TestSignals : public LinksTest {
    Q_OBJECT

private slots:
    void theSecondLinkToComeUpTellsOfTheConnection_data() {
        QTest::addColumn<bool>("busFirst");
        QTest::newRow("the bus first") << true;
        QTest::newRow("the controller first") << false;
    }
    void theSecondLinkToComeUpTellsOfTheConnection() {
        QFETCH(bool, busFirst);
        FakeLink& first = busFirst ? bus() : controller();
        FakeLink& second = busFirst ? controller() : bus();
        first.setUp(false);
        second.setUp(false);
        QSignalSpy connected(kiteInterface(), &InterfaceManager::sigNetworkConnect);
        first.setUp(true);
        QCOMPARE(connected.size(), 0);
        second.setUp(true);
        QCOMPARE(connected.size(), 1);

        second.setUp(false);
        QCOMPARE(connected.size(), 1);
        second.setUp(true);
        QCOMPARE(connected.size(), 2);

        first.setUp(false);
        first.setUp(true);
        QCOMPARE(connected.size(), 3);
    }

    void whenItIsToldBothLinksAreUp() {
        bus().setUp(false);
        bool bothUp = false;
        QObject context;
        connect(kiteInterface(), &InterfaceManager::sigNetworkConnect, &context, [&bothUp] {
            bothUp = kiteInterface()->getRobotConnected() &&
                     ManagerHelper::instance()->controllerManager()->controllerConnected();
        });
        bus().setUp(true);
        QVERIFY(bothUp);
    }

    void whatTheBusSaysOfItselfCountsAsItConverts_data() {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("told");
        QTest::newRow("true once more") << QVariant(true) << 1;
        QTest::newRow("one") << QVariant(1) << 1;
        QTest::newRow("the word true") << QVariant("true") << 1;
        QTest::newRow("false") << QVariant(false) << 0;
        QTest::newRow("zero") << QVariant(0) << 0;
        QTest::newRow("the word false") << QVariant("false") << 0;
        QTest::newRow("an empty text") << QVariant("") << 0;
        QTest::newRow("nothing") << QVariant() << 0;
        QTest::newRow("a list") << QVariant(QStringList{"true"}) << 0;
    }
    void whatTheBusSaysOfItselfCountsAsItConverts() {
        QFETCH(QVariant, value);
        QFETCH(int, told);
        QSignalSpy connected(kiteInterface(), &InterfaceManager::sigNetworkConnect);
        relay()->mobj()->c("connected")->setValue(nullptr, value);
        QCOMPARE(connected.size(), told);
    }

    void theBusSaysSoInVainWhileTheControllerIsDown() {
        controller().setUp(false);
        QSignalSpy connected(kiteInterface(), &InterfaceManager::sigNetworkConnect);
        relay()->mobj()->c("connected")->setValue(nullptr, true);
        QCOMPARE(connected.size(), 0);
    }

    void theControllerComesUpInVainWhenTheBusTellsNothing_data() {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("false") << QVariant(false);
        QTest::newRow("nothing") << QVariant();
        QTest::newRow("a list") << QVariant(QStringList{"true"});
    }
    void theControllerComesUpInVainWhenTheBusTellsNothing() {
        QFETCH(QVariant, value);
        controller().setUp(false);
        relay()->mobj()->c("connected")->setValue(nullptr, value);
        QSignalSpy connected(kiteInterface(), &InterfaceManager::sigNetworkConnect);
        controller().setUp(true);
        QCOMPARE(connected.size(), 0);
    }

    void theControllersDisconnectionIsPassedOnUnchanged_data() {
        QTest::addColumn<bool>("status");
        QTest::newRow("true") << true;
        QTest::newRow("false") << false;
    }
    void theControllersDisconnectionIsPassedOnUnchanged() {
        QFETCH(bool, status);
        QSignalSpy disconnected(kiteInterface(), &InterfaceManager::sigNetworkDisConnect);
        emit ManagerHelper::instance()->controllerManager()->rcDisconnected(status);
        QCOMPARE(disconnected.size(), 1);
        QCOMPARE(disconnected.first(), QVariantList{status});
    }

    void everyDisconnectionOfTheControllerIsTold() {
        QSignalSpy disconnected(kiteInterface(), &InterfaceManager::sigNetworkDisConnect);
        for (int times = 1; times <= 2; ++times) {
            controller().setUp(false);
            QCOMPARE(disconnected.size(), times);
            controller().setUp(true);
        }
        bus().setUp(false);
        controller().setUp(false);
        QCOMPARE(disconnected.size(), 3);
    }

    void theBusGoingDownIsNotTold() {
        QSignalSpy connected(kiteInterface(), &InterfaceManager::sigNetworkConnect);
        QSignalSpy disconnected(kiteInterface(), &InterfaceManager::sigNetworkDisConnect);
        bus().setUp(false);
        QCOMPARE(connected.size(), 0);
        QCOMPARE(disconnected.size(), 0);
    }

    void theRobotCountsAsConnectedWhileTheBusIs() {
        QVERIFY(kiteInterface()->getRobotConnected());
        controller().setUp(false);
        QVERIFY(kiteInterface()->getRobotConnected());
        bus().setUp(false);
        QVERIFY(!kiteInterface()->getRobotConnected());
        controller().setUp(true);
        QVERIFY(!kiteInterface()->getRobotConnected());
        bus().setUp(true);
        QVERIFY(kiteInterface()->getRobotConnected());
    }

    void aManagerOfYourOwnEndsWithItsParent() {
        auto parent = std::make_unique<QObject>();
        auto* own = new InterfaceManager(parent.get());
        QCOMPARE(own->parent(), parent.get());
        int told = 0;
        connect(own, &InterfaceManager::sigNetworkConnect, this, [&told] { ++told; });
        bool isHeard = false;
        QVERIFY(own->connectRelayData(
            "own", "robot.own", [&](const QVariant&) { isHeard = true; }, "1"));
        parent.reset();
        // What listened on its behalf is gone with it.
        bus().setUp(false);
        bus().setUp(true);
        controller().setUp(false);
        relay()->watchNode("robot.own")->setValue(nullptr, 1);
        relay()->watch(nullptr, "robot.own", false);
        QCOMPARE(told, 0);
        QVERIFY(!isHeard);
    }

    void theStateOfTheBusIsReadAfreshEachTime_data() {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("connected");
        QTest::newRow("true") << QVariant(true) << true;
        QTest::newRow("one") << QVariant(1) << true;
        QTest::newRow("false") << QVariant(false) << false;
        QTest::newRow("nothing") << QVariant() << false;
    }
    void theStateOfTheBusIsReadAfreshEachTime() {
        QFETCH(QVariant, value);
        QFETCH(bool, connected);
        // Without a signal, so that whoever kept the state would be wrong.
        relay()->mobj()->c("connected")->setValue(nullptr, !connected, false);
        QCOMPARE(kiteInterface()->getRobotConnected(), !connected);
        relay()->mobj()->c("connected")->setValue(nullptr, value, false);
        QCOMPARE(kiteInterface()->getRobotConnected(), connected);
    }
};

QTEST_GUILESS_MAIN(TestSignals)
#include "tst_interface_signals.moc"
