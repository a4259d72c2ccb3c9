#include "errorline.h"
#include "movepoints.h"

namespace {

const QString frameOf("value.[0][0][0].pose.frame");
const QString confOf("value.[0][0][0].conf");
const QString startOfLine("<kite interfacemanager> moveToStart : ");

} // namespace

/// The start of a move, in both of its forms. Every start writes a line at the error level.
class TestMove : public ProjectTest {
    Q_OBJECT

private slots:
    void aStartIsFourMessages_data() {
        QTest::addColumn<bool>("secondForm");
        QTest::newRow("first form") << false;
        QTest::newRow("second form") << true;
    }
    void aStartIsFourMessages() {
        QFETCH(bool, secondForm);
        add(points(), MovePoints::cartesian("P1", 100, 200, 300));
        follow();
        int result = 77;
        log().expect(startOfLine);
        if (secondForm)
            kiteInterface()->moveToStart(result, "P1", 250, true, false);
        else
            kiteInterface()->moveToStart(result, "P1", 250, false);
        const QString kite(" kite::InterfaceManager");
        QCOMPARE(events(), QStringList({"execute move.reset" + kite, "watch move.last_error_with_setting" + kite,
                                        "command move.move_to.l" + kite, "command move.opr.enough" + kite}));
        QCOMPARE(result, 77);
        QVERIFY(bus().sent.at(0).wantsAnswer && !bus().sent.at(0).content);
        QVERIFY(!bus().sent.at(2).wantsAnswer && bus().sent.at(2).content);
        QVERIFY(!bus().sent.at(3).wantsAnswer && !bus().sent.at(3).content);
        QCOMPARE(controller().sent.size(), 0);
    }

    void theSecondFormSendsThePoseWithXTwice() {
        add(points(), MovePoints::cartesian("P1", 100, 200, 300));
        ModuleObject* command = move("P1", 250, false);
        QCOMPARE(compact(command->exportToJson(true)),
                 QString(R"({"point":{"rot":[0.01,0.0205,-0.09],"trans":[0.1,0.1,0.3]},"traj":{"speed":0.25}})"));
        QCOMPARE(keys(command), QStringList({"point", "traj"}));
        QCOMPARE(keys(command->c("point")), QStringList({"rot", "trans"}));
        QCOMPARE(keys(command->r("point.trans")), QStringList({"#0", "#1", "#2"}));
        QCOMPARE(command->r("point.trans")->c(1)->value(), QVariant(0.1));
        for (ModuleObject* leaf : command->cmobjs(true)) {
            if (leaf->cmobjCount() == 0)
                QCOMPARE(leaf->value().userType(), int(QMetaType::Double));
        }
    }

    void theConfigurationGoesAsItIsWhenItIsAskedFor() {
        add(points(), MovePoints::cartesian("P1", 100, 200, 300));
        ModuleObject* command = move("P1", 250, true);
        QCOMPARE(keys(command->c("point")), QStringList({"conf", "rot", "trans"}));
        QCOMPARE(json(command->r("point.conf")), QString("[1,2,3,4,5,6,7,8.5]"));
        QCOMPARE(json(command->r("point.trans")), QString("[0.1,0.1,0.3]"));
        for (ModuleObject* leaf : command->r("point.conf")->cmobjs())
            QCOMPARE(leaf->value().userType(), int(QMetaType::Double));
    }

    void theConfigurationIsReadByPlaceAndHasEightNumbers_data() {
        QTest::addColumn<QVariant>("conf");
        QTest::addColumn<QString>("sent");
        const auto row = [](const char* name, const QVariant& conf, const char* sent) {
            QTest::newRow(name) << conf << sent;
        };
        row("other names", QVariantList{8, 7, 6, 5, 4, 3, 2, 1}, "[8,7,6,5,4,3,2,1]");
        row("nine", QVariantList{1, 2, 3, 4, 5, 6, 7, 8, 9}, "[1,2,3,4,5,6,7,8]");
        row("three", QVariantList{1, 2, 3}, "[1,2,3,0,0,0,0,0]");
        row("no numbers", QVariantList{"far", "2.5", true}, "[0,2.5,1,0,0,0,0,0]");
        row("none", QVariant(), "[0,0,0,0,0,0,0,0]");
    }
    void theConfigurationIsReadByPlaceAndHasEightNumbers() {
        QFETCH(QVariant, conf);
        QFETCH(QString, sent);
        ModuleObject* point = add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        if (conf.isValid())
            point->r(confOf)->setList(nullptr, conf.toList());
        else
            delete point->r(confOf);
        QCOMPARE(json(move("P1", 1, true)->r("point.conf")), sent);
    }

