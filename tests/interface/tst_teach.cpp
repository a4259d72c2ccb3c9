#include "project.h"

#include <QDateTime>
#include <QTranslator>

namespace {

// Each number is there once.
QJsonObject robotPosition() {
    const QJsonObject frame{
        {"pos", QJsonObject{{"x", 1.5}, {"y", 2}, {"z", 3}}},
        {"ori", QJsonObject{{"euler", QJsonObject{{"a", 5}, {"b", 6}, {"c", 7}}},
                            {"quaternion", QJsonObject{{"q1", 8}, {"q2", 9}, {"q3", 10}, {"q4", 11}}}}}};
    const QJsonObject conf{{"cf1", 12}, {"cf2", 13}, {"cf3", 14}, {"cf4", 15},
                           {"cf5", 16}, {"cf6", 17}, {"cf7", 18}, {"cfx", 19}};
    const QJsonObject cartesian{{"pose", QJsonObject{{"frame", frame}, {"elb", 4}}},
                                {"conf", conf},
                                {"external_joint", QJsonArray{-1, -1, -1, -1, -1, -1}},
                                {"extern_pos", QJsonArray{-2, -2, -2, -2, -2, -2}}};
    const QJsonObject joint{{"inner_pos", QJsonArray{20, 21, 22, 23, 24, 25, 26.5}},
                            {"extern_pos", QJsonArray{30, 31, 32, 33, 34, 35.5}}};
    return {{"joint", joint}, {"cartesian", cartesian}};
}

// "key=value" of the leaves below, in their order.
QStringList leaves(ModuleObject* node, const QString& prefix = QString()) {
    QStringList list;
    for (ModuleObject* child : node->cmobjs()) {
        const QString key = prefix + child->name();
        if (child->cmobjCount() == 0)
            list << key + "=" + child->getString();
        list << leaves(child, key + ".");
    }
    return list;
}

const QStringList jointLeaves{"inner_pos.#0=20",    "inner_pos.#1=21",  "inner_pos.#2=22",   "inner_pos.#3=23",
                              "inner_pos.#4=24",    "inner_pos.#5=25",  "inner_pos.#6=26.5", "extern_pos.#0=30",
                              "extern_pos.#1=31",   "extern_pos.#2=32", "extern_pos.#3=33",  "extern_pos.#4=34",
                              "extern_pos.#5=35.5", "coord.tool=gun",   "coord.wobj=table"};

const QStringList cartesianLeaves{"pose.frame.pos.x=1.5",
                                  "pose.frame.pos.y=2",
                                  "pose.frame.pos.z=3",
                                  "pose.frame.ori.euler.a=5",
                                  "pose.frame.ori.euler.b=6",
                                  "pose.frame.ori.euler.c=7",
                                  "pose.frame.ori.quaternion.q1=8",
                                  "pose.frame.ori.quaternion.q2=9",
                                  "pose.frame.ori.quaternion.q3=10",
                                  "pose.frame.ori.quaternion.q4=11",
                                  "pose.elb=4",
                                  "conf.cf1=12",
                                  "conf.cf2=13",
                                  "conf.cf3=14",
                                  "conf.cf4=15",
                                  "conf.cf5=16",
                                  "conf.cf6=17",
                                  "conf.cf7=18",
                                  "conf.cfx=19",
                                  "external_joint.#0=30",
                                  "external_joint.#1=31",
                                  "external_joint.#2=32",
                                  "external_joint.#3=33",
                                  "external_joint.#4=34",
                                  "external_joint.#5=35.5",
                                  "coord.tool=gun",
                                  "coord.wobj=table"};

QStringList zeros(const QStringList& leaves) {
    QStringList list;
    for (const QString& leaf : leaves)
        list << (leaf.startsWith("coord") ? leaf : leaf.section('=', 0, 0) + "=0");
    return list;
}

class UpperCase : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char*, int) const override {
        return QString(context) == "kite::InterfaceManager" ? QString(text).toUpper() : QString();
    }
    bool isEmpty() const override { return false; }
};

const QString positionKey("value.[0][0][0]");

} // namespace

