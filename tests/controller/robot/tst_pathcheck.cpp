#include "messages.h"

#include "controller/project/project.h"
#include "controller/robot/pathcheck.h"
#include "controller/robot/position.h"
#include "controller/robot/robot.h"

#include <QTest>

using controller::Joints;
using controller::MoveError;
using controller::Posture;
using controller::Robot;
using controller::RobotModel;
using controller::standardModel;

namespace {

Posture at(const Joints& joints) {
    Posture posture;
    posture.joints = joints;
    return posture;
}

QJsonObject record(const QString& name, const QJsonObject& place) {
    return {{"name", name}, {"value", QJsonObject{{"[0][0][0]", place}}}};
}

RobotModel model() {
    RobotModel model = standardModel();
    model.tools.insert("torch", {0, 0, 300, 0, -35, 0});
    model.wobjs.insert("table", {{800, -300, 400, 90, 0, 0}, controller::Mount::world});
    return model;
}

QJsonObject cartesian(const Joints& joints, const QString& tool = "flange", const QString& wobj = "world") {
    QJsonObject place =
        positionOf(controller::Kinematics(model()), at(joints), tool, wobj).value("cartesian").toObject();
    place.insert("coord", QJsonObject{{"tool", tool}, {"wobj", wobj}});
    return place;
}

QJsonObject joint(const Joints& joints) {
    return positionOf(controller::Kinematics(model()), at(joints), "flange", "world").value("joint").toObject();
}

QJsonObject without(QJsonObject place, const QString& child) {
    place.remove(child);
    return place;
}

QJsonObject moved(QJsonObject place, double x) {
    QJsonObject pose = place.value("pose").toObject();
    QJsonObject frame = pose.value("frame").toObject();
    QJsonObject pos = frame.value("pos").toObject();
    pos.insert("x", x);
    frame.insert("pos", pos);
    pose.insert("frame", frame);
    place.insert("pose", pose);
    return place;
}

controller::ProjectStart project() {
    controller::ProjectStart start = controller::emptyProject();
    const Joints near{10, 0, 0, 0, 80, 0};
    const Joints right{-40, 10, 10, 0, 70, 0};
    start.points = {record("home", joint({0, 0, 0, 0, 90, 0})),
                    record("near", cartesian(near)),
                    record("in front of the table", cartesian(near, "torch", "table")),
                    record("right", cartesian(right)),
                    record("left", cartesian({100, 10, 10, 0, 70, 0})),
                    record("almost around", joint({165, 0, 0, 0, 90, 0})),
                    record("around", joint({-165, 0, 0, 0, 90, 0})),
                    record("flipped", joint({10, 0, 0, 180, -80, 180})),
                    record("straight", joint({0, 0, 0, 80, 20, 0})),
                    record("straight, aside", joint({0, 0, 0, -80, 20, 160})),
                    record("far", without(moved(cartesian(near), 4000), "conf")),
                    record("of another configuration", moved(cartesian(right), -700)),
                    record("without a configuration", without(cartesian(right), "conf")),
                    record("of an unknown tool", cartesian(near)),
                    record("empty", {})};
    QJsonObject strange = cartesian(near);
    strange.insert("coord", QJsonObject{{"tool", "spoon"}, {"wobj", "world"}});
    start.points[13] = record("of an unknown tool", strange);
    return start;
}

// In the order of the alphabet, as the names of an object come.
QByteArray asked(const QString& from, const QString& to) {
    return "{\"" + from.toUtf8() + "\": \"\", \"" + to.toUtf8() + "\": \"\"}";
}

} // namespace