    void whatIsNotThereOfAPoseIsNotSent_data() {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("sent");
        const auto row = [](const char* name, const QString& missing, const char* sent) {
            QTest::newRow(name) << missing << sent;
        };
        row("the angles", frameOf + ".ori.euler", R"({"trans":[0.001,0.001,0.003]})");
        row("the orientation", frameOf + ".ori", R"({"trans":[0.001,0.001,0.003]})");
        row("the position", frameOf + ".pos", R"({"rot":[0.01,0.0205,-0.09]})");
        row("the frame", frameOf, "null");
        row("the pose", "value.[0][0][0].pose", "null");
        row("all of it", "value.[0][0][0]", "null");
        row("the value", "value", "null");
        row("y", frameOf + ".pos.y", R"({"rot":[0.01,0.0205,-0.09],"trans":[0.001,0.001,0.003]})");
        row("x", frameOf + ".pos.x", R"({"rot":[0.01,0.0205,-0.09],"trans":[0,0,0.003]})");
        row("z", frameOf + ".pos.z", R"({"rot":[0.01,0.0205,-0.09],"trans":[0.001,0.001,0]})");
        row("an angle", frameOf + ".ori.euler.b", R"({"rot":[0.01,0,-0.09],"trans":[0.001,0.001,0.003]})");
    }
    void whatIsNotThereOfAPoseIsNotSent() {
        QFETCH(QString, missing);
        QFETCH(QString, sent);
        ModuleObject* point = add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        const QJsonValue before = points()->exportToJson(true);
        delete point->r(missing);
        const QJsonValue lacking = points()->exportToJson(true);
        QVERIFY(before != lacking);
        QCOMPARE(json(move("P1", 1, false)->c("point")), sent);
        QCOMPARE(points()->exportToJson(true), lacking);
    }

    void anEmptyPoseIsNotSent() {
        ModuleObject* point = add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        point->r(frameOf + ".pos")->clear(nullptr, false, true);
        QCOMPARE(json(move("P1", 1, false)->c("point")), QString(R"({"rot":[0.01,0.0205,-0.09]})"));
        point->r(frameOf + ".ori.euler")->clear(nullptr, false, true);
        QCOMPARE(json(move("P1", 1, false)->c("point")), QString("null"));
    }

    void aPoseOfZerosIsSent() {
        ModuleObject* point = add(points(), MovePoints::cartesian("P1", 0, 0, 0));
        for (const char* angle : {"a", "b", "c"})
            point->r(frameOf + ".ori.euler")->child(angle)->setValue(nullptr, 0);
        QCOMPARE(json(move("P1", 1, false)->c("point")), QString(R"({"rot":[0,0,0],"trans":[0,0,0]})"));
    }

    // Such a point looks like any other: the way to the origin of the work object.
    void aPointThatWasTaughtWithoutAnAnswerIsSentAsZeros() {
        controller().answers = false;
        QVERIFY(kiteInterface()->addCurrentPoint("P1", false, "tool0", "wobj0"));
        QCOMPARE(json(move("P1", 1, false)->c("point")), QString(R"({"rot":[0,0,0],"trans":[0,0,0]})"));
        QCOMPARE(json(move("P1", 1, true)->r("point.conf")), QString("[0,0,0,0,0,0,0,0]"));
    }

    void aJointPointWhosePatternHasAPoseIsSentAsThatPose() {
        m("orca.project.point.default")->importFromJson(nullptr, MovePoints::cartesian("", 0, 0, 7), false, true, true);
        controller().answerWith(contentOf(QVariant(QJsonObject{{"joint", QJsonObject()}})));
        QVERIFY(kiteInterface()->addCurrentPoint("J", true, "tool0", "wobj0"));
        QCOMPARE(kiteInterface()->getPointObjDataByName("J")["property"], QJsonValue("joint"));
        QCOMPARE(json(move("J", 1, false)->c("point")), QString(R"({"rot":[0.01,0.0205,-0.09],"trans":[0,0,0.007]})"));
    }

    void aJointPointHasNoTarget() {
        add(points(), MovePoints::joint("J"));
        QCOMPARE(json(move("J", 1, false)), QString(R"({"traj":{"speed":0.001}})"));
        QCOMPARE(json(move("J", 1, true)->c("point")), QString(R"({"conf":[0,0,0,0,0,0,0,0]})"));
    }

