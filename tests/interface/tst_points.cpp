#include "project.h"

namespace {

QJsonObject cartesianPoint(const QString& name, double x) {
    const QJsonObject euler{{"a", x + 3}, {"b", x + 4}, {"c", x + 5}};
    const QJsonObject frame{{"pos", QJsonObject{{"x", x}, {"y", x + 1}, {"z", x + 2}}},
                            {"ori", QJsonObject{{"euler", euler}, {"quaternion", QJsonObject{{"q1", 1}}}}}};
    const QJsonObject position{{"pose", QJsonObject{{"frame", frame}, {"elb", 7}}}, {"conf", QJsonObject{{"cf1", 8}}}};
    return {{"name", name}, {"property", "cart"}, {"value", QJsonObject{{"[0][0][0]", position}}}};
}

QJsonObject jointPoint(const QString& name) {
    const QJsonObject position{{"inner_pos", QJsonArray{1, 2, 3, 4, 5, 6, 7}}};
    return {{"name", name}, {"property", "joint"}, {"value", QJsonObject{{"[0][0][0]", position}}}};
}

const QVector<double> newPose{10, 20, 30, 40, 50, 60};
const QString frameOf("value.[0][0][0].pose.frame");

} // namespace

class TestPoints : public ProjectTest {
    Q_OBJECT

private slots:
    void thePoseIsThatOfTheFirstOfTheName_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVector<double>>("pose");
        QTest::newRow("first") << "P1" << QVector<double>{0.5, 1.5, 2.5, 3.5, 4.5, 5.5};
        QTest::newRow("another case") << "p1" << QVector<double>{10, 11, 12, 13, 14, 15};
        QTest::newRow("none") << "P3" << QVector<double>();
        QTest::newRow("part of a name") << "P" << QVector<double>();
        QTest::newRow("no name") << "" << QVector<double>();
        QTest::newRow("joint point") << "J" << QVector<double>{0, 0, 0, 0, 0, 0};
        QTest::newRow("number as a name") << "5" << QVector<double>{0, 0, 0, 0, 0, 0};
    }
    void thePoseIsThatOfTheFirstOfTheName() {
        QFETCH(QString, name);
        QFETCH(QVector<double>, pose);
        add(points(), cartesianPoint("P1", 0.5));
        add(points(), cartesianPoint("p1", 10));
        add(points(), cartesianPoint("P1", 20));
        add(points(), jointPoint("J"));
        add(points(), QJsonObject{{"name", 5}});
        follow();
        QCOMPARE(kiteInterface()->getPointDataByName(name), pose);
        QCOMPARE(events(), QStringList());
    }

    void whatIsMissingInAPoseIsZero_data() {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QVector<double>>("pose");
        QTest::newRow("a leaf") << frameOf + ".pos.y" << QVector<double>{1, 0, 3, 4, 5, 6};
        QTest::newRow("another leaf") << frameOf + ".ori.euler.c" << QVector<double>{1, 2, 3, 4, 5, 0};
        QTest::newRow("the position") << frameOf + ".pos" << QVector<double>{0, 0, 0, 4, 5, 6};
        QTest::newRow("the angles") << frameOf + ".ori.euler" << QVector<double>{1, 2, 3, 0, 0, 0};
        QTest::newRow("the orientation") << frameOf + ".ori" << QVector<double>{1, 2, 3, 0, 0, 0};
        QTest::newRow("the frame") << frameOf << QVector<double>{0, 0, 0, 0, 0, 0};
        QTest::newRow("all of it") << "value.[0][0][0]" << QVector<double>{0, 0, 0, 0, 0, 0};
        QTest::newRow("the value") << "value" << QVector<double>{0, 0, 0, 0, 0, 0};
    }
    void whatIsMissingInAPoseIsZero() {
        QFETCH(QString, missing);
        QFETCH(QVector<double>, pose);
        delete add(points(), cartesianPoint("P1", 1))->r(missing);
        const QJsonValue before = points()->exportToJson(true);
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), pose);
        QCOMPARE(points()->exportToJson(true), before);
    }

    void whatIsNoNumberInAPoseIsZero() {
        ModuleObject* frame = add(points(), cartesianPoint("P1", 1))->r(frameOf);
        frame->set(nullptr, "pos.x", "far");
        frame->set(nullptr, "pos.y", "2.5");
        frame->set(nullptr, "pos.z", QVariant());
        frame->set(nullptr, "ori.euler.a", true);
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), QVector<double>({0, 2.5, 0, 1, 5, 6}));
    }

    void theObjectIsThatOfTheFirstOfTheName() {
        add(points(), cartesianPoint("p1", 1));
        add(points(), cartesianPoint("P1", 2));
        add(points(), cartesianPoint("P1", 3));
        QCOMPARE(kiteInterface()->getPointObjDataByName("P1"), cartesianPoint("P1", 2));
        QCOMPARE(kiteInterface()->getPointObjDataByName("p1"), cartesianPoint("p1", 1));
        QCOMPARE(kiteInterface()->getPointObjDataByName("P2"), QJsonObject());
        QCOMPARE(kiteInterface()->getPointObjDataByName(""), QJsonObject());
    }

    void theTwoLookUpsReadNamesEachInItsWay_data() {
        QTest::addColumn<QJsonValue>("stored");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("asPoint");
        QTest::addColumn<bool>("asVariable");
        QTest::newRow("text") << QJsonValue("5") << "5" << true << true;
        QTest::newRow("number") << QJsonValue(5) << "5" << false << true;
        QTest::newRow("number, empty name") << QJsonValue(5) << "" << true << false;
        QTest::newRow("bool") << QJsonValue(true) << "true" << false << true;
        QTest::newRow("none") << QJsonValue() << "" << true << true;
        QTest::newRow("empty") << QJsonValue("") << "" << true << true;
        QTest::newRow("array") << QJsonValue(QJsonArray{"a"}) << "a" << false << false;
        QTest::newRow("array, empty name") << QJsonValue(QJsonArray()) << "" << true << true;
        QTest::newRow("object, empty name") << QJsonValue(QJsonObject{{"a", 1}}) << "" << true << true;
    }
    void theTwoLookUpsReadNamesEachInItsWay() {
        QFETCH(QJsonValue, stored);
        QFETCH(QString, name);
        QFETCH(bool, asPoint);
        QFETCH(bool, asVariable);
        const QJsonObject point =
            add(points(), QJsonObject{{"name", stored}, {"id", 1}})->exportToJson(true).toObject();
        QCOMPARE(kiteInterface()->getPointObjDataByName(name), asPoint ? point : QJsonObject());
        QCOMPARE(kiteInterface()->getVarObjDataByName(name), asVariable ? point : QJsonObject());
    }

    void anExportedNameMayHaveATypeBeneathIt() {
        ModuleObject* record = add(points(), QJsonObject{{"name", "a"}});
        record->set(nullptr, "name.type", "serials");
        QCOMPARE(kiteInterface()->getPointObjDataByName("a"), QJsonObject());
        QVERIFY(!kiteInterface()->getVarObjDataByName("a").isEmpty());
        QCOMPARE(kiteInterface()->getPointNameList(), QStringList{"a"});
    }

    void whatIsNoListHoldsNoPoints() {
        delete points();
        ModuleObject* noList = m("orca.project.point._list");
        noList->set(nullptr, "first.name", "P1");
        QCOMPARE(kiteInterface()->getPointObjDataByName("P1"), QJsonObject());
        QCOMPARE(kiteInterface()->getVarObjDataByName("P1"), QJsonObject({{"name", "P1"}}));
        QCOMPARE(kiteInterface()->getPointNameList(), QStringList{"P1"});
    }

    void namesComeInOrder() {
        QCOMPARE(kiteInterface()->getPointNameList(), QStringList());
        add(points(), QStringList{"b", "a", "b", "", "A"});
        add(points(), QJsonObject{{"id", 5}});
        add(points(), QJsonObject{{"name", 5}});
        delete points()->c(1);
        QCOMPARE(kiteInterface()->getPointNameList(), QStringList({"b", "b", "", "A", "", "5"}));
        for (const QString& name : kiteInterface()->getPointNameList())
            QVERIFY(!name.isNull());
    }

    void namesAreComparedAsTheyAre_data() {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("same");
        QTest::newRow("the same") << "P1"
                                  << "P1" << true;
        QTest::newRow("another case") << "P1"
                                      << "p1" << false;
        QTest::newRow("a blank") << "P1"
                                 << "P1 " << false;
        QTest::newRow("empty and null") << "" << QString() << true;
        QTest::newRow("points that are equal") << "P1"
                                               << "P2" << false;
    }
    void namesAreComparedAsTheyAre() {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(bool, same);
        add(points(), cartesianPoint("P1", 1));
        add(points(), cartesianPoint("P2", 1));
        QCOMPARE(kiteInterface()->checkPointSame(first, second), same);
    }

    void changingSetsSixLeavesAndAnnouncesTheLastPoint() {
        for (const char* name : {"P0", "P1", "P2"})
            add(points(), cartesianPoint(name, 1));
        m("orca.project.point.hot_update.points")->setList(nullptr, {7, 8});
        follow();
        kiteInterface()->changeCartPoint("P1", newPose);
        const QString frame = "point._list.#1." + frameOf;
        QCOMPARE(events(), QStringList({frame + ".pos.x 10 kite", frame + ".pos.y 20 kite", frame + ".pos.z 30 kite",
                                        frame + ".ori.euler.a 40 kite", frame + ".ori.euler.b 50 kite",
                                        frame + ".ori.euler.c 60 kite", "point.hot_update.points null nobody",
                                        "point.hot_update.points null kite", "point.hot_update.points.#0 2 kite",
                                        // made by asking for it
                                        "point.hot_update null nobody", "point.hot_update.operate \"edit\" kite"}));
        QCOMPARE(compact(m("orca.project.point.hot_update")->exportToJson(true)),
                 QString(R"({"operate":"edit","points":[2]})"));

        QCOMPARE(points()->r("#1." + frameOf + ".ori.quaternion.q1")->getInt(), 1);
        QCOMPARE(points()->r("#1.value.[0][0][0].conf.cf1")->getInt(), 8);
        QCOMPARE(points()->r("#1.value.[0][0][0].pose.elb")->getInt(), 7);
        QCOMPARE(points()->c(0)->exportToJson(true), QJsonValue(cartesianPoint("P0", 1)));
        QCOMPARE(points()->c(2)->exportToJson(true), QJsonValue(cartesianPoint("P2", 1)));
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), newPose);
    }

    void changingIgnoresCaseAndTakesTheFirst() {
        add(points(), cartesianPoint("P1x", 1));
        add(points(), cartesianPoint("P1", 1));
        add(points(), cartesianPoint("p1", 1));
        kiteInterface()->changeCartPoint("p1", newPose);
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), newPose);
        QCOMPARE(kiteInterface()->getPointDataByName("p1").at(0), 1.0);
        add(points(), cartesianPoint("ÄÖ", 1));
        kiteInterface()->changeCartPoint("äö", newPose);
        QCOMPARE(kiteInterface()->getPointDataByName("ÄÖ"), newPose);
    }

    void anUnknownPointIsNotChanged() {
        add(points(), cartesianPoint("P1", 1));
        follow();
        kiteInterface()->changeCartPoint("P2", newPose);
        kiteInterface()->changeCartPoint("", newPose);
        kiteInterface()->changeCartPoint("P", newPose);
        QCOMPARE(events(), QStringList());
    }

    void aPoseOfFewerThanSixChangesNothing() {
        add(points(), cartesianPoint("P1", 1));
        follow();
        kiteInterface()->changeCartPoint("P1", {});
        kiteInterface()->changeCartPoint("P1", newPose.mid(0, 5));
        QCOMPARE(events(), QStringList());
        kiteInterface()->changeCartPoint("P1", newPose + QVector<double>{70});
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), newPose);
    }

    void aJointPointKeepsWhatItHasAndIsAnnounced() {
        add(points(), cartesianPoint("P1", 1));
        add(points(), jointPoint("J"));
        kiteInterface()->changeCartPoint("J", newPose);
        QCOMPARE(points()->c(1)->exportToJson(true), QJsonValue(jointPoint("J")));
        QCOMPARE(compact(m("orca.project.point.hot_update")->exportToJson(true)),
                 QString(R"({"operate":"edit","points":[1]})"));
    }

    void missingPositionNodesAreNotMade_data() {
        QTest::addColumn<QString>("missing");
        for (const char* part : {"value", "value.[0][0][0]", "value.[0][0][0].pose"})
            QTest::newRow(part) << part;
        for (const char* part : {"", ".pos", ".pos.x", ".pos.z", ".ori", ".ori.euler", ".ori.euler.b"})
            QTest::newRow(qPrintable("frame" + QString(part))) << frameOf + part;
    }
    void missingPositionNodesAreNotMade() {
        QFETCH(QString, missing);
        ModuleObject* point = add(points(), cartesianPoint("P1", 1));
        delete point->r(missing);
        const int before = point->cmobjs(true).size();
        kiteInterface()->changeCartPoint("P1", newPose);
        QVERIFY(!point->r(missing));
        QCOMPARE(point->cmobjs(true).size(), before);
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(0));
    }

    void valuesAreDoubles() {
        add(points(), cartesianPoint("P1", 1));
        kiteInterface()->changeCartPoint("P1", newPose);
        for (const char* leaf : {".pos.x", ".pos.y", ".pos.z", ".ori.euler.a", ".ori.euler.b", ".ori.euler.c"})
            QCOMPARE(points()->r("#0." + frameOf + leaf)->value().userType(), int(QMetaType::Double));
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value().userType(), int(QMetaType::Int));
    }

    void whoHearsOfAChangeMayDeleteThePoint() {
        add(points(), cartesianPoint("P1", 1));
        add(points(), cartesianPoint("P2", 1));
        connect(points()->r("#1." + frameOf + ".pos.y"), &ModuleObject::changed, context(),
                [] { delete points()->c(1); });
        kiteInterface()->changeCartPoint("P2", newPose);
        QCOMPARE(names(points()), QStringList{"#0=P1"});
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(0));
    }

    void whoHearsOfAChangeMayDeleteTheList() {
        add(points(), cartesianPoint("P1", 1));
        connect(points()->r("#0." + frameOf + ".pos.x"), &ModuleObject::changed, context(), [] { delete points(); });
        kiteInterface()->changeCartPoint("P1", newPose);
        QVERIFY(!points());
    }

    // Such as the pose that a page shows, which follows the point.
    void thePoseIsThatOfTheCall() {
        add(points(), cartesianPoint("P1", 1));
        QVector<double> shown = newPose;
        connect(project(), &ModuleObject::touched, context(),
                [&shown] { shown = kiteInterface()->getPointDataByName("P1"); });
        kiteInterface()->changeCartPoint("P1", shown);
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), newPose);
    }

    void thePoseMayBeEmptiedMeanwhile() {
        add(points(), cartesianPoint("P1", 1));
        QVector<double> shown = newPose;
        connect(points()->r("#0." + frameOf + ".pos.y"), &ModuleObject::changed, context(), [&shown] {
            shown.clear();
            shown.squeeze();
        });
        kiteInterface()->changeCartPoint("P1", shown);
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), newPose);
    }

    void theIndexIsCountedOnceTheFormerOneIsCleared() {
        add(points(), cartesianPoint("P1", 1));
        connect(m("orca.project.point.hot_update.points"), &ModuleObject::cleared, context(), [] {
            add(points(), QStringList{"P2", "P3"});
        });
        kiteInterface()->changeCartPoint("P1", newPose);
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(2));
    }

    void theListMayGoWhenTheFormerIndexIsCleared() {
        add(points(), cartesianPoint("P1", 1));
        connect(m("orca.project.point.hot_update.points"), &ModuleObject::cleared, context(), [] { delete points(); });
        kiteInterface()->changeCartPoint("P1", newPose);
        QCOMPARE(compact(m("orca.project.point.hot_update")->exportToJson(true)),
                 QString(R"({"operate":"edit","points":[-1]})"));
    }

    void nothingIsSent() {
        add(points(), cartesianPoint("P1", 1));
        kiteInterface()->getPointDataByName("P1");
        kiteInterface()->getPointObjDataByName("P1");
        kiteInterface()->getPointNameList();
        kiteInterface()->checkPointSame("P1", "P2");
        kiteInterface()->changeCartPoint("P1", newPose);
        QCOMPARE(bus().sent.size(), 0);
        QCOMPARE(controller().sent.size(), 0);
        QCOMPARE(log().lines(), QStringList());
    }

    void aProjectThatIsNotThereHasNoPoints() {
        m("orca")->clear(nullptr, false, true);
        QCOMPARE(kiteInterface()->getPointObjDataByName("P1"), QJsonObject());
        QVERIFY(!m("orca")->r("project.point._list"));
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), QVector<double>());
        QCOMPARE(kiteInterface()->getPointNameList(), QStringList());
        kiteInterface()->changeCartPoint("P1", newPose);
        kiteInterface()->changeCartPoint("", newPose);
        QVERIFY(!m("orca")->r("project.point.hot_update"));
    }
};

QTEST_GUILESS_MAIN(TestPoints)
#include "tst_points.moc"