class TestPathCheck : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_bus = std::make_unique<Messages>();
        m_bus->controller.robot()->setModel(model());
        m_bus->controller.project()->start(project());
    }

    void theStraightLineBetweenTwoPointsIsLookedAt_data() {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<int>("code");
        const auto row = [](const QString& from, const QString& to, MoveError::Code code) {
            QTest::newRow(qPrintable(from + " to " + to)) << from << to << int(code);
        };
        row("home", "near", MoveError::None);
        row("near", "right", MoveError::None);
        row("right", "home", MoveError::None);
        row("near", "in front of the table", MoveError::None);
        row("near", "flipped", MoveError::None); // the same pose: the line says nothing of the posture
        row("home", "without a configuration", MoveError::None);
        row("near", "far", MoveError::OutOfReach);
        row("far", "near", MoveError::OutOfReach);
        row("right", "of another configuration", MoveError::NoSuchPosture);
        row("almost around", "around", MoveError::Limit);
        row("straight", "straight, aside", MoveError::Singularity);
        row("home", "nowhere", MoveError::UnknownPoint);
        row("nowhere", "home", MoveError::UnknownPoint);
        row("home", "", MoveError::UnknownPoint);
        row("home", "Near", MoveError::UnknownPoint);
        row("home", "empty", MoveError::NoPlace);
        row("home", "of an unknown tool", MoveError::NoPlace);
    }

    void theStraightLineBetweenTwoPointsIsLookedAt() {
        QFETCH(QString, from);
        QFETCH(QString, to);
        const MoveError error = m_bus->controller.pathCheck()->between(from, to);
        QTEST(error.code, "code");
        QCOMPARE(error.text.isEmpty(), error.code == MoveError::None);
    }

    void theAnswerIsTheCodeOrNothing() {
        QCOMPARE(text(m_bus->command("move.path.check", asked("home", "near"))), "null");
        QCOMPARE(text(m_bus->command("move.path.check", asked("home", "nowhere"))), "{\"error\":-121}");
        QCOMPARE(m_bus->noticed.size() + m_bus->remarked.size(), 0);
    }

    void theChildrenAreTheNamesInTheirOrder() {
        const controller::Content points = controller::copied(nullptr);
        points->append(nullptr, "right");
        points->append(nullptr, "of another configuration");
        controller::Message message;
        message.verb = controller::Verb::Execute;
        message.key = "move.path.check";
        message.content = points;
        QCOMPARE(text(m_bus->controller.handle(message)), "{\"error\":-114}");
        controller::PathCheckRule there{"of another configuration", "right", -7};
        m_bus->controller.pathCheck()->setRules({there});
        QCOMPARE(text(m_bus->controller.handle(message)), "{\"error\":-114}");
    }

    void nothingMovesAndTheErrorKeyStaysAsItWas() {
        m_bus->watch("move.last_error_with_setting");
        m_bus->command("move.path.check", asked("near", "far"));
        m_bus->controller.clock()->step(1000);
        QCOMPARE(m_bus->delivered.size(), 0);
        QVERIFY(m_bus->controller.robot()->posture() == model().start());
    }

    void whatIsNoTwoPointsIsRefused_data() {
        QTest::addColumn<QByteArray>("sent");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("one") << QByteArray(R"({"home": 1})");
        QTest::newRow("three") << QByteArray(R"({"home": 1, "near": 1, "far": 1})");
        QTest::newRow("a text") << QByteArray("\"home\"");
    }

    void whatIsNoTwoPointsIsRefused() {
        QFETCH(QByteArray, sent);
        QVERIFY(refusalOf(m_bus->command("move.path.check", sent)).startsWith("To check a path, "));
    }

    void theCellMaySayOtherwise() {
        m_bus->controller.pathCheck()->setRules(
            {{"home", "near", -50003}, {"home", "near", -1}, {"far", "near", 0}, {"ghost", "home", -9}});
        QCOMPARE(text(m_bus->command("move.path.check", asked("home", "near"))), "{\"error\":-50003}");
        QCOMPARE(text(m_bus->command("move.path.check", asked("far", "near"))), "null");
        QCOMPARE(m_bus->controller.pathCheck()->between("near", "home").code, int(MoveError::None));
        QCOMPARE(m_bus->controller.pathCheck()->between("home", "right").code, int(MoveError::None));
        QCOMPARE(m_bus->controller.pathCheck()->between("right", "near").code, int(MoveError::None));
        QCOMPARE(text(m_bus->command("move.path.check", asked("ghost", "home"))), "{\"error\":-9}");
    }

    void withSevenJointsTheElbowIsThatOfThePoint() {
        RobotModel seven = standardModel();
        seven.joints.insert(2, {"roll", -170, 170, 150, 0, false});
        const Joints there{10, 10, 40, 20, 0, 60, 0};
        const controller::Kinematics kinematics(seven);
        controller::ProjectStart start = controller::emptyProject();
        start.points = {record("a", positionOf(kinematics, at(there), "flange", "world").value("cartesian").toObject()),
                        record("b", positionOf(kinematics, at({20, 10, 40, 20, 0, 60, 0}), "flange", "world")
                                        .value("cartesian")
                                        .toObject())};
        m_bus->controller.robot()->setModel(seven);
        m_bus->controller.project()->start(start);
        QCOMPARE(m_bus->controller.pathCheck()->between("a", "b").text, QString());
    }

private:
    std::unique_ptr<Messages> m_bus;
};

QTEST_GUILESS_MAIN(TestPathCheck)
#include "tst_pathcheck.moc"