    void theFirstFormSendsNoTarget_data() {
        QTest::addColumn<QString>("missing");
        QTest::newRow("nothing is missing") << "";
        QTest::newRow("the angles") << frameOf + ".ori.euler";
        QTest::newRow("the position") << frameOf + ".pos";
        QTest::newRow("the frame") << frameOf;
        QTest::newRow("the value") << "value";
    }
    void theFirstFormSendsNoTarget() {
        QFETCH(QString, missing);
        ModuleObject* point = add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        if (!missing.isEmpty())
            delete point->r(missing);
        ModuleObject* command = moveByFirstForm("P1", 250, false);
        QCOMPARE(keys(command), QStringList({"point", "traj"}));
        QVERIFY(command->c("point")->isEmpty() && !command->c("point")->isList());
        QCOMPARE(json(command), QString(R"({"traj":{"speed":0.25}})"));
    }

    void theSpeedIsDividedBy1000_data() {
        QTest::addColumn<int>("speed");
        QTest::addColumn<double>("sent");
        QTest::newRow("250") << 250 << 0.25;
        QTest::newRow("1") << 1 << 0.001;
        QTest::newRow("0") << 0 << 0.0;
        QTest::newRow("-50") << -50 << -0.05;
        QTest::newRow("the greatest") << std::numeric_limits<int>::max() << 2147483.647;
        QTest::newRow("the least") << std::numeric_limits<int>::min() << -2147483.648;
    }
    void theSpeedIsDividedBy1000() {
        QFETCH(int, speed);
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        for (ModuleObject* command : {move("P1", speed, false), moveByFirstForm("P1", speed, true)}) {
            QTEST(command->r("traj.speed")->value().toDouble(), "sent");
            QCOMPARE(command->r("traj.speed")->value().userType(), int(QMetaType::Double));
        }
    }

    void theVersionNamesTheCommand_data() {
        QTest::addColumn<QVariant>("version");
        QTest::addColumn<QString>("joint");
        QTest::addColumn<QString>("linear");
        const auto row = [](const char* version, bool isLong) {
            QTest::newRow(version) << QVariant(version) << (isLong ? "move.move_to.jc" : "move.j")
                                   << (isLong ? "move.move_to.l" : "move.l");
        };
        for (const char* version : {"2.3", "2.3.9", "3.0", "3.0.1", "3.1", "3.1.4", "3.10"})
            row(version, true);
        for (const char* version : {"1.0", "2.2", "2.4", "3.2", "4", "3", "13.0", " 3.1", "v3.1", ""})
            row(version, false);
        QTest::newRow("none") << QVariant() << "move.j"
                              << "move.l";
    }
    void theVersionNamesTheCommand() {
        QFETCH(QVariant, version);
        QFETCH(QString, joint);
        QFETCH(QString, linear);
        m("helm.r.version")->setValue(nullptr, version);
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        move("P1", 1, false);
        QCOMPARE(sentCommand(), linear);
        move("P1", 1, false, true);
        QCOMPARE(sentCommand(), joint);
        moveByFirstForm("P1", 1, false);
        QCOMPARE(sentCommand(), linear);
        moveByFirstForm("P1", 1, true);
        QCOMPARE(sentCommand(), joint);
    }

    void thePointIsTheFirstOfExactlyThatName() {
        add(points(), MovePoints::cartesian("p1", 1, 0, 1));
        add(points(), MovePoints::cartesian("P1", 2, 0, 2));
        add(points(), MovePoints::cartesian("P1", 3, 0, 3));
        add(points(), QJsonObject{{"value", 5}});
        QCOMPARE(json(move("P1", 1, false)->r("point.trans")), QString("[0.002,0.002,0.002]"));
        QCOMPARE(json(move("p1", 1, false)->r("point.trans")), QString("[0.001,0.001,0.001]"));
        QVERIFY(move("", 1, false)->c("point")->isEmpty());
    }

