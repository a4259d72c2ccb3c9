#include "keptvalues.h"
#include "teacher.h"
#include "teachplugin.h"

#include "pendanttest/pendant.h"
#include "pendanttest/robot.h"

#include <kite/interfacemanager.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryFile>
#include <QTest>
#include <QTreeWidget>

#include <memory>

using pendanttest::Pendant;
using pendanttest::Robot;

class TestTeach : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void thePointsOfTheProjectAreListed();
    void teachingAddsThePointWhereTheRobotStands_data();
    void teachingAddsThePointWhereTheRobotStands();
    void teachingTheSameNameReplaces();
    void withoutTheControllerNothingIsTaught();
    void withoutAPositionTheOldPointStays();
    void aPointNeedsAName();
    void aPoseIsLifted();
    void ofTwoNamesThatDifferInCaseOnlyTheFirstIsLifted();
    void jointsAreNotLifted();
    void twoPosesAreCompared();
    void whatWasTaughtIsCountedAndKept();
    void theCountIsDeletedByTheController();
    void aControllerThatRefusesKeepsTheCount();
    void withoutTheBusTheCountStays();

private:
    void begin(const QString& cell);

    template <typename Widget> Widget* find(const QString& name) {
        return m_pendant->page("teach")->findChild<Widget*>(name);
    }
    // What the jog page shows.
    static QJsonObject position() { return kite::kiteInterface()->getRelayData("robot.position").toObject(); }
    QString answer() { return find<QLabel>("answer")->text(); }
    QString count() { return find<QLabel>("count")->text(); }
    QStringList listed() {
        QStringList names;
        const auto* list = find<QTreeWidget>("points");
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            names << list->topLevelItem(i)->text(0);
        return names;
    }
    void choose(const QStringList& names) {
        auto* list = find<QTreeWidget>("points");
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            list->topLevelItem(i)->setSelected(names.contains(list->topLevelItem(i)->text(0)));
    }
    void teach(const QString& name, const QString& button) {
        find<QLineEdit>("pointName")->setText(name);
        QVERIFY(m_pendant->press(button));
        m_robot->settle();
    }

    std::unique_ptr<Pendant> m_pendant;
    std::unique_ptr<Robot> m_robot;
};

void TestTeach::init() {
    begin(QString());
}

void TestTeach::begin(const QString& cell) {
    m_pendant.reset(new Pendant);
    m_robot.reset(new Robot);
    cell.isEmpty() ? m_robot->loadDefaultCell() : m_robot->loadCell(cell);
    m_pendant->add<TeachPlugin>("teach");
    m_pendant->start();
    m_robot->connectLinks();
    QVERIFY(m_pendant->open("teach"));
}

void TestTeach::cleanup() {
    m_robot.reset();
    m_pendant.reset();
}

void TestTeach::thePointsOfTheProjectAreListed() {
    QCOMPARE(listed(), QStringList({"home", "park", "above_part", "part", "conveyor"}));
    QCOMPARE(listed(), kite::kiteInterface()->getPointNameList());
}

void TestTeach::teachingAddsThePointWhereTheRobotStands_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("joints");
    QTest::newRow("joints") << "teachJoints" << true;
    QTest::newRow("pose") << "teachPose" << false;
}

void TestTeach::teachingAddsThePointWhereTheRobotStands() {
    QFETCH(QString, button);
    QFETCH(bool, joints);
    const double before = position()["joint"].toObject()["inner_pos"].toArray().at(0).toDouble();
    m_robot->jog({controller::JogCommand::Joint, 0, 50}, 500);
    QVERIFY(position()["joint"].toObject()["inner_pos"].toArray().at(0).toDouble() != before);
    teach("P1", button);
    QCOMPARE(answer(), QString("“P1” is taught."));
    QCOMPARE(listed().last(), QString("P1"));
    Teacher teacher;
    QVERIFY(teacher.has("P1", joints ? Teacher::Kind::Joints : Teacher::Kind::Pose));
    const QVector<double> pose = kite::kiteInterface()->getPointDataByName("P1");
    QCOMPARE(pose.size(), 6);
    const QJsonObject here = position();
    if (!joints) {
        const QJsonObject place = here["cartesian"].toObject()["pose"].toObject()["frame"].toObject()["pos"].toObject();
        QCOMPARE(pose.mid(0, 3),
                 QVector<double>({place["x"].toDouble(), place["y"].toDouble(), place["z"].toDouble()}));
    } else {
        const QJsonObject record = kite::kiteInterface()->getPointObjDataByName("P1");
        const QJsonObject value = record["value"].toObject()["[0][0][0]"].toObject();
        QCOMPARE(value["inner_pos"], here["joint"].toObject()["inner_pos"]);
    }
}

void TestTeach::teachingTheSameNameReplaces() {
    teach("P1", "teachPose");
    teach("p1", "teachJoints");
    QCOMPARE(listed().filter("1"), QStringList("p1"));
}

