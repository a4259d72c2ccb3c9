#include "movepoints.h"

namespace {

const QString errorKey("move.last_error_with_setting");

} // namespace

/// The end of a move, the watch that a start leaves on, and the check of a path.
class TestMoveStop : public ProjectTest {
    Q_OBJECT

private slots:
    void theVersionDecidesWhatStoppingSends_data() {
        QTest::addColumn<QVariant>("version");
        QTest::addColumn<bool>("withNode");
        for (const char* version : {"2.3", "2.3.9", "3.0", "3.0.1", "3.1", "3.1.4"})
            QTest::newRow(version) << QVariant(version) << true;
        for (const char* version : {"1.0", "2.2", "2.4", "3.2", "4", ""})
            QTest::newRow(version) << QVariant(version) << false;
        QTest::newRow("none") << QVariant() << false;
    }
    void theVersionDecidesWhatStoppingSends() {
        QFETCH(QVariant, version);
        QFETCH(bool, withNode);
        m("helm.r.version")->setValue(nullptr, version);
        follow();
        kiteInterface()->moveToStop();
        const QString kite(" kite::InterfaceManager");
        QCOMPARE(events(), QStringList({"unwatch " + errorKey + kite, "command move.stop" + kite}));
        QCOMPARE(bus().sentAs(Verb::Command),
                 QStringList{withNode ? R"(move.stop||{"task_space":1})" : "move.stop||null"});
        QVERIFY(!bus().sent.at(1).wantsAnswer);
        const Content content = bus().sent.at(1).content;
        QCOMPARE(bool(content), withNode);
        if (content)
            QCOMPARE(content->c("task_space")->value().userType(), int(QMetaType::Int));
        QCOMPARE(log().lines(), QStringList());
        QCOMPARE(controller().sent.size(), 0);
    }

    void theWatchStaysOnUntilTheStop() {
        start();
        QCOMPARE(watches(), QStringList{"+" + errorKey});
        kiteInterface()->moveToStop();
        QCOMPARE(watches(), QStringList({"+" + errorKey, "-" + errorKey}));
    }

    void severalStartsNeedOneStop() {
        start();
        start();
        QCOMPARE(watches(), QStringList{"+" + errorKey});
        kiteInterface()->moveToStop();
        QCOMPARE(watches(), QStringList({"+" + errorKey, "-" + errorKey}));
    }

    void theWatchComesAgainWithTheLink() {
        start();
        bus().setUp(false);
        bus().setUp(true);
        QCOMPARE(watches(), QStringList({"+" + errorKey, "+" + errorKey}));
        kiteInterface()->moveToStop();
    }

    void stoppingLeavesSubscriptionsAlone() {
        QStringList heard;
        subscribe(
            "weld", errorKey, [&](const QVariant& value) { heard << value.toString(); }, "errors");
        start();
        bus().deliver(errorKey, "first");
        kiteInterface()->moveToStop();
        bus().deliver(errorKey, "second");
        QCOMPARE(heard, QStringList({"first", "second"}));
        QCOMPARE(watches(), QStringList{"+" + errorKey});
        unsubscribe("weld", errorKey, "errors");
        QCOMPARE(watches(), QStringList({"+" + errorKey, "-" + errorKey}));
    }

    void aSubscriptionThatEndsLeavesTheWatchOfTheMove() {
        subscribe(
            "weld", errorKey, [](const QVariant&) {}, "errors");
        start();
        unsubscribe("weld", errorKey, "errors");
        QCOMPARE(watches(), QStringList{"+" + errorKey});
        kiteInterface()->moveToStop();
        QCOMPARE(watches(), QStringList({"+" + errorKey, "-" + errorKey}));
    }

    void whoSubscribesAfterTheStartHears() {
        start();
        int heard = 0;
        subscribe(
            "weld", errorKey, [&](const QVariant&) { ++heard; }, "errors");
        bus().deliver(errorKey, "e");
        kiteInterface()->moveToStop();
        bus().deliver(errorKey, "e");
        QCOMPARE(heard, 2);
    }

    void withTheBusDownNothingStops() {
        bus().setUp(false);
        kiteInterface()->moveToStop();
        QCOMPARE(bus().sent.size(), 0);
    }