    void withoutThePointNothingIsSent_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("another case") << "p1";
        QTest::newRow("part of a name") << "P";
        QTest::newRow("more than a name") << "P1 ";
        QTest::newRow("a node's name") << "#0";
        QTest::newRow("none") << "";
    }
    void withoutThePointNothingIsSent() {
        QFETCH(QString, name);
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        follow();
        int result = 77;
        log().expect("no point find!");
        kiteInterface()->moveToStart(result, name, 250, false);
        QCOMPARE(result, -1);
        verifyErrorLine(log(), folder(), "<kite interfacemanager>no point find!");
        result = 77;
        log().expect("no point find!");
        kiteInterface()->moveToStart(result, name, 250, true, false);
        QCOMPARE(result, -1);
        QCOMPARE(log().count("<kite interfacemanager>no point find!"), 2);
        QCOMPARE(events(), QStringList());
        QCOMPARE(bus().sent.size(), 0);
    }

    void withoutAListThereIsNoPoint() {
        delete points();
        int result = 0;
        log().expect("no point find!");
        kiteInterface()->moveToStart(result, "P1", 250, true, true);
        QCOMPARE(result, -1);
        QCOMPARE(bus().sent.size(), 0);
    }

    void whatIsSentIsALine_data() {
        QTest::addColumn<bool>("secondForm");
        QTest::addColumn<QString>("json");
        QTest::newRow("first form") << false << R"({"traj":{"speed":0.25}})";
        QTest::newRow("second form") << true
                                     << R"({"point":{"rot":[0.01,0.0205,-0.09],"trans":[0.1,0.1,0.3]},)"
                                        R"("traj":{"speed":0.25}})";
    }
    void whatIsSentIsALine() {
        QFETCH(bool, secondForm);
        QFETCH(QString, json);
        add(points(), MovePoints::cartesian("P1", 100, 200, 300));
        int result = 0;
        log().expect(startOfLine);
        if (secondForm)
            kiteInterface()->moveToStart(result, "P1", 250, false, true);
        else
            kiteInterface()->moveToStart(result, "P1", 250, true);
        verifyErrorLine(log(), folder(), startOfLine + "QJsonValue(object, QJsonObject(" + json + "))");
    }

    void theLineComesBeforeTheMove() {
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        QStringList seen;
        const QObject listener;
        connect(brisk::standin::Traffic::instance(), &brisk::standin::Traffic::recorded, &listener,
                [&](const brisk::standin::TrafficEntry& entry) {
                    if (entry.direction == brisk::standin::TrafficEntry::Direction::Out)
                        seen << entry.key + " " + QString::number(log().lines().size());
                });
        move("P1", 1, false);
        QCOMPARE(seen, QStringList({"move.reset 0", "move.last_error_with_setting 0", "move.move_to.l 1",
                                    "move.opr.enough 1"}));
    }

    void theAnswerToTheResetIsNotLookedAt_data() {
        QTest::addColumn<Content>("answer");
        QTest::newRow("nothing at all") << Content();
        QTest::newRow("empty") << contentOf(QVariant());
        QTest::newRow("a refusal") << brisk::standin::refusal("no");
        QTest::newRow("a list") << contentOf(QVariant(QJsonArray{1}));
    }
    void theAnswerToTheResetIsNotLookedAt() {
        QFETCH(Content, answer);
        bus().answerWith(answer);
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        move("P1", 1, false);
        QCOMPARE(bus().sent.size(), 4);
    }

    void aResetWithoutAnAnswerDoesNotHoldTheMoveBack() {
        bus().answers = false;
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        move("P1", 1, false);
        QCOMPARE(bus().sent.size(), 4);
    }

    void withTheBusDownNothingIsSentAndTheResultStays() {
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        bus().setUp(false);
        int result = 77;
        log().expect(startOfLine);
        kiteInterface()->moveToStart(result, "P1", 250, true, false);
        QCOMPARE(result, 77);
        QCOMPARE(bus().sent.size(), 0);
        // What is left of it: the key is watched as soon as the bus is up.
        bus().setUp(true);
        QCOMPARE(watches(), QStringList{"+move.last_error_with_setting"});
        kiteInterface()->moveToStop();
    }

    void thePointMayGoWhileTheControllerAnswers() {
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        bus().reply = [](const Message&) {
            points()->clear(nullptr, false, false);
            return Content();
        };
        QVERIFY(move("P1", 1, false)->c("point")->isEmpty());
        QVERIFY(points()->cmobjCount() == 0);
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        QCOMPARE(json(move("P1", 1, true)->c("point")), QString(R"({"conf":[0,0,0,0,0,0,0,0]})"));
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        QVERIFY(moveByFirstForm("P1", 1, true)->c("point")->isEmpty());
    }

    void cleanup() {
        kiteInterface()->moveToStop();
        endProject();
    }

private:
    static QString json(ModuleObject* node) { return compact(node->exportToJson(true)); }
    QString sentCommand() { return bus().sent.at(bus().sent.size() - 2).key; }
    /// What was sent; lives as long as the case.
    ModuleObject* lastCommand() { return bus().sent.at(bus().sent.size() - 2).content.get(); }
    ModuleObject* move(const QString& name, int speed, bool withConf, bool joint = false) {
        int result = 0;
        log().expect(startOfLine);
        kiteInterface()->moveToStart(result, name, speed, withConf, joint);
        return lastCommand();
    }
    ModuleObject* moveByFirstForm(const QString& name, int speed, bool joint) {
        int result = 0;
        log().expect(startOfLine);
        kiteInterface()->moveToStart(result, name, speed, joint);
        return lastCommand();
    }
};

QTEST_GUILESS_MAIN(TestMove)
#include "tst_move.moc"
