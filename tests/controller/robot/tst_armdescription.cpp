#include "messages.h"

#include "controller/robot/armdescription.h"
#include "controller/robot/robot.h"
#include "frames.h"

#include <QJsonObject>
#include <QTest>

#include <random>

using controller::Axis;
using controller::Kinematics;
using controller::Mount;
using controller::Posture;
using controller::RobotModel;
using controller::standardModel;

namespace {

RobotModel model(int joints) {
    RobotModel model = standardModel();
    if (joints == 7)
        model.joints.insert(2, {"roll", -170, 170, 150, 0, false});
    model.externals = {{{"E1", 0, 3000, 500, 0, true}, {{0, -1000, 100, 0, 0, 0}, Mount::world}, 1},
                       {{"E2", -90, 90, 60, 0, false}, {{1000, 0, 600, 0, 0, 0}, Mount::world}, 1},
                       {{"E3", -360, 360, 90, 0, false}, {{0, 0, 100, 30, 0, 0}, 1}, 2}};
    model.foot = {{0, 0, 250, 30, 0, 0}, 0};
    model.tools.insert("bent", {10, 20, 100, 0, 90, 0});
    model.wobjs.insert("turned", {{5, 0, 50, 0, 0, 45}, 2});
    return model;
}

/// What somebody who knows nothing but the description makes of it.
class Drawer {
public:
    Drawer(const QJsonObject& arm, const QJsonObject& joint) : m_arm(arm), m_joint(joint) {}

    KDL::Frame flange() const {
        KDL::Frame frame = mount(m_arm.value("foot").toObject());
        const QJsonArray links = m_arm.value("links").toArray();
        for (int i = 0; i < links.size(); ++i) {
            const QJsonObject link = links.at(i).toObject();
            const double angle = m_joint.value("inner_pos").toArray().at(i).toDouble();
            frame = frame * turn(link.value("axis").toArray(), angle) * place(link.value("next").toObject());
        }
        return frame;
    }
    KDL::Frame tool(const QString& name) const {
        return flange() * place(m_arm.value("tools").toObject().value(name).toObject());
    }
    KDL::Frame wobj(const QString& name) const { return mount(m_arm.value("wobjs").toObject().value(name).toObject()); }

private:
    static KDL::Vector vector(const QJsonArray& axis) {
        return {axis.at(0).toDouble(), axis.at(1).toDouble(), axis.at(2).toDouble()};
    }
    static KDL::Frame turn(const QJsonArray& axis, double angle) {
        return KDL::Frame(KDL::Rotation::Rot(vector(axis), controller::radOf(angle)));
    }
    static KDL::Frame place(const QJsonObject& at) {
        return controller::frameOf({at.value("x").toDouble(), at.value("y").toDouble(), at.value("z").toDouble(),
                                    at.value("a").toDouble(), at.value("b").toDouble(), at.value("c").toDouble()});
    }
    KDL::Frame mount(const QJsonObject& at) const {
        const QString on = at.value("on").toString();
        return on.isEmpty() ? place(at) : external(on) * place(at);
    }
    KDL::Frame external(const QString& name) const {
        const QJsonArray externals = m_arm.value("externals").toArray();
        for (int i = 0; i < externals.size(); ++i) {
            const QJsonObject it = externals.at(i).toObject();
            if (it.value("name").toString() != name)
                continue;
            const double value = m_joint.value("extern_pos").toArray().at(i).toDouble();
            const KDL::Frame motion = it.value("linear").toBool()
                                          ? KDL::Frame(vector(it.value("axis").toArray()) * value)
                                          : turn(it.value("axis").toArray(), value);
            return mount(it.value("place").toObject()) * motion;
        }
        return KDL::Frame::Identity();
    }

    QJsonObject m_arm;
    QJsonObject m_joint;
};

Posture randomPosture(const RobotModel& model, std::mt19937* random) {
    Posture posture;
    const QVector<Axis> axes = model.axes();
    for (int i = 0; i < axes.size(); ++i) {
        std::uniform_real_distribution<double> any(axes.at(i).minimum, axes.at(i).maximum);
        setValue(&posture, model, i, any(*random));
    }
    return posture;
}

} // namespace

class TestArmDescription : public QObject {
    Q_OBJECT

private slots:
    void whoFollowsItsLinksComesToTheToolsPose_data() {
        QTest::addColumn<int>("joints");
        QTest::newRow("six") << 6;
        QTest::newRow("seven") << 7;
    }

    void whoFollowsItsLinksComesToTheToolsPose() {
        QFETCH(int, joints);
        Messages bus;
        bus.controller.robot()->setModel(model(joints));
        const QJsonObject arm = brisk::standin::jsonOf(bus.get("robot.arm")).toObject();
        QCOMPARE(arm.value("links").toArray().size(), joints);
        std::mt19937 random(11);
        for (int i = 0; i < 50; ++i) {
            const Posture posture = randomPosture(model(joints), &random);
            bus.controller.robot()->setPosture(posture);
            const QJsonObject joint = brisk::standin::jsonOf(bus.get("robot.position", "joint")).toObject();
            const Drawer drawer(arm, joint);
            const KDL::Frame drawn = drawer.wobj("turned").Inverse() * drawer.tool("bent");
            const KDL::Frame pose = Kinematics(model(joints)).pose(posture, "bent", "turned");
            QVERIFY((drawn.p - pose.p).Norm() < 1e-6);
            QVERIFY(apart(drawn.M, pose.M) < 1e-9);
        }
    }

    void itNamesJointsAxesToolsAndWhatStandsOnWhat() {
        const QJsonObject arm = controller::armDescription(model(6));
        const QJsonObject first = arm.value("links").toArray().first().toObject();
        QCOMPARE(first.value("name").toString(), "A1");
        QCOMPARE(first.value("axis").toArray(), (QJsonArray{0, 0, 1}));
        QCOMPARE(first.value("next").toObject().value("z").toDouble(), 450.0);
        QCOMPARE(arm.value("foot").toObject().value("on").toString(), "E1");
        const QJsonObject third = arm.value("externals").toArray().last().toObject();
        QCOMPARE(third.value("place").toObject().value("on").toString(), "E2");
        QCOMPARE(arm.value("tools").toObject().value("bent").toObject().value("b").toDouble(), 90.0);
        QCOMPARE(arm.value("wobjs").toObject().value("world").toObject().value("on").toString(), "");
    }

    void anotherRobotIsDelivered() {
        Messages bus;
        bus.watch("robot.arm");
        bus.controller.robot()->setModel(model(7));
        QCOMPARE(bus.delivered.size(), 1);
        QVERIFY(bus.delivered.first().contains("\"roll\""));
        QCOMPARE(refusalOf(bus.set("robot.arm", "1")), "The bus key \"robot.arm\" cannot be set.");
    }
};

QTEST_GUILESS_MAIN(TestArmDescription)
#include "tst_armdescription.moc"
