#include "links.h"

#include <QSignalSpy>

// A bus whose own node tells nothing of its link, from before the manager is made.
class TestNoBus : public QObject {
    Q_OBJECT

private slots:
    void init() { m_log.reset(new pendanttest::LogWatch); }
    void cleanup() { m_log.reset(); }

    void theManagerIsMadeNevertheless() {
        relay()->mobj()->removeChild(relay()->mobj()->c("connected"));
        QVERIFY(!relay()->mobj()->c("connected"));
        QVERIFY(kiteInterface());
        QVERIFY(!relay()->mobj()->c("connected"));
    }

    void theBusCountsAsDown() {
        QVERIFY(!kiteInterface()->getRobotConnected());
        QVERIFY(!relay()->mobj()->c("connected"));
        QCOMPARE(kiteInterface()->getRelayData("robot.speed"), QJsonValue());
        QVERIFY(!kiteInterface()->setRelayData("robot.speed", 1));
        QCOMPARE(kiteInterface()->execCommandRelayData("robot.stop", 1), QJsonValue(false));
    }

    void theControllerComingUpTellsOfNoConnection() {
        QSignalSpy connected(kiteInterface(), &kite::InterfaceManager::sigNetworkConnect);
        const pendanttest::FakeLink controller(Channel::controller());
        QVERIFY(helm::ManagerHelper::instance()->controllerManager()->controllerConnected());
        QCOMPARE(connected.size(), 0);
    }

private:
    QScopedPointer<pendanttest::LogWatch> m_log;
};

QTEST_GUILESS_MAIN(TestNoBus)
#include "tst_interface_nobus.moc"
