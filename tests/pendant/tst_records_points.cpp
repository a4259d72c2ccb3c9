#include "recordsbench.h"

#include "pages/pointdetails.h"
#include "pages/pointvalues.h"
#include "pendanttest/robot.h"
#include "project/projectmirror.h"

#include "kite/interfacemanager.h"

#include "controller/robot/robot.h"

using kite::kiteInterface;

// The taught points of the project as the pendant lists them.
class TestPointsPage : public QObject {
    Q_OBJECT

private slots:
    void anEmptyListSaysHowToTeachAPoint();
    void aTaughtPointIsThereAtOnce();
    void anEditedPointIsShownAtOnce();
    void aPointThatWasEditedQuietlyIsShownWhenAnyIsAnnounced();
    void aTaughtPointHasTheValuesOfTheRobot();
    void theColumnsSayWhatThePointIs();
    void selectingAPointShowsAllItsValues_data();
    void selectingAPointShowsAllItsValues();
    void theShownValuesFollowThePoint();
    void afterAPointThatGoesTheNextIsSelected();

private:
    static brisk::ModuleObject* list() { return m("orca.project.point._list"); }
    static brisk::ModuleObject* addCartesian(const QString& name, double x) {
        return addRecord(list(), {{"name", name}, {"property", "cart"}, {"value.[0][0][0].pose.frame.pos.x", x}});
    }
    static void announce(const QString& operation, int index) {
        m("orca.project.point.hot_update.points")->set(nullptr, "#0", index);
        m("orca.project.point.hot_update.operate")->setValue(nullptr, operation);
    }
};

namespace {

struct Bench : RecordsBench {
    Bench() : RecordsBench(pendant::pagekeys::points()) {}

    /// What stands in the part for all values, in order.
    QStringList details() const {
        QStringList texts;
        const QWidget* shown = page()->findChild<QWidget*>("pointDetails");
        for (const QLabel* label : shown->isVisible() ? shown->findChildren<QLabel*>() : QList<QLabel*>()) {
            if (label->property("live").toBool())
                texts << label->text();
        }
        return texts;
    }
};

} // namespace

void TestPointsPage::anEmptyListSaysHowToTeachAPoint() {
    const Bench bench;
    QVERIFY(bench.empty()->isVisible());
    QVERIFY(bench.empty()->findChildren<QLabel*>().at(1)->text().contains("addCurrentPoint"));
}

void TestPointsPage::aTaughtPointIsThereAtOnce() {
    pendanttest::Robot robot;
    const Bench bench;
    robot.loadDefaultCell();
    robot.connectLinks();
    QVERIFY(kiteInterface()->addCurrentPoint("P1", true, "gripper", "table"));
    QVERIFY(kiteInterface()->addCurrentPoint("P2", false, "camera", "conveyor"));
    Frame::settle();
    QCOMPARE(bench.names(), (QStringList{"P1", "P2"}));
    QVERIFY2(bench.row(0).startsWith("P1|Joint|0.0  0.0  0.0  0.0  90.0  0.0|gripper|table|Auto"),
             qPrintable(bench.row(0)));
    QVERIFY2(bench.row(1).contains("|camera|conveyor|"), qPrintable(bench.row(1)));
    QVERIFY(kiteInterface()->addCurrentPoint("p1", true, "gripper", "table"));
    Frame::settle();
    QCOMPARE(bench.names(), (QStringList{"P2", "p1"}));
}

void TestPointsPage::anEditedPointIsShownAtOnce() {
    const Bench bench;
    addCartesian("a", 1);
    for (const char* leaf : {"pos.y", "pos.z", "ori.euler.a", "ori.euler.b", "ori.euler.c"})
        list()->set(nullptr, QString("#0.value.[0][0][0].pose.frame.") + leaf, 0.0);
    addCartesian("b", 2);
    Frame::settle();
    kiteInterface()->changeCartPoint("A", {10, 20, 30, 0, 0, 0});
    Frame::settle();
    QCOMPARE(bench.cell(0, 2), QString("10.0  20.0  30.0"));
    QCOMPARE(bench.cell(1, 2), QString("2.0  0.0  0.0"));
}

// The announced index is that of the last point, whichever was edited.
void TestPointsPage::aPointThatWasEditedQuietlyIsShownWhenAnyIsAnnounced() {
    const Bench bench;
    addCartesian("a", 1);
    addCartesian("b", 2);
    Frame::settle();
    bench.table()->selectRow(0);
    QCOMPARE(bench.details().first(), QString("1.000"));
    list()->set(nullptr, "#0.value.[0][0][0].pose.frame.pos.x", 5.0, false);
    Frame::settle();
    QCOMPARE(bench.details().first(), QString("1.000"));
    announce("edit", 1);
    Frame::settle();
    QCOMPARE(bench.details().first(), QString("5.000"));
}

