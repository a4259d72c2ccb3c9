#include "links.h"

class TestSubscriptionList : public LinksTest {
    Q_OBJECT

private slots:
    void aPluginWithoutSubscriptionsHasAnEmptyList() {
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList());
        add("glue", "page");
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList());
    }

    void theListIsInAscendingOrder() {
        for (const char* key : {"c", "B", "a", "10", "9"})
            add("weld", key);
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList({"10", "9", "B", "a", "c"}));
    }

    void subscriptionsOfEveryKeyAreInIt() {
        subscribe(
            "weld", "robot.state", [](const QVariant&) {}, "2");
        subscribe(
            "weld", "robot.mode", [](const QVariant&) {}, "1");
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList({"1", "2"}));
    }

    void aSubscriptionThatHasEndedIsNotInIt() {
        add("weld", "a");
        add("weld", "b");
        unsubscribe("weld", "robot.state", "a");
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList{"b"});
    }

    void thePluginsNameMatchesWhole_data() {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QStringList>("list");
        QTest::newRow("a") << "a" << QStringList{"of a"};
        QTest::newRow("ab") << "ab" << QStringList{"of ab"};
        QTest::newRow("other case") << "A" << QStringList();
        QTest::newRow("the whole name") << "a.of a" << QStringList();
        QTest::newRow("nothing") << QString() << QStringList{"of nobody"};
        QTest::newRow("longer") << "abc" << QStringList();
    }
    void thePluginsNameMatchesWhole() {
        QFETCH(QString, asked);
        QFETCH(QStringList, list);
        add("a", "of a");
        add("ab", "of ab");
        add("", "of nobody");
        QCOMPARE(kiteInterface()->getConnectRelayKeyList(asked), list);
    }

    void aConnectKeyIsCutAtItsFirstDot_data() {
        QTest::addColumn<QString>("connectKey");
        QTest::addColumn<QString>("listed");
        QTest::newRow("one dot") << "axis.1"
                                 << "axis";
        QTest::newRow("two dots") << "axis.1.position"
                                  << "axis";
        QTest::newRow("a dot before") << ".axis"
                                      << "";
        QTest::newRow("a dot behind") << "axis."
                                      << "axis";
        QTest::newRow("empty") << ""
                               << "";
    }
    void aConnectKeyIsCutAtItsFirstDot() {
        QFETCH(QString, connectKey);
        QFETCH(QString, listed);
        add("weld", connectKey);
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList{listed});
    }

    void whatIsCutToTheSameIsListedForEach() {
        add("weld", "axis.1");
        add("weld", "axis.2");
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList({"axis", "axis"}));
    }

    void aPluginNameWithADotIsCutToo() {
        add("weld.left", "page");
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld.left"), QStringList());
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList{"left"});
    }

    void aPluginEndsAllOfItsSubscriptionsByTheList() {
        for (const char* key : {"a", "b", "c"})
            add("weld", key);
        for (const QString& key : kiteInterface()->getConnectRelayKeyList("weld"))
            unsubscribe("weld", "robot.state", key);
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList());
        QCOMPARE(watches(), QStringList({"+robot.state", "-robot.state"}));
    }

private:
    void add(const QString& plugin, const QString& connectKey) {
        QVERIFY(subscribe(
            plugin, "robot.state", [](const QVariant&) {}, connectKey));
    }
};

QTEST_GUILESS_MAIN(TestSubscriptionList)
#include "tst_interface_subscriptionlist.moc"