void TestTeach::withoutTheControllerNothingIsTaught() {
    m_robot->controllerLink(false);
    teach("P1", "teachPose");
    QVERIFY(answer().startsWith("“P1” was not taught: "));
    QVERIFY(!listed().contains("P1"));
}

void TestTeach::withoutAPositionTheOldPointStays() {
    teach("P1", "teachPose");
    const QVector<double> before = kite::kiteInterface()->getPointDataByName("P1");
    m_robot->embedded()->controllerLink()->setFault(controller::Fault::Null);
    teach("P1", "teachPose");
    QCOMPARE(answer(), QString("“P1” was not taught: the controller gives no position for gripper in table."));
    QCOMPARE(kite::kiteInterface()->getPointDataByName("P1"), before);
    QCOMPARE(count(), QString("Taught: 1"));
}

void TestTeach::aPointNeedsAName() {
    teach(" ", "teachPose");
    QCOMPARE(answer(), QString("Give the point a name first."));
}

void TestTeach::aPoseIsLifted() {
    teach("P1", "teachPose");
    const double z = kite::kiteInterface()->getPointDataByName("P1").at(2);
    choose({"P1"});
    QVERIFY(m_pendant->press("lift"));
    QCOMPARE(kite::kiteInterface()->getPointDataByName("P1").at(2), z + 10);
}

void TestTeach::ofTwoNamesThatDifferInCaseOnlyTheFirstIsLifted() {
    cleanup();
    QTemporaryFile cell;
    QVERIFY(cell.open());
    cell.write(R"({"project": {"name": "twins", "points": [
        {"name": "P1", "property": "cart", "joints": [0, 0, 0, 0, 90, 0]},
        {"name": "p1", "property": "cart", "joints": [10, 0, 0, 0, 90, 0]}]}})");
    cell.close();
    begin(cell.fileName());
    const QVector<double> before = kite::kiteInterface()->getPointDataByName("P1");
    choose({"p1"});
    QVERIFY(m_pendant->press("lift"));
    QVERIFY(answer().startsWith("“P1” would be changed in place of “p1”."));
    QCOMPARE(kite::kiteInterface()->getPointDataByName("P1"), before);
}

void TestTeach::jointsAreNotLifted() {
    choose({"home"});
    QVERIFY(m_pendant->press("lift"));
    QCOMPARE(answer(), QString("“home” holds joints. Only a pose can be lifted."));
}

void TestTeach::twoPosesAreCompared() {
    QVERIFY(!m_pendant->press("compare"));
    teach("P1", "teachPose");
    teach("P2", "teachPose");
    choose({"P2"});
    QVERIFY(m_pendant->press("lift"));
    choose({"P1", "P2"});
    QVERIFY(m_pendant->press("compare"));
    QCOMPARE(answer(), QString("“P1” and “P2” are 10.0 mm apart."));
}

void TestTeach::whatWasTaughtIsCountedAndKept() {
    QCOMPARE(count(), QString("Nothing counted yet"));
    QVERIFY(!m_pendant->press("forget"));
    teach("P1", "teachPose");
    teach("P2", "teachJoints");
    QCOMPARE(count(), QString("Taught: 2"));
    QCOMPARE(kite::kiteInterface()->getVarDataList("int").filter("teach_count"), QStringList("teach_count"));
    QCOMPARE(find<QLabel>("last")->text(), QString("Last: P2"));
}

void TestTeach::theCountIsDeletedByTheController() {
    teach("P1", "teachPose");
    QVERIFY(m_pendant->press("forget"));
    m_robot->settle();
    QTRY_VERIFY(!kite::kiteInterface()->getVarDataList("").contains("teach_count"));
    QTRY_COMPARE(count(), QString("Nothing counted yet"));
}

void TestTeach::aControllerThatRefusesKeepsTheCount() {
    cleanup();
    QTemporaryFile cell;
    QVERIFY(cell.open());
    cell.write(R"({"project": {"name": "strict"}, "refuse": {"remove": ["teach_count"]}})");
    cell.close();
    begin(cell.fileName());
    teach("P1", "teachPose");
    m_pendant->expectError("refuses to remove the variable \"teach_count\"");
    QVERIFY(m_pendant->press("forget"));
    m_robot->settle();
    QCOMPARE(answer(), QString("The controller refused to delete “teach_count”."));
    QCOMPARE(count(), QString("Taught: 1"));
}

void TestTeach::withoutTheBusTheCountStays() {
    teach("P1", "teachPose");
    m_robot->bus(false);
    QVERIFY(m_pendant->press("forget"));
    QCOMPARE(answer(), QString("The bus is not connected: the variable stays."));
    QVERIFY(kite::kiteInterface()->getVarDataList("").contains("teach_count"));
}

QTEST_MAIN(TestTeach)
#include "tst_teachplugin.moc"
