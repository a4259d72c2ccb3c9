#include "view/armchain.h"
#include "view/taughtpoint.h"

#include "controller/robot/armdescription.h"
#include "controller/robot/position.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <random>

using namespace pendant::view;
using controller::Posture;
using controller::RobotModel;

Q_DECLARE_METATYPE(controller::RobotModel)

namespace {

const double toleranceMm = 1e-6;

RobotModel sevenAxes() {
    RobotModel model = controller::standardModel();
    model.joints.insert(2, {"A2a", -170, 170, 150, 0, false});
    return model;
}

RobotModel onARail() {
    RobotModel model = controller::standardModel();
    model.externals = {{{"E1", -3000, 3000, 800, 0, true}, {{100, 200, 300, 40, 5, 6}, controller::Mount::world}, 1}};
    model.foot = {{10, -20, 30, 15, -5, 3}, 0};
    return model;
}

RobotModel withATable() {
    RobotModel model = controller::standardModel();
    model.externals = {{{"E1", -90, 90, 60, 0, false}, {{1150, 0, 650, 0, 0, 0}, controller::Mount::world}, 1},
                       {{"E2", -360, 360, 60, 0, false}, {{0, 0, 120, 0, 0, 10}, 0}, 2}};
    model.wobjs.insert("work", {{30, 40, 50, 60, 70, 80}, 1});
    model.wobj = "work";
    return model;
}

RobotModel hanging() {
    RobotModel model = controller::standardModel();
    model.lengths = {300, 0, 400, -60, 500, 90};
    model.foot = {{0, 0, 2500, 0, 0, 180}, controller::Mount::world};
    return model;
}

// As the bus carries it.
QJsonObject carried(const QJsonObject& object) {
    return QJsonDocument::fromJson(QJsonDocument(object).toJson()).object();
}

Posture randomPosture(const RobotModel& model, std::mt19937* random) {
    Posture posture;
    const QVector<controller::Axis> axes = model.axes();
    for (int i = 0; i < axes.size(); ++i) {
        std::uniform_real_distribution<double> values(axes.at(i).minimum, axes.at(i).maximum);
        controller::setValue(&posture, model, i, values(*random));
    }
    return posture;
}

Stance stanceOf(const QJsonObject& position) {
    Stance stance;
    const QJsonObject joint = position.value("joint").toObject();
    for (const QJsonValue& value : joint.value("inner_pos").toArray())
        stance.joints << value.toDouble();
    for (const QJsonValue& value : joint.value("extern_pos").toArray())
        stance.externals << value.toDouble();
    return stance;
}

Place poseOf(const QJsonObject& position) {
    const QJsonObject pose = position.value("cartesian").toObject().value("pose").toObject();
    const QJsonObject frame = pose.value("frame").toObject();
    QJsonObject place = frame.value("pos").toObject();
    const QJsonObject angles = frame.value("ori").toObject().value("euler").toObject();
    for (const char* angle : {"a", "b", "c"})
        place.insert(angle, angles.value(angle));
    return placeOf(place);
}

double apart(const Place& one, const Place& other) {
    double most = length(one.at - other.at);
    for (const Vector& away : {Vector{100, 0, 0}, Vector{0, 100, 0}, Vector{0, 0, 100}})
        most = std::max(most, length(one * away - other * away));
    return most;
}

} // namespace

// Where the parts of a drawn robot are.
class TestViewChain : public QObject {
    Q_OBJECT

private slots:
    void theTipIsWhereTheControllerSaysItIs_data();
    void theTipIsWhereTheControllerSaysItIs();
    void aPointIsDrawnWhereTheRobotStoodWhenItWasTaught_data() { theTipIsWhereTheControllerSaysItIs_data(); }
    void aPointIsDrawnWhereTheRobotStoodWhenItWasTaught();
    void anUnknownToolIsTheFlange();
    void whatStandsOnAnAxisThatDoesNotComeBeforeStandsInTheWorld();
    void withoutLinksThereIsNoArm_data();
    void withoutLinksThereIsNoArm();
    void anAxisWithoutADirectionTurnsAboutZ();
    void axesThatAreNotToldStandAtZero();
};

void TestViewChain::theTipIsWhereTheControllerSaysItIs_data() {
    QTest::addColumn<RobotModel>("model");
    QTest::newRow("six axes") << controller::standardModel();
    QTest::newRow("seven axes") << sevenAxes();
    QTest::newRow("on a rail") << onARail();
    QTest::newRow("before a table that tilts and turns") << withATable();
    QTest::newRow("hanging") << hanging();
}

void TestViewChain::theTipIsWhereTheControllerSaysItIs() {
    QFETCH(RobotModel, model);
    model.tools.insert("torch", {55, 10, 330, 20, -35, 7});
    const controller::Kinematics kinematics(model);
    const ArmGeometry arm = armGeometryOf(carried(controller::armDescription(model)));
    QCOMPARE(arm.links.size(), model.joints.size());
    std::mt19937 random(7);
    for (int i = 0; i < 200; ++i) {
        const Posture posture = randomPosture(model, &random);
        const QJsonObject told = carried(controller::positionOf(kinematics, posture, "torch", model.wobj));
        const ArmChain chain(arm, stanceOf(told));
        const Place drawn = inverse(chain.inWorld(arm.wobjs.value(model.wobj))) * chain.tip("torch");
        QVERIFY(apart(drawn, poseOf(told)) < toleranceMm);
    }
}