class TestTeach : public ProjectTest {
    Q_OBJECT

private slots:
    void init() {
        beginProject();
        m("orca.project.cur_func")->setValue(nullptr, "weld");
        m("orca.project.cur_task")->setValue(nullptr, "task0");
        controller().answerWith(contentOf(QVariant(robotPosition())));
    }

    void aPointHasItsFields_data() {
        QTest::addColumn<bool>("isJoint");
        QTest::addColumn<QString>("property");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("joint") << true << "joint" << jointLeaves;
        QTest::newRow("Cartesian") << false << "cart" << cartesianLeaves;
    }
    void aPointHasItsFields() {
        QFETCH(bool, isJoint);
        QFETCH(QString, property);
        QFETCH(QStringList, expected);
        add(points(), QStringList{"P0", "P1"});
        const QDateTime before = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch());
        QVERIFY(teach("P2", isJoint));
        const QDateTime after = QDateTime::currentDateTime();

        QCOMPARE(names(points()), QStringList({"#0=P0", "#1=P1", "#2=P2"}));
        ModuleObject* point = points()->c(2);
        QCOMPARE(keys(point), QStringList({"id", "name", "property", "description", "func", "task", "value"}));
        QCOMPARE(keys(point->c("value")), QStringList{"[0][0][0]"});
        QCOMPARE(point->c("id")->value(), QVariant(2));
        QCOMPARE(point->c("property")->value(), QVariant(property));
        QCOMPARE(point->c("func")->value(), QVariant("weld"));
        QCOMPARE(point->c("task")->value(), QVariant("task0"));
        QVERIFY(!point->value().isValid());
        QVERIFY(!point->r(positionKey)->value().isValid());
        QCOMPARE(leaves(point->r(positionKey)), expected);

