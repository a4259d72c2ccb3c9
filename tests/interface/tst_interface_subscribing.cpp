#include "links.h"

#include <QJsonArray>
#include <QJsonObject>

using brisk::standin::hostFaults;

namespace {

const QString state("robot.state");
const QString mode("robot.mode");

void announce(const QString& key, const QVariant& value) {
    relay()->watchNode(key)->setValue(nullptr, value);
}

} // namespace

class TestSubscribing : public LinksTest {
    Q_OBJECT

private slots:
    void init() {
        begin();
        m_heard.clear();
    }

    void theFirstSubscriberHasTheKeyWatched() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QCOMPARE(watches(), QStringList{"+" + state});
        bus().deliver(state, "ready");
        QCOMPARE(m_heard, QStringList{"1:ready"});
        QCOMPARE(watches(), QStringList{"+" + state});
    }

    void allSubscribersOfAKeyShareOneWatchAndOneConnection() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QVERIFY(subscribe("weld", state, hear("2"), "bar"));
        QVERIFY(subscribe("glue", state, hear("3"), "page"));
        QCOMPARE(watches(), QStringList{"+" + state});
        bus().deliver(state, "a");
        QCOMPARE(m_heard, QStringList({"1:a", "2:a", "3:a"}));
    }

    void subscribersAreCalledInTheOrderInWhichTheyCame() {
        for (const char* key : {"z", "b", "y", "a"})
            QVERIFY(subscribe("weld", state, hear(key), key));
        QVERIFY(subscribe("arc", state, hear("last"), "a"));
        announce(state, 1);
        QCOMPARE(m_heard, QStringList({"z:1", "b:1", "y:1", "a:1", "last:1"}));
    }

    void everyKeyHasSubscribersOfItsOwn() {
        QVERIFY(subscribe("weld", state, hear("state"), "1"));
        QVERIFY(subscribe("weld", mode, hear("mode"), "2"));
        QCOMPARE(watches(), QStringList({"+" + state, "+" + mode}));
        announce(mode, "auto");
        announce(state, "ready");
        QCOMPARE(m_heard, QStringList({"mode:auto", "state:ready"}));
    }

    void theValueIsHandedOverAsItCame_data() {
        QTest::addColumn<QVariant>("value");
        QTest::newRow("a number") << QVariant(1.5);
        QTest::newRow("a whole number") << QVariant(7);
        QTest::newRow("a text") << QVariant("grün");
        QTest::newRow("nothing") << QVariant();
        QTest::newRow("a list") << QVariant(QJsonArray{1, "a"});
        QTest::newRow("an object") << QVariant(QJsonObject{{"x", 1}, {"y", QJsonObject{{"z", true}}}});
    }
    void theValueIsHandedOverAsItCame() {
        QFETCH(QVariant, value);
        QVariantList values;
        QVERIFY(subscribe(
            "weld", state, [&values](const QVariant& heard) { values << heard; }, "page"));
        bus().deliver(state, value);
        QCOMPARE(values.size(), 1);
        QCOMPARE(values.first(), value);
        QCOMPARE(values.first().userType(), value.userType());
    }

    void itIsTheNewValueThatIsHandedOver() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        emit relay()->watchNode(state)->changed("new", "old", this);
        QCOMPARE(m_heard, QStringList{"1:new"});
    }

    void anEqualValueIsHandedOverToo() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        bus().deliver(state, "a");
        bus().deliver(state, "a");
        QCOMPARE(m_heard, QStringList({"1:a", "1:a"}));
    }

    void aCallbackForgetsWhatItCountsInItself() {
        QList<int> counted;
        QVERIFY(subscribe(
            "weld", state, [count = 0, &counted](const QVariant&) mutable { counted << ++count; }, "page"));
        for (int i = 0; i < 3; ++i)
            announce(state, i);
        QCOMPARE(counted, QList<int>({1, 1, 1}));
    }

    void aTakenNameIsRefusedAndNothingChanges_data() {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<QString>("serviceKey");
        QTest::addColumn<QString>("connectKey");
        QTest::newRow("for the same key") << "weld" << state << "left.page";
        QTest::newRow("for another key") << "weld" << mode << "left.page";
        QTest::newRow("composed of other parts") << "weld.left" << mode << "page";
    }
    void aTakenNameIsRefusedAndNothingChanges() {
        QFETCH(QString, plugin);
        QFETCH(QString, serviceKey);
        QFETCH(QString, connectKey);
        QVERIFY(subscribe("weld", state, hear("first"), "left.page"));
        const QStringList before = watches();
        log().forgetLines();
        QVERIFY(!subscribe(plugin, serviceKey, hear("second"), connectKey));
        QCOMPARE(watches(), before);
        QCOMPARE(log().lines(), QStringList());
        announce(state, 1);
        announce(mode, 2);
        QCOMPARE(m_heard, QStringList{"first:1"});
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList{"left"});
    }

    void anotherPluginMayUseTheSameConnectKey() {
        QVERIFY(subscribe("weld", state, hear("weld"), "page"));
        QVERIFY(subscribe("glue", state, hear("glue"), "page"));
        QVERIFY(subscribe("Weld", state, hear("Weld"), "page"));
        announce(state, 1);
        QCOMPARE(m_heard, QStringList({"weld:1", "glue:1", "Weld:1"}));
    }

    void aKeyThatCannotBeFollowedIsRefusedWithoutATrace() {
        hostFaults().nullWatchNodes = true;
        QVERIFY(!subscribe("weld", state, hear("1"), "page"));
        QCOMPARE(watches(), QStringList());
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList());

        hostFaults().nullWatchNodes = false;
        QVERIFY(subscribe("weld", state, hear("2"), "page"));
        QCOMPARE(watches(), QStringList{"+" + state});
        announce(state, 1);
        QCOMPARE(m_heard, QStringList{"2:1"});
    }

    void aKeyThatIsFollowedAlreadyNeedsNoNodeOnceMore() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        hostFaults().nullWatchNodes = true;
        QVERIFY(subscribe("weld", state, hear("2"), "bar"));
        QVERIFY(!subscribe("weld", mode, hear("3"), "mode"));
        hostFaults().nullWatchNodes = false;
        announce(state, 1);
        QCOMPARE(m_heard, QStringList({"1:1", "2:1"}));
    }

    void subscribingDoesNotNeedTheBus() {
        bus().setUp(false);
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QCOMPARE(watches(), QStringList());
        bus().setUp(true);
        QCOMPARE(watches(), QStringList{"+" + state});
        bus().deliver(state, "ready");
        QCOMPARE(m_heard, QStringList{"1:ready"});
    }

    void aSubscriptionOutlivesAReconnect() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        bus().setUp(false);
        bus().setUp(true);
        bus().deliver(state, "ready");
        QCOMPARE(m_heard, QStringList{"1:ready"});
        QCOMPARE(watches(), QStringList({"+" + state, "+" + state}));
    }

    void emptyNamesAreNames() {
        QVERIFY(subscribe("", "", hear("1"), ""));
        QVERIFY(!subscribe("", state, hear("2"), ""));
        QCOMPARE(watches(), QStringList{"+"});
        announce("", 1);
        QCOMPARE(m_heard, QStringList{"1:1"});
    }

private:
    std::function<void(const QVariant&)> hear(const QString& who) {
        return [this, who](const QVariant& value) { m_heard << who + ":" + value.toString(); };
    }

    QStringList m_heard;
};

QTEST_GUILESS_MAIN(TestSubscribing)
#include "tst_interface_subscribing.moc"