void TestViewChain::aPointIsDrawnWhereTheRobotStoodWhenItWasTaught() {
    QFETCH(RobotModel, model);
    const controller::Kinematics kinematics(model);
    const ArmGeometry arm = armGeometryOf(carried(controller::armDescription(model)));
    std::mt19937 random(11);
    for (int i = 0; i < 50; ++i) {
        const Posture posture = randomPosture(model, &random);
        const QJsonObject told = controller::positionOf(kinematics, posture, "flange", model.wobj);
        QJsonObject pose = told.value("cartesian").toObject();
        pose.insert("coord", QJsonObject{{"tool", "flange"}, {"wobj", model.wobj}});
        const QJsonObject joints{{"[0][0][0]", told.value("joint")}};
        const TaughtPoint joint = taughtPointOf("#1", {{"name", "j"}, {"property", "joint"}, {"value", joints}});
        const TaughtPoint cartesian =
            taughtPointOf("#2", {{"name", "c"}, {"property", "cart"}, {"value", QJsonObject{{"[0][0][0]", pose}}}});
        const ArmChain there(arm, stanceOf(told));
        const ArmChain elsewhere(arm, {{10, 20, 30, 40, 50, 60}, stanceOf(told).externals});
        QCOMPARE(joint.name, QString("j"));
        QCOMPARE(cartesian.node, QString("#2"));
        QVERIFY(length(joint.inWorld(arm, elsewhere, "flange") - there.flange().at) < toleranceMm);
        QVERIFY(length(cartesian.inWorld(arm, elsewhere, "flange") - there.flange().at) < toleranceMm);
    }
}

void TestViewChain::anUnknownToolIsTheFlange() {
    const ArmGeometry arm = armGeometryOf(controller::armDescription(controller::standardModel()));
    const ArmChain chain(arm, {{0, 0, 0, 0, 90, 0}, {}});
    QVERIFY(apart(chain.tip("nothing"), chain.flange()) < toleranceMm);
    QVERIFY(length(chain.flange().at - Vector{970, 0, 1155}) < toleranceMm);
}

void TestViewChain::whatStandsOnAnAxisThatDoesNotComeBeforeStandsInTheWorld() {
    const QJsonObject first{{"name", "E1"},
                            {"linear", true},
                            {"axis", QJsonArray{1, 0, 0}},
                            {"place", QJsonObject{{"on", "E2"}, {"x", 5}}}};
    const QJsonObject second{
        {"name", "E2"}, {"linear", true}, {"axis", QJsonArray{1, 0, 0}}, {"place", QJsonObject{{"on", "E2"}}}};
    QJsonArray externals;
    externals << first << second;
    const ArmGeometry arm = armGeometryOf({{"externals", externals}, {"foot", QJsonObject{{"on", "E9"}}}});
    QCOMPARE(arm.externals.at(0).mount.on, Mount::world);
    QCOMPARE(arm.externals.at(1).mount.on, Mount::world);
    QCOMPARE(arm.foot.on, Mount::world);
    const ArmChain chain(arm, {{}, {100, 7}});
    QVERIFY(length(chain.external(0).at - Vector{105, 0, 0}) < toleranceMm);
    QVERIFY(length(chain.external(1).at - Vector{7, 0, 0}) < toleranceMm);
}

void TestViewChain::withoutLinksThereIsNoArm_data() {
    QTest::addColumn<QJsonObject>("description");
    QTest::newRow("nothing") << QJsonObject();
    QTest::newRow("an error") << QJsonObject{{"error", "The controller knows no bus key"}};
    QTest::newRow("links of no kind") << QJsonObject{{"links", "six"}};
    QTest::newRow("no link") << QJsonObject{{"links", QJsonArray()}};
}

void TestViewChain::withoutLinksThereIsNoArm() {
    QFETCH(QJsonObject, description);
    QVERIFY(armGeometryOf(description).isEmpty());
}

void TestViewChain::anAxisWithoutADirectionTurnsAboutZ() {
    QJsonArray links;
    links << QJsonObject{{"name", "A1"}, {"axis", QJsonArray{0, 0, 0}}, {"next", QJsonObject{{"x", 100}}}};
    const ArmGeometry arm = armGeometryOf({{"links", links}});
    QVERIFY(length(ArmChain(arm, {{90}, {}}).flange().at - Vector{0, 100, 0}) < toleranceMm);
}

void TestViewChain::axesThatAreNotToldStandAtZero() {
    const ArmGeometry arm = armGeometryOf(controller::armDescription(onARail()));
    const Stance zeros{{0, 0, 0, 0, 0, 0}, {0}};
    QVERIFY(apart(ArmChain(arm, {}).flange(), ArmChain(arm, zeros).flange()) < toleranceMm);
}

QTEST_APPLESS_MAIN(TestViewChain)
#include "tst_view_chain.moc"