        const QString description = point->c("description")->getString();
        QVERIFY2(description.startsWith("Auto generate at: "), qPrintable(description));
        const QDateTime time = QDateTime::fromString(description.mid(18), "yyyy/MM/dd hh:mm:ss");
        QVERIFY2(time >= before && time <= after, qPrintable(description));
    }

    void numbersAreDoubles() {
        teach("J", true);
        teach("C", false);
        int numbers = 0;
        for (const char* item : {"#0.", "#1."}) {
            for (ModuleObject* node : points()->r(item + positionKey)->cmobjs(true)) {
                if (node->cmobjCount() > 0 || node->pmobj()->name() == "coord")
                    continue;
                QCOMPARE(node->value().userType(), int(QMetaType::Double));
                ++numbers;
            }
        }
        QCOMPARE(numbers, 7 + 6 + 3 + 1 + 3 + 4 + 8 + 6);
    }

    void listsOfAxesAreLists() {
        teach("J", true);
        teach("C", false);
        QVERIFY(points()->r("#0." + positionKey + ".inner_pos")->isList());
        QVERIFY(points()->r("#0." + positionKey + ".extern_pos")->isList());
        QVERIFY(points()->r("#1." + positionKey + ".external_joint")->isList());
    }

    void theRestIsCopiedFromTheTemplate() {
        const QJsonObject pattern{{"name", "pattern"},
                                  {"zone", QJsonObject{{"size", 5}}},
                                  {"description", "by hand"},
                                  {"value", QJsonObject{{"[0][0][0]", QJsonObject{{"speed", 7}}}}}};
        ModuleObject* templateNode = m("orca.project.point.default");
        templateNode->importFromJson(nullptr, pattern, false, true, false);
        templateNode->setValue(nullptr, "own");
        templateNode->set(nullptr, positionKey, "own");
        teach("P0", true);
        QCOMPARE(points()->r("#0.zone.size")->getInt(), 5);
        QCOMPARE(points()->r("#0.name")->getString(), QString("P0"));
        QVERIFY(!points()->c(0)->value().isValid());
        QVERIFY(!points()->r("#0." + positionKey)->value().isValid());
        QCOMPARE(leaves(points()->r("#0." + positionKey)), QStringList{"speed=7"} + jointLeaves);
        QCOMPARE(templateNode->r("name")->getString(), QString("pattern"));
        QCOMPARE(templateNode->value(), QVariant("own"));
    }

    void theControllerIsAskedForToolAndWorkObject() {
        teach("P0", true);
        QVERIFY(kiteInterface()->addCurrentPoint("P1", false, "", "x.y"));
        const QString key("project.vex_program.get_rob_pos||");
        QCOMPARE(controller().sentAs(Verb::Request),
                 QStringList({key + R"({"tool":"gun","wobj":"table"})", key + R"({"tool":"","wobj":"x.y"})"}));
        QVERIFY(controller().sent.at(0).wantsAnswer);
        QCOMPARE(points()->r("#1." + positionKey + ".coord.tool")->value(), QVariant(""));
        QCOMPARE(points()->r("#1." + positionKey + ".coord.wobj")->value(), QVariant("x.y"));
        QCOMPARE(bus().sent.size(), 0);
        QCOMPARE(log().lines(), QStringList());
    }

    void teachingIsAnnouncedInOrder() {
        add(points(), QStringList{"p1", "P2"});
        follow();
        QStringList whenInserted;
        connect(points(), &ModuleObject::inserted, context(),
                [&](ModuleObject* point) { whenInserted = leaves(point->r(positionKey)); });
        QVERIFY(teach("P1", true));
        const QStringList removed{"point._list null nobody"};
        const QStringList asked{"request project.vex_program.get_rob_pos nobody"};
        const QStringList inserted{"point._list null nobody", "point._list.#2 null kite"};
        // The nodes of the announcement are made by asking for them.
        const QStringList announced{"point null nobody",
                                    "point.hot_update.points null nobody",
                                    "point.hot_update.points null kite",
                                    "point.hot_update.points.#0 1 kite",
                                    "point.hot_update null nobody",
                                    "point.hot_update.operate \"add\" kite"};
        QCOMPARE(events(), removed + asked + inserted + announced);
        QCOMPARE(whenInserted, jointLeaves);
    }

    void theLastPointIsAnnounced() {
        teach("P1", true);
        QCOMPARE(compact(m("orca.project.point.hot_update")->exportToJson(true)),
                 QString(R"({"operate":"add","points":[0]})"));
        m("orca.project.point.hot_update.points")->setValue(nullptr, "own");
        m("orca.project.point.hot_update.points")->setList(nullptr, {7, 8, 9});
        teach("P2", true);
        QCOMPARE(compact(m("orca.project.point.hot_update")->exportToJson(true)),
                 QString(R"({"operate":"add","points":[1]})"));
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(1));
        QCOMPARE(m("orca.project.point.hot_update.points")->value(), QVariant("own"));
        QCOMPARE(m("orca.project.point.hot_update.operate")->value(), QVariant("add"));
    }

    void teachingReplacesPointsOfTheSameNameIgnoringCase_data() {
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("asked");
        QTest::addColumn<QStringList>("left");
        QTest::addColumn<int>("id");
        const auto row = [](const char* name, const QStringList& present, const QStringList& asked,
                            const QStringList& left, int id) { QTest::newRow(name) << present << asked << left << id; };
        row("none", {"P0", "P10"}, {}, {"#0=P0", "#1=P10", "#2=P1"}, 2);
        row("the same", {"P1", "P2"}, {"#0"}, {"#1=P2", "#2=P1"}, 1);
        row("another case", {"P0", "p1"}, {"#1"}, {"#0=P0", "#2=P1"}, 1);
        row("all of them", {"p1", "P0", "P1", "p1"}, {"#0", "#2", "#3"}, {"#1=P0", "#4=P1"}, 1);
        row("nothing else", {"p1"}, {"#0"}, {"#1=P1"}, 0);
        row("the empty name is another", {"", "P"}, {}, {"#0=", "#1=P", "#2=P1"}, 2);
    }
    void teachingReplacesPointsOfTheSameNameIgnoringCase() {
        QFETCH(QStringList, present);
        QFETCH(QStringList, asked);
        QFETCH(QStringList, left);
        QFETCH(int, id);
        add(points(), present);
        QVERIFY(teach("P1", false));
        QCOMPARE(points()->asked, asked);
        QCOMPARE(names(points()), left);
        QCOMPARE(points()->c(points()->cmobjCount() - 1)->c("id")->value(), QVariant(id));
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(id));
    }

    void aPointWithoutANameIsReplacedByTheEmptyOne() {
        add(points(), QJsonObject{{"id", 7}});
        add(points(), QStringList{"P1"});
        QVERIFY(teach("", true));
        QCOMPARE(names(points()), QStringList({"#1=P1", "#2="}));
    }

    void withTheLinkDownNothingChanges() {
        add(points(), QStringList{"p1"});
        controller().setUp(false);
        follow();
        QVERIFY(!teach("P1", true));
        QCOMPARE(events(), QStringList());
        QCOMPARE(names(points()), QStringList{"#0=p1"});
        QVERIFY(!project()->r("point.hot_update"));
        controller().setUp(true);
        bus().setUp(false);
        QVERIFY(teach("P1", true));
    }

    void anAnswerThatDoesNotComeIsZeros() {
        add(points(), QStringList{"p1"});
        teach("P0", true);
        controller().answers = false;
        QVERIFY(teach("P1", true));
        QVERIFY(teach("P2", false));
        QCOMPARE(names(points()), QStringList({"#1=P0", "#2=P1", "#3=P2"}));
        QCOMPARE(leaves(points()->r("#2." + positionKey)), zeros(jointLeaves));
        QCOMPARE(leaves(points()->r("#3." + positionKey)), zeros(cartesianLeaves));
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(2));
    }

    void anAnswerOfAnotherKindIsZeros_data() {
        QTest::addColumn<Content>("answer");
        QTest::newRow("nothing at all") << Content();
        QTest::newRow("empty") << contentOf(QVariant());
        QTest::newRow("a refusal") << brisk::standin::refusal("no");
        QTest::newRow("a text") << contentOf(QVariant("text"));
        QTest::newRow("a list") << contentOf(QVariant(QJsonArray{1, 2}));
        QTest::newRow("parts of another kind")
            << contentOf(QVariant(QJsonObject{{"joint", 5}, {"cartesian", QJsonArray{1}}}));
        QTest::newRow("leaves of another kind") << contentOf(
            QVariant(QJsonObject{{"joint", QJsonObject{{"inner_pos", 5}, {"extern_pos", QJsonObject{{"a", 1}}}}},
                                 {"cartesian", QJsonObject{{"pose", "far"}, {"conf", QJsonArray{1, 2}}}}}));
    }
    void anAnswerOfAnotherKindIsZeros() {
        QFETCH(Content, answer);
        controller().answerWith(answer);
        QVERIFY(teach("P1", true));
        QVERIFY(teach("P2", false));
        QCOMPARE(leaves(points()->r("#0." + positionKey)), zeros(jointLeaves));
        QCOMPARE(leaves(points()->r("#1." + positionKey)), zeros(cartesianLeaves));
    }

    void aShortAnswerIsFilledUpWithZeros() {
        const QJsonObject joint{{"inner_pos", QJsonArray{1, "2.5", "far", QJsonValue(), true}}};
        controller().answerWith(contentOf(QVariant(QJsonObject{{"joint", joint}})));
        QVERIFY(teach("P1", true));
        QCOMPARE(leaves(points()->r("#0." + positionKey)).mid(0, 8),
                 QStringList({"inner_pos.#0=1", "inner_pos.#1=2.5", "inner_pos.#2=0", "inner_pos.#3=0",
                              "inner_pos.#4=1", "inner_pos.#5=0", "inner_pos.#6=0", "extern_pos.#0=0"}));
    }

    void moreAxesThanSevenAreLeftOut() {
        QJsonArray many;
        for (int i = 0; i < 12; ++i)
            many << i;
        const QJsonObject joint{{"inner_pos", many}, {"extern_pos", many}};
        controller().answerWith(contentOf(QVariant(QJsonObject{{"joint", joint}})));
        QVERIFY(teach("P1", true));
        QCOMPARE(points()->r("#0." + positionKey + ".inner_pos")->cmobjCount(), 7);
        QCOMPARE(points()->r("#0." + positionKey + ".extern_pos")->cmobjCount(), 6);
    }

    void theProjectMayNameNoFunctionAndNoTask() {
        delete m("orca.project.cur_func");
        m("orca.project.cur_task")->setValue(nullptr, QVariantMap{{"a", "b"}});
        QVERIFY(teach("P1", true));
        QCOMPARE(points()->r("#0.func")->value(), QVariant(""));
        QCOMPARE(points()->r("#0.task")->value(), QVariant(""));
    }

    void theDescriptionIsTranslated() {
        UpperCase translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        teach("P1", true);
        QCoreApplication::removeTranslator(&translator);
        const QString description = points()->r("#0.description")->getString();
        QVERIFY2(description.startsWith("AUTO GENERATE AT: 2"), qPrintable(description));
    }

    void aListThatRefusesKeepsNothing() {
        points()->refuses = true;
        add(points(), QStringList{"P0", "p1"});
        QVERIFY(teach("P1", true));
        QCOMPARE(names(points()), QStringList{"#0=P0"});
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(0));
    }

    void aNewPointMayBeDeletedAtOnce() {
        connect(points(), &ModuleObject::inserted, context(), [](ModuleObject* point) { delete point; });
        QVERIFY(teach("P1", true));
        QCOMPARE(points()->cmobjCount(), 0);
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(-1));
    }

    void whoHearsOfARemovalMayDeleteOthers() {
        add(points(), QStringList{"P1", "p1", "P1"});
        connect(points(), &ModuleObject::removed, context(), [] { delete points()->c("#2"); });
        QVERIFY(teach("P1", true));
        QCOMPARE(names(points()), QStringList{"#3=P1"});
    }

    void theListMayGoWhenAPointGoes() {
        add(points(), QStringList{"P1", "p1"});
        connect(points(), &ModuleObject::removed, context(), [] { delete points(); });
        QVERIFY(!teach("P1", true));
        QVERIFY(!points());
        QCOMPARE(controller().sent.size(), 0);
    }

    void theListMayGoWhileTheControllerAnswers() {
        controller().reply = [](const Message&) {
            delete points();
            return contentOf(QVariant(robotPosition()));
        };
        QVERIFY(teach("P1", true));
        QVERIFY(!points());
        QCOMPARE(m("orca.project.point.hot_update.points.#0")->value(), QVariant(-1));
    }

    // Such as what a page has selected, which follows the list and the robot.
    void theNamesArePassedAsTheyWereAtTheCall() {
        add(points(), QStringList{"P1", "P2"});
        QString name = "P1";
        QString tool = "gun";
        QString workObject = "table";
        connect(points(), &ModuleObject::removed, context(), [&name] { name = "P2"; });
        controller().reply = [&](const Message&) {
            tool = "torch";
            workObject = "floor";
            return contentOf(QVariant(robotPosition()));
        };
        QVERIFY(kiteInterface()->addCurrentPoint(name, true, tool, workObject));
        QCOMPARE(names(points()), QStringList({"#1=P2", "#2=P1"}));
        QCOMPARE(controller().sentAs(Verb::Request),
                 QStringList{R"(project.vex_program.get_rob_pos||{"tool":"gun","wobj":"table"})"});
        QCOMPARE(leaves(points()->r("#2." + positionKey)), jointLeaves);
    }

    void theToolIsAskedForAsItWasAtTheCall() {
        add(points(), QStringList{"P1"});
        QString tool = "gun";
        QString workObject = "table";
        connect(points(), &ModuleObject::removed, context(), [&] { tool = workObject = "none"; });
        QVERIFY(kiteInterface()->addCurrentPoint("P1", false, tool, workObject));
        QCOMPARE(controller().sentAs(Verb::Request),
                 QStringList{R"(project.vex_program.get_rob_pos||{"tool":"gun","wobj":"table"})"});
        QCOMPARE(leaves(points()->r("#1." + positionKey)), cartesianLeaves);
    }

    void theAxesAreThoseOfTheRobotWhateverTheTemplateHas_data() {
        QTest::addColumn<QJsonValue>("axes");
        QJsonArray many;
        for (int i = 0; i < 12; ++i)
            many << 100 + i;
        QTest::newRow("more") << QJsonValue(many);
        QTest::newRow("as many") << QJsonValue(QJsonArray{1, 2, 3, 4, 5, 6, 7});
        QTest::newRow("fewer") << QJsonValue(QJsonArray{1, 2});
        QTest::newRow("none") << QJsonValue(QJsonArray());
        QTest::newRow("a gap") << QJsonValue(QJsonObject{{"#1", 5}});
        QTest::newRow("a gap further on") << QJsonValue(QJsonObject{{"#0", 5}, {"#4", 5}});
        QTest::newRow("items with parts") << QJsonValue(QJsonArray{QJsonObject{{"unit", "deg"}}});
        QTest::newRow("named parts") << QJsonValue(QJsonObject{{"first", 5}});
        QTest::newRow("a number") << QJsonValue(5);
    }
    void theAxesAreThoseOfTheRobotWhateverTheTemplateHas() {
        QFETCH(QJsonValue, axes);
        const QJsonObject position{{"inner_pos", axes}, {"extern_pos", axes}, {"external_joint", axes}};
        const QJsonObject pattern{{"value", QJsonObject{{"[0][0][0]", position}}}};
        ModuleObject* templateNode = m("orca.project.point.default");
        templateNode->importFromJson(nullptr, pattern, false, true, false);
        const QJsonValue before = templateNode->exportToJson(true);
        teach("J", true);
        teach("C", false);
        const auto axesOf = [](int point, const char* list) {
            return compact(points()->c(point)->r(mName(positionKey, list))->exportToJson(true));
        };
        QCOMPARE(axesOf(0, "inner_pos"), QString("[20,21,22,23,24,25,26.5]"));
        QCOMPARE(axesOf(0, "extern_pos"), QString("[30,31,32,33,34,35.5]"));
        QCOMPARE(axesOf(1, "external_joint"), QString("[30,31,32,33,34,35.5]"));
        QCOMPARE(templateNode->exportToJson(true), before);
    }

    void aProjectThatIsNotThereIsMade() {
        m("orca")->clear(nullptr, false, true);
        QVERIFY(teach("P1", true));
        QCOMPARE(kiteInterface()->getPointNameList(), QStringList{"P1"});
    }

    void whatWasTaughtIsFoundByEachLookUp() {
        teach("P1", false);
        teach("J1", true);
        QCOMPARE(kiteInterface()->getPointNameList(), QStringList({"P1", "J1"}));
        QCOMPARE(kiteInterface()->getPointDataByName("P1"), QVector<double>({1.5, 2, 3, 5, 6, 7}));
        QCOMPARE(kiteInterface()->getPointDataByName("J1"), QVector<double>(6, 0.0));
        for (const char* name : {"P1", "J1"}) {
            const QJsonObject object = kiteInterface()->getPointObjDataByName(name);
            QCOMPARE(object["name"].toString(), QString(name));
            QCOMPARE(kiteInterface()->getVarObjDataByName(name), object);
            QCOMPARE(object["value"].toObject()["[0][0][0]"].toObject()["coord"],
                     QJsonValue(QJsonObject{{"tool", "gun"}, {"wobj", "table"}}));
        }
    }

    void theAnswerMayTake1600Milliseconds() {
        int timeoutMs = 0;
        WaitingLink link(&timeoutMs);
        QVERIFY(teach("P1", true));
        QVERIFY2(timeoutMs > 1300 && timeoutMs <= 1600, qPrintable(QString::number(timeoutMs)));
    }

private:
    // A far side that never answers, and says how long it was waited for.
    class WaitingLink : public pendanttest::FakeLink {
    public:
        explicit WaitingLink(int* timeoutMs) : FakeLink(Channel::controller()), m_timeoutMs(timeoutMs) {}
        bool receive(brisk::standin::Answer*, int timeoutMs) override {
            *m_timeoutMs = timeoutMs;
            return false;
        }

    private:
        int* m_timeoutMs;
    };

    static bool teach(const QString& name, bool isJoint) {
        return kiteInterface()->addCurrentPoint(name, isJoint, "gun", "table");
    }
};

QTEST_GUILESS_MAIN(TestTeach)
#include "tst_teach.moc"