void TestPointsPage::aTaughtPointHasTheValuesOfTheRobot() {
    pendanttest::Robot robot;
    const Bench bench;
    robot.loadDefaultCell();
    robot.connectLinks();
    controller::Posture posture;
    posture.joints = {10.5, -20.25, 30.125, 1, 45, -0.0625, 0};
    robot.controller()->robot()->setPosture(posture);
    QVERIFY(kiteInterface()->addCurrentPoint("P1", true, "gripper", "table"));
    Frame::settle();
    bench.table()->selectRow(0);
    QCOMPARE(bench.details().mid(0, 7),
             (QStringList{"10.500", "-20.250", "30.125", "1.000", "45.000", "-0.063", "0.000"}));
}

void TestPointsPage::theColumnsSayWhatThePointIs() {
    const Bench bench;
    addRecord(list(), {{"name", "n"},
                       {"property", "cart"},
                       {"description", "what it is"},
                       {"value.[0][0][0].pose.frame.pos.x", 1.25},
                       {"value.[0][0][0].pose.frame.pos.z", -0.04},
                       {"value.[0][0][0].coord.tool", "gun"},
                       {"value.[0][0][0].coord.wobj", "door"}});
    addRecord(list(), {});
    Frame::settle();
    QCOMPARE(bench.row(0), QString("n|Cartesian|1.3  0.0  0.0|gun|door|what it is"));
    QCOMPARE(bench.row(1), QString("|Cartesian|0.0  0.0  0.0|||"));
}

void TestPointsPage::selectingAPointShowsAllItsValues_data() {
    QTest::addColumn<QString>("property");
    QTest::addColumn<QStringList>("leaves");
    QStringList inner, outer, external;
    for (int i = 0; i < 7; ++i)
        inner << QString("inner_pos.#%1").arg(i);
    for (int i = 0; i < 6; ++i) {
        outer << QString("extern_pos.#%1").arg(i);
        external << QString("external_joint.#%1").arg(i);
    }
    QTest::newRow("joint") << "joint" << inner + outer;
    QStringList pose{"pose.frame.pos.x",
                     "pose.frame.pos.y",
                     "pose.frame.pos.z",
                     "pose.frame.ori.euler.a",
                     "pose.frame.ori.euler.b",
                     "pose.frame.ori.euler.c",
                     "pose.elb",
                     "pose.frame.ori.quaternion.q1",
                     "pose.frame.ori.quaternion.q2",
                     "pose.frame.ori.quaternion.q3",
                     "pose.frame.ori.quaternion.q4"};
    for (int i = 1; i <= 7; ++i)
        pose << QString("conf.cf%1").arg(i);
    QTest::newRow("Cartesian") << "cart" << pose + QStringList{"conf.cfx"} + external;
}

void TestPointsPage::selectingAPointShowsAllItsValues() {
    QFETCH(QString, property);
    QFETCH(QStringList, leaves);
    const Bench bench;
    brisk::ModuleObject* point = addRecord(list(), {{"name", "a"}, {"property", property}});
    for (int i = 0; i < leaves.size(); ++i)
        point->set(nullptr, "value.[0][0][0]." + leaves.at(i), 100.0 + i);
    Frame::settle();
    QVERIFY(bench.details().isEmpty());
    bench.table()->selectRow(0);
    const QStringList shown = bench.details();
    QCOMPARE(shown.size(), leaves.size());
    for (int i = 0; i < leaves.size(); ++i)
        QCOMPARE(shown.at(i).toDouble(), 100.0 + i);
}

void TestPointsPage::theShownValuesFollowThePoint() {
    const Bench bench;
    addCartesian("a", 1);
    Frame::settle();
    bench.table()->selectRow(0);
    list()->set(nullptr, "#0.value.[0][0][0].pose.frame.pos.x", 2.0);
    Frame::settle();
    QCOMPARE(bench.details().first(), QString("2.000"));
    list()->set(nullptr, "#0.property", "joint");
    Frame::settle();
    QCOMPARE(bench.details().size(), 13);
}

void TestPointsPage::afterAPointThatGoesTheNextIsSelected() {
    const Bench bench;
    addCartesian("a", 1);
    addCartesian("b", 2);
    Frame::settle();
    bench.table()->selectRow(0);
    list()->removeChild(list()->c("#0"));
    Frame::settle();
    QCOMPARE(bench.details().first(), QString("2.000"));
    list()->clear(nullptr, true, true);
    Frame::settle();
    QVERIFY(bench.details().isEmpty());
}

PENDANT_TEST_MAIN(TestPointsPage)
#include "tst_records_points.moc"
