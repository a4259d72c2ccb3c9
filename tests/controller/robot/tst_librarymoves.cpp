#include "controller/robot/robot.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"
#include "kite/interfacemanager.h"
#include "pendanttest/pendant.h"
#include "pendanttest/robot.h"

#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using brisk::ModuleObject;

namespace {

const char* const cell = R"({
    "tools": {"gripper": {"z": 180}},
    "robot": {"tool": "gripper"},
    "pathCheck": [{"from": "square", "to": "aside", "error": -50003}],
    "project": {"points": [
        {"name": "aside", "property": "cart", "joints": [30, 5, 10, 0, 75, 30]},
        {"name": "square", "property": "cart", "joints": [45, 5, 10, 0, 75, 0]},
        {"name": "home", "joints": [0, 0, 0, 0, 90, 0]}
    ]}
})";

double place(const QString& point, const char* part) {
    for (ModuleObject* record : m("orca.project.point._list")->cmobjs()) {
        if (record->c("name")->getString() == point)
            return record->c("value")->c("[0][0][0]")->r(QStringLiteral("pose.frame.pos.") + part)->getDouble();
    }
    return qQNaN();
}

} // namespace

/// What the library sends moves the robot as the text says that it does, odd as it is.
class TestLibraryMoves : public QObject {
    Q_OBJECT

private slots:
    void init() {
        QFile file(m_folder.filePath("cell.json"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(cell);
        file.close();
        m_robot = std::make_unique<pendanttest::Robot>();
        m_robot->loadCell(file.fileName());
        m_pendant = std::make_unique<pendanttest::Pendant>();
        m_pendant->start();
        m_robot->connectLinks();
        m_errors.clear();
        connect(relay()->watchNode("move.last_error_with_setting"), &ModuleObject::changed, &m_context,
                [this](const QVariant& error) { m_errors << error.toJsonObject().value("code").toInt(); });
    }

    void cleanup() {
        disconnect(relay()->watchNode("move.last_error_with_setting"), nullptr, &m_context, nullptr);
        m_pendant.reset();
        m_robot.reset();
    }

    void theRobotGoesToXInThePlaceOfY_data() {
        QTest::addColumn<QString>("version");
        QTest::addColumn<bool>("joint");
        for (const char* version : {"3.1.0", "2.3", "1.0"}) {
            QTest::addRow("%s, joint", version) << version << true;
            QTest::addRow("%s, linear", version) << version << false;
        }
    }

    void theRobotGoesToXInThePlaceOfY() {
        QFETCH(QString, version);
        QFETCH(bool, joint);
        controller::HostInfo host;
        host.version = version;
        m_robot->controller()->setHost(host);
        m_robot->settle();
        m("helm.r.version")->setValue(nullptr, version);
        const double x = place("aside", "x");
        const double z = place("aside", "z");
        QVERIFY(std::abs(place("aside", "y") - x) > 100);
        start("aside", 500, false, joint);
        m_robot->step(100);
        QVERIFY(robot().isMoving());
        m_robot->step(10000);
        QCOMPARE(robot().stoppedBy(), "arrived");
        const KDL::Vector tip = robot().kinematics().pose(robot().posture(), robot().tool(), robot().wobj()).p;
        QVERIFY((tip - KDL::Vector(x, x, z)).Norm() < 1e-3);
        QCOMPARE(m_errors, QList<int>());
    }

    void aPointOnXEqualToYIsReachedWithItsConfiguration() {
        QVERIFY(std::abs(place("square", "x") - place("square", "y")) < 1e-6);
        start("square", 1000, true, true);
        m_robot->step(10000);
        QCOMPARE(robot().stoppedBy(), "arrived");
        const controller::Joints wanted{45, 5, 10, 0, 75, 0};
        for (size_t i = 0; i < 6; ++i)
            QVERIFY(std::abs(robot().posture().joints[i] - wanted[i]) < 1e-4);
    }

    void theFirstFormSendsNoTargetAndNothingMoves() {
        const controller::Posture before = robot().posture();
        m_pendant->expectError(" moveToStart : ");
        m_pendant->expectError("The move has no target: \"point.trans\" is missing.");
        int result = 5;
        kite::kiteInterface()->moveToStart(result, "square", 250, true);
        m_robot->step(2000);
        QCOMPARE(result, 5);
        QCOMPARE(m_errors, QList<int>{controller::MoveError::NoTarget});
        QVERIFY(robot().posture() == before);
    }

    void aJointPointHasNoTargetEither() {
        m_pendant->expectError("The move has no target: \"point.trans\" is missing.");
        start("home", 250, false, true);
        m_robot->step(2000);
        QCOMPARE(m_errors, QList<int>{controller::MoveError::NoTarget});
    }

    void aJointMoveTakesThousandthsOfTheFullSpeed() {
        m_pendant->expectError("\"traj.speed\", must be above 0, and at most 1, the full speed of the axes.");
        start("square", 1001, false, true);
        QCOMPARE(m_errors, QList<int>{controller::MoveError::BadSpeed});
        start("square", 1000, false, true);
        QVERIFY(robot().isMoving());
    }

    void stoppingStopsOnThePath() {
        start("square", 500, false, false);
        m_robot->step(300);
        kite::kiteInterface()->moveToStop();
        m_robot->step(2000);
        QVERIFY(!robot().isMoving());
        QCOMPARE(robot().stoppedBy(), QString());
        QCOMPARE(m_errors, QList<int>());
    }

    void theNextStartGoesOnFromWhereTheOneBeforeComesToRest() {
        start("square", 500, false, false);
        m_robot->step(300);
        start("aside", 500, false, false);
        m_robot->step(10000);
        QCOMPARE(robot().stoppedBy(), "arrived");
        const KDL::Vector tip = robot().kinematics().pose(robot().posture(), robot().tool(), robot().wobj()).p;
        QVERIFY(std::abs(tip.x() - place("aside", "x")) < 1e-3);
        QCOMPARE(m_errors, QList<int>());
    }

    void pathsAreChecked() {
        kite::InterfaceManager* kite = kite::kiteInterface();
        QCOMPARE(kite->checkPointMoveTo("home", "home"), 1);
        QCOMPARE(kite->checkPointMoveTo("home", "square"), 0);
        QCOMPARE(kite->checkPointMoveTo("home", "nowhere"), -2);
        // An error that counts as feasible.
        QCOMPARE(kite->checkPointMoveTo("square", "aside"), 0);
    }

private:
    const controller::Robot& robot() const { return *m_robot->controller()->robot(); }

    void start(const QString& point, int speed, bool withConf, bool joint) {
        m_pendant->expectError(" moveToStart : ");
        int result = 0;
        kite::kiteInterface()->moveToStart(result, point, speed, withConf, joint);
        m_robot->settle();
        QCOMPARE(result, 0);
    }

    QTemporaryDir m_folder;
    QObject m_context;
    std::unique_ptr<pendanttest::Robot> m_robot;
    std::unique_ptr<pendanttest::Pendant> m_pendant;
    QList<int> m_errors;
};

QTEST_MAIN(TestLibraryMoves)
#include "tst_librarymoves.moc"
