#include "kite/subscription.h"
#include "links.h"

#include <memory>
#include <type_traits>
#include <vector>

using kite::Subscription;

namespace {

const QString state("robot.state");

void announce(const QVariant& value) {
    relay()->watchNode(state)->setValue(nullptr, value);
}

} // namespace

class TestSubscription : public LinksTest {
    Q_OBJECT

private slots:
    void init() {
        begin();
        m_heard.clear();
    }
    void cleanup() {
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList());
        end();
    }

    void itFollowsItsKeyForAsLongAsItLives() {
        {
            const Subscription subscription("weld", state, hear("1"), "page");
            QVERIFY(subscription.isActive());
            QVERIFY(static_cast<bool>(subscription));
            QCOMPARE(subscription.serviceKey(), state);
            QCOMPARE(subscription.connectKey(), QString("page"));
            announce("a");
        }
        announce("b");
        QCOMPARE(m_heard, QStringList{"1:a"});
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state}));
    }

    void itIsMovedAndNotCopied() {
        QVERIFY(!std::is_copy_constructible<Subscription>::value);
        QVERIFY(!std::is_copy_assignable<Subscription>::value);
        QVERIFY(std::is_nothrow_move_constructible<Subscription>::value);
        QVERIFY(std::is_nothrow_move_assignable<Subscription>::value);
    }

    void oneThatIsMadeOfNothingIsInactive() {
        Subscription subscription;
        QVERIFY(!subscription.isActive());
        QVERIFY(!subscription);
        QCOMPARE(subscription.serviceKey(), QString());
        subscription.disconnect();
        QCOMPARE(watches(), QStringList());
    }

    void oneThatIsRefusedIsInactiveAndLeavesTheOtherAlone() {
        const Subscription first("weld", state, hear("1"), "page");
        expectRefusal();
        {
            const Subscription second("weld", "robot.mode", hear("2"), "page");
            QVERIFY(!second.isActive());
            QCOMPARE(second.serviceKey(), QString("robot.mode"));
        }
        announce("a");
        QCOMPARE(m_heard, QStringList{"1:a"});
        QCOMPARE(watches(), QStringList{"+" + state});
    }

    void oneWithoutACallbackIsInactive() {
        expectRefusal();
        const Subscription subscription("weld", state, nullptr, "page");
        QVERIFY(!subscription.isActive());
        QCOMPARE(watches(), QStringList());
        announce("a");
    }

    void oneWhoseKeyCannotBeFollowedIsInactive() {
        brisk::standin::hostFaults().nullWatchNodes = true;
        expectRefusal();
        const Subscription subscription("weld", state, hear("1"), "page");
        QVERIFY(!subscription.isActive());
    }

    void itCanBeEndedEarlyAndAgain() {
        Subscription subscription("weld", state, hear("1"), "page");
        subscription.disconnect();
        QVERIFY(!subscription.isActive());
        QCOMPARE(subscription.serviceKey(), state);
        QCOMPARE(subscription.connectKey(), QString("page"));
        subscription.disconnect();
        announce("a");
        QCOMPARE(m_heard, QStringList());
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state}));
    }

    void oneThatHasEndedLeavesItsSuccessorAlone() {
        Subscription first("weld", state, hear("1"), "page");
        first.disconnect();
        const Subscription second("weld", state, hear("2"), "page");
        QVERIFY(second.isActive());
        first.disconnect();
        first = Subscription();
        announce("a");
        QCOMPARE(m_heard, QStringList{"2:a"});
    }

    void movingKeepsTheSubscription() {
        std::vector<Subscription> given;
        given.emplace_back("weld", state, hear("1"), "page");
        {
            const Subscription second(std::move(given.front()));
            QVERIFY(second.isActive());
            QCOMPARE(second.serviceKey(), state);
            QCOMPARE(second.connectKey(), QString("page"));
            QVERIFY(!given.front().isActive());
            announce("a");
        }
        announce("b");
        QCOMPARE(m_heard, QStringList{"1:a"});
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state}));
    }

    void assigningEndsTheFormerOne() {
        Subscription subscription("weld", state, hear("1"), "1");
        subscription = Subscription("weld", state, hear("2"), "2");
        QVERIFY(subscription.isActive());
        QCOMPARE(subscription.connectKey(), QString("2"));
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList{"2"});
        announce("a");
        QCOMPARE(m_heard, QStringList{"2:a"});
        QCOMPARE(watches(), QStringList{"+" + state});
    }

    void assigningToItselfChangesNothing() {
        Subscription subscription("weld", state, hear("1"), "page");
        Subscription& same = subscription;
        subscription = std::move(same);
        QVERIFY(subscription.isActive());
        QCOMPARE(subscription.serviceKey(), state);
        announce("a");
        QCOMPARE(m_heard, QStringList{"1:a"});
    }

    void manyLiveInAVector() {
        std::vector<Subscription> subscriptions;
        for (int i = 0; i < 100; ++i)
            subscriptions.emplace_back("weld", state, hear(QString::number(i)), QString::number(i));
        subscriptions.erase(subscriptions.begin() + 1, subscriptions.end() - 1);
        announce("a");
        QCOMPARE(m_heard, QStringList({"0:a", "99:a"}));
    }

    void itMayBeDestroyedInItsOwnCallback() {
        const auto held = std::make_shared<QString>("alive");
        std::unique_ptr<Subscription> subscription;
        subscription = std::make_unique<Subscription>(
            "weld", state,
            [this, held, &subscription](const QVariant&) {
                subscription.reset();
                m_heard << *held;
            },
            "page");
        const Subscription later("weld", state, hear("later"), "later");
        announce("a");
        announce("b");
        QCOMPARE(m_heard, QStringList({"alive", "later:a", "later:b"}));
        QCOMPARE(held.use_count(), 1L);
    }

    void itMayBeReplacedInItsOwnCallback() {
        Subscription subscription;
        subscription = Subscription(
            "weld", state,
            [&](const QVariant&) {
                subscription.disconnect();
                subscription = Subscription("weld", state, hear("new"), "page");
            },
            "page");
        announce("a");
        QCOMPARE(m_heard, QStringList());
        announce("b");
        QCOMPARE(m_heard, QStringList{"new:b"});
    }

    // Pages that keep themselves alive through their callback: with the callback goes the page, and with the page its
    // subscription.
    void itsCallbackMayOwnIt_data() {
        QTest::addColumn<bool>("bySomebodyElse");
        QTest::newRow("ended by itself") << false;
        QTest::newRow("ended by the list of connect keys") << true;
    }
    void itsCallbackMayOwnIt() {
        QFETCH(bool, bySomebodyElse);
        const std::weak_ptr<Subscription> page = makeSelfOwned("page");
        announce("a");
        QCOMPARE(m_heard, QStringList{"page:a"});
        if (bySomebodyElse) {
            for (const QString& key : kiteInterface()->getConnectRelayKeyList("weld"))
                unsubscribe("weld", state, key);
        } else {
            Subscription* raw = page.lock().get();
            raw->disconnect();
        }
        QVERIFY(page.expired());
        announce("b");
        QCOMPARE(m_heard, QStringList{"page:a"});
        QCOMPARE(watches().last(), "-" + state);
    }

    void itsCallbackMayOwnAnother() {
        auto other = std::make_shared<Subscription>("weld", state, hear("other"), "other");
        Subscription owning(
            "weld", state, [other](const QVariant&) {}, "owning");
        const std::weak_ptr<Subscription> seen = other;
        other.reset();
        QVERIFY(!seen.expired());
        owning.disconnect();
        QVERIFY(seen.expired());
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList());
    }

    void aRefusedCallbackMayOwnSomething() {
        brisk::standin::hostFaults().nullWatchNodes = true;
        expectRefusal();
        auto owned = std::make_shared<Subscription>();
        const std::weak_ptr<Subscription> seen = owned;
        const Subscription refused(
            "weld", "no.node", [owned](const QVariant&) {}, "page");
        owned.reset();
        QVERIFY(!refused.isActive());
        QVERIFY(seen.expired());
    }

    void itKnowsThatSomebodyElseEndedIt() {
        const Subscription subscription("weld", state, hear("1"), "page");
        unsubscribe("weld", state, "page");
        QVERIFY(!subscription.isActive());
        QVERIFY(!subscription);
        announce("a");
        QCOMPARE(m_heard, QStringList());
    }

    // A page that is rebuilt while the old one waits for its end.
    void oneThatSomebodyElseEndedLeavesItsSuccessorAlone_data() {
        QTest::addColumn<QString>("connectKey");
        QTest::newRow("a plain key") << "page";
        QTest::newRow("a key with dots") << "page.left.1";
    }
    void oneThatSomebodyElseEndedLeavesItsSuccessorAlone() {
        QFETCH(QString, connectKey);
        auto first = std::make_unique<Subscription>("weld", state, hear("1"), connectKey);
        Subscription moved(std::move(*first));
        first = std::make_unique<Subscription>(std::move(moved));
        unsubscribe("weld", state, connectKey);
        const Subscription second("weld", state, hear("2"), connectKey);
        QVERIFY(!first->isActive());
        first.reset();
        QVERIFY(second.isActive());
        announce("a");
        QCOMPARE(m_heard, QStringList{"2:a"});
    }

    // With another key, its name stays with the key that it followed.
    void oneThatSomebodyElseEndedInPartClearsUp() {
        {
            const Subscription subscription("weld", state, hear("1"), "page");
            unsubscribe("weld", "robot.mode", "page");
            QVERIFY(!subscription.isActive());
            QCOMPARE(watches(), QStringList({"+" + state, "-robot.mode"}));
        }
        QCOMPARE(watches(), QStringList({"+" + state, "-robot.mode", "-" + state}));
        const Subscription successor("weld", state, hear("2"), "page");
        announce("a");
        QCOMPARE(m_heard, QStringList{"2:a"});
    }

    void itIsActiveUntilItsCallbackReturns() {
        Subscription subscription;
        QList<bool> active;
        subscription = Subscription(
            "weld", state,
            [&](const QVariant&) {
                unsubscribe("weld", state, "page");
                active << subscription.isActive();
            },
            "page");
        announce("a");
        active << subscription.isActive();
        QCOMPARE(active, QList<bool>({true, false}));
    }

    void itsCallbackKeepsWhatItCounts() {
        int last = 0;
        const Subscription subscription(
            "weld", state, [count = 0, &last](const QVariant&) mutable { last = ++count; }, "page");
        for (int i = 0; i < 3; ++i)
            announce(i);
        QCOMPARE(last, 3);
    }

private:
    // The reason goes into the message list; there is no module of that name here to take it.
    void expectRefusal() { log().expect("<kite interfacemanager>brisk.kite.weld unuseful"); }

    std::weak_ptr<Subscription> makeSelfOwned(const QString& connectKey) {
        const auto page = std::make_shared<Subscription>();
        const auto call = hear(connectKey);
        *page = Subscription(
            "weld", state, [page, call](const QVariant& value) { call(value); }, connectKey);
        return page;
    }

    std::function<void(const QVariant&)> hear(const QString& who) {
        return [this, who](const QVariant& value) { m_heard << who + ":" + value.toString(); };
    }

    QStringList m_heard;
};

QTEST_GUILESS_MAIN(TestSubscription)
#include "tst_subscription.moc"