    void aPathToTheSamePointIsNotChecked_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("a point") << "P1";
        QTest::newRow("no point") << "nowhere";
        QTest::newRow("no name") << "";
    }
    void aPathToTheSamePointIsNotChecked() {
        QFETCH(QString, name);
        QCOMPARE(kiteInterface()->checkPointMoveTo(name, name), 1);
        QCOMPARE(bus().sent.size(), 0);
    }

    void aPathIsCheckedByItsTwoNames_data() {
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::newRow("in order") << "P2"
                                  << "P1";
        QTest::newRow("another case") << "P1"
                                      << "p1";
        QTest::newRow("unknown ones") << "nowhere"
                                      << "elsewhere";
        QTest::newRow("dots") << "a.b"
                              << "a.c";
        QTest::newRow("like items") << "#7"
                                    << "#3";
        QTest::newRow("from nothing") << ""
                                      << "P1";
        QTest::newRow("to nothing") << "P1"
                                    << "";
    }
    void aPathIsCheckedByItsTwoNames() {
        QFETCH(QString, from);
        QFETCH(QString, to);
        follow();
        QCOMPARE(kiteInterface()->checkPointMoveTo(from, to), 0);
        QCOMPARE(events(), QStringList{"execute move.path.check kite::InterfaceManager"});
        QVERIFY(bus().sent.at(0).wantsAnswer);
        ModuleObject* content = bus().sent.at(0).content.get();
        QCOMPARE(keys(content), QStringList({from, to}));
        QVERIFY(content->c(0)->isEmpty() && content->c(1)->isEmpty());
        QVERIFY(!content->value().isValid());
        QCOMPARE(log().lines(), QStringList());
    }

    void theAnswerSaysWhetherThePathIsFeasible_data() {
        QTest::addColumn<Content>("answer");
        QTest::addColumn<int>("result");
        const auto row = [](const char* name, const QVariant& answer, int result) {
            QTest::newRow(name) << contentOf(answer) << result;
        };
        const auto error = [](const QJsonValue& code) { return QVariant(QJsonObject{{"error", code}}); };
        row("-50003", error(-50003), 0);
        row("-50003 as a text", error("-50003"), 0);
        row("-50002", error(-50002), -2);
        row("50003", error(50003), -2);
        row("-50004", error(-50004), -2);
        row("0", error(0), -2);
        row("a sentence", error("no path"), -2);
        row("with children", error(QJsonObject{{"code", -50003}}), -2);
        row("empty", QVariant(), 0);
        row("a number", QVariant(-50004), 0);
        row("another child", QVariant(QJsonObject{{"Error", -1}, {"code", -1}}), 0);
        row("deeper", QVariant(QJsonObject{{"path", QJsonObject{{"error", -1}}}}), 0);
        row("a list", QVariant(QJsonArray{-1}), 0);
        QTest::newRow("nothing at all") << Content() << 0;
        QTest::newRow("a refusal") << brisk::standin::refusal("unknown") << -2;
        auto empty = std::make_shared<ModuleObject>("");
        empty->child("error");
        QTest::newRow("an empty error") << Content(empty) << -2;
    }
    void theAnswerSaysWhetherThePathIsFeasible() {
        QFETCH(Content, answer);
        bus().answerWith(answer);
        QTEST(kiteInterface()->checkPointMoveTo("P1", "P2"), "result");
        QCOMPARE(bus().sent.size(), 1);
    }

    void withoutAnAnswerAPathCountsAsFeasible() {
        bus().answers = false;
        QCOMPARE(kiteInterface()->checkPointMoveTo("P1", "P2"), 0);
        bus().setUp(false);
        QCOMPARE(kiteInterface()->checkPointMoveTo("P1", "P2"), 0);
        QCOMPARE(bus().sent.size(), 1);
    }

    void theAnswerBeforeIsNotTakenForThisOne() {
        bus().answerWith(contentOf(QVariant(QJsonObject{{"error", -1}})));
        QCOMPARE(kiteInterface()->checkPointMoveTo("P1", "P2"), -2);
        bus().answerWith(contentOf(QVariant()));
        QCOMPARE(kiteInterface()->checkPointMoveTo("P1", "P2"), 0);
    }

    void cleanup() {
        kiteInterface()->moveToStop();
        endProject();
    }

private:
    void start() {
        add(points(), MovePoints::cartesian("P1", 1, 2, 3));
        int result = 0;
        log().expect(" moveToStart : ");
        kiteInterface()->moveToStart(result, "P1", 100, true, false);
    }
};

QTEST_GUILESS_MAIN(TestMoveStop)
#include "tst_move_stop.moc"
