#include "links.h"

#include <memory>

namespace {

const QString state("robot.state");
const QString mode("robot.mode");

void announce(const QString& key, const QVariant& value) {
    relay()->watchNode(key)->setValue(nullptr, value);
}

} // namespace

class TestUnsubscribing : public LinksTest {
    Q_OBJECT

private slots:
    void init() {
        begin();
        m_heard.clear();
    }

    void theLastSubscriberEndsTheWatch() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QVERIFY(subscribe("weld", state, hear("2"), "bar"));
        QVERIFY(unsubscribe("weld", state, "page"));
        QCOMPARE(watches(), QStringList{"+" + state});
        announce(state, "a");
        QCOMPARE(m_heard, QStringList{"2:a"});

        QVERIFY(unsubscribe("weld", state, "bar"));
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state}));
        announce(state, "b");
        QCOMPARE(m_heard, QStringList{"2:a"});
    }

    void theOrderOfTheOthersStays() {
        for (const char* key : {"c", "b", "a"})
            QVERIFY(subscribe("weld", state, hear(key), key));
        QVERIFY(unsubscribe("weld", state, "b"));
        QVERIFY(subscribe("weld", state, hear("b"), "b"));
        announce(state, 1);
        QCOMPARE(m_heard, QStringList({"c:1", "a:1", "b:1"}));
    }

    void aNameThatWasFreedCanBeUsedForAnotherKey() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QVERIFY(unsubscribe("weld", state, "page"));
        QVERIFY(subscribe("weld", mode, hear("2"), "page"));
        announce(state, 1);
        announce(mode, 2);
        QCOMPARE(m_heard, QStringList{"2:2"});
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state, "+" + mode}));
    }

    void aKeyThatIsSubscribedAgainIsCalledOnce() {
        for (int i = 0; i < 3; ++i) {
            QVERIFY(subscribe("weld", state, hear("1"), "page"));
            announce(state, i);
            QVERIFY(unsubscribe("weld", state, "page"));
        }
        QCOMPARE(m_heard, QStringList({"1:0", "1:1", "1:2"}));
    }

    void whatTheCallbackHoldsIsFreed() {
        const auto held = std::make_shared<int>(0);
        QVERIFY(subscribe(
            "weld", state, [held](const QVariant&) { ++*held; }, "page"));
        announce(state, 1);
        QCOMPARE(*held, 1);
        QVERIFY(unsubscribe("weld", state, "page"));
        QCOMPARE(held.use_count(), 1L);
    }

    void aNameThatWasNeverSubscribedDoesNoHarm() {
        QVERIFY(unsubscribe("weld", state, "page"));
        QCOMPARE(watches(), QStringList{"-" + state});
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        announce(state, 1);
        QCOMPARE(m_heard, QStringList{"1:1"});
    }

    void aNameThatWasNeverSubscribedDoesNotEndTheWatchOfOthers() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QVERIFY(unsubscribe("weld", state, "bar"));
        QVERIFY(unsubscribe("glue", state, "page"));
        QCOMPARE(watches(), QStringList{"+" + state});
        announce(state, 1);
        QCOMPARE(m_heard, QStringList{"1:1"});
    }

    void unsubscribingTwiceUnwatchesTwice() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QVERIFY(unsubscribe("weld", state, "page"));
        QVERIFY(unsubscribe("weld", state, "page"));
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state, "-" + state}));
    }

    void aWrongKeySilencesTheCallbackAndKeepsTheWatch() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QVERIFY(unsubscribe("weld", mode, "page"));
        QCOMPARE(watches(), QStringList({"+" + state, "-" + mode}));
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList());
        announce(state, 1);
        QCOMPARE(m_heard, QStringList());
        // With the right key the name that was left is taken off.
        QVERIFY(unsubscribe("weld", state, "page"));
        QCOMPARE(watches(), QStringList({"+" + state, "-" + mode, "-" + state}));
    }

    void aNameThatWasLeftBehindIsCalledTwiceWhenItComesAgain() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QVERIFY(unsubscribe("weld", mode, "page"));
        QVERIFY(subscribe("weld", state, hear("2"), "page"));
        announce(state, 1);
        QCOMPARE(m_heard, QStringList({"2:1", "2:1"}));
        QCOMPARE(watches(), QStringList({"+" + state, "-" + mode}));
        // One call takes both off.
        QVERIFY(unsubscribe("weld", state, "page"));
        QCOMPARE(watches(), QStringList({"+" + state, "-" + mode, "-" + state}));
    }

    void aNameThatWasLeftBehindHearsItsOldKeyForItsNewSubscription() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        QVERIFY(unsubscribe("weld", mode, "page"));
        QVERIFY(subscribe("weld", mode, hear("2"), "page"));
        announce(state, 1);
        announce(mode, 2);
        QCOMPARE(m_heard, QStringList({"2:1", "2:2"}));
        unsubscribe("weld", state, "page");
    }

    void itDoesNotNeedTheBus() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        bus().setUp(false);
        QVERIFY(unsubscribe("weld", state, "page"));
        announce(state, 1);
        QCOMPARE(m_heard, QStringList());
        bus().setUp(true);
        QCOMPARE(watches(), QStringList{"+" + state});
    }

    void itDoesNotNeedTheNode() {
        QVERIFY(subscribe("weld", state, hear("1"), "page"));
        brisk::standin::hostFaults().nullWatchNodes = true;
        QVERIFY(unsubscribe("weld", state, "page"));
        brisk::standin::hostFaults().nullWatchNodes = false;
        announce(state, 1);
        QCOMPARE(m_heard, QStringList());
    }

private:
    std::function<void(const QVariant&)> hear(const QString& who) {
        return [this, who](const QVariant& value) { m_heard << who + ":" + value.toString(); };
    }

    QStringList m_heard;
};

QTEST_GUILESS_MAIN(TestUnsubscribing)
#include "tst_interface_unsubscribing.moc"
