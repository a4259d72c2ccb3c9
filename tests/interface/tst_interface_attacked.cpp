#include "links.h"

#include "brisk/guarded.h"

#include <stdexcept>

namespace {

const QString state("robot.state");
const QString mode("robot.mode");

void announce(const QString& key, const QVariant& value) {
    relay()->watchNode(key)->setValue(nullptr, value);
}

// Delivers a change as soon as a key is watched, before the call that watches it is over.
class HastyLink : public pendanttest::FakeLink {
public:
    void send(const Message& message) override {
        FakeLink::send(message);
        if (message.verb == Verb::Watch)
            deliver(message.key, "hasty");
    }
};

} // namespace

// Callbacks that do what they like while they are called.
class TestAttacked : public LinksTest {
    Q_OBJECT

private slots:
    void init() {
        begin();
        m_heard.clear();
    }
    void cleanup() {
        brisk::standin::setThrownHandler(nullptr);
        end();
    }

    void aCallbackEndsItself() {
        add("1", [this] { unsubscribe("weld", state, "1"); });
        add("2", [] {});
        announce(state, "a");
        announce(state, "b");
        QCOMPARE(m_heard, QStringList({"1:a", "2:a", "2:b"}));
        QCOMPARE(watches(), QStringList{"+" + state});
    }

    void theOnlyCallbackEndsItself() {
        add("1", [this] { unsubscribe("weld", state, "1"); });
        announce(state, "a");
        announce(state, "b");
        QCOMPARE(m_heard, QStringList{"1:a"});
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state}));
    }

    void aCallbackLivesUntilItsOwnEnd() {
        const auto held = std::make_shared<QString>("alive");
        QVERIFY(subscribe(
            "weld", state,
            [this, held](const QVariant&) {
                unsubscribe("weld", state, "1");
                m_heard << *held;
            },
            "1"));
        announce(state, "a");
        QCOMPARE(m_heard, QStringList{"alive"});
        QCOMPARE(held.use_count(), 1L);
    }

    void oneThatIsEndedBeforeItsTurnIsNotCalled() {
        add("1", [this] { unsubscribe("weld", state, "2"); });
        add("2", [] {});
        add("3", [] {});
        announce(state, "a");
        QCOMPARE(m_heard, QStringList({"1:a", "3:a"}));
    }

    void oneThatWasCalledAlreadyIsEnded() {
        add("1", [] {});
        add("2", [this] { unsubscribe("weld", state, "1"); });
        announce(state, "a");
        announce(state, "b");
        QCOMPARE(m_heard, QStringList({"1:a", "2:a", "2:b"}));
    }

    void aCallbackEndsAll() {
        add("1", [this] {
            for (const char* key : {"1", "2", "3"})
                unsubscribe("weld", state, key);
        });
        add("2", [] {});
        add("3", [] {});
        announce(state, "a");
        announce(state, "b");
        QCOMPARE(m_heard, QStringList{"1:a"});
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state}));
    }

    void aNewSubscriberIsCalledFromTheNextChangeOn() {
        add("1", [this] { add("2", [] {}); });
        announce(state, "a");
        QCOMPARE(m_heard, QStringList{"1:a"});
        m_heard.clear();
        announce(state, "b");
        QCOMPARE(m_heard, QStringList({"1:b", "2:b"}));
    }

    void aCallbackReplacesItself() {
        add("1", [this] {
            unsubscribe("weld", state, "1");
            subscribe(
                "weld", state, [this](const QVariant& value) { m_heard << "new:" + value.toString(); }, "1");
        });
        add("2", [] {});
        announce(state, "a");
        announce(state, "b");
        QCOMPARE(m_heard, QStringList({"1:a", "2:a", "2:b", "new:b"}));
    }

    // The name is on the list of the change that is under way, and what stands under it now is called.
    void oneThatIsReplacedBeforeItsTurnIsCalledAsTheNewOne() {
        add("1", [this] {
            unsubscribe("weld", state, "2");
            subscribe(
                "weld", state, [this](const QVariant& value) { m_heard << "new:" + value.toString(); }, "2");
        });
        add("2", [] {});
        announce(state, "a");
        QCOMPARE(m_heard, QStringList({"1:a", "new:a"}));
    }

    void aCallbackEndsAllAndBeginsAnew() {
        add("1", [this] {
            unsubscribe("weld", state, "1");
            add("1", [] {});
        });
        announce(state, "a");
        announce(state, "b");
        announce(state, "c");
        QCOMPARE(m_heard, QStringList({"1:a", "1:b", "1:c"}));
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state, "+" + state}));
    }

    void aCallbackFollowsAnotherKey() {
        add("1", [this] {
            subscribe(
                "weld", mode, [this](const QVariant& value) { m_heard << "mode:" + value.toString(); }, "mode");
        });
        announce(state, "a");
        announce(mode, "b");
        QCOMPARE(m_heard, QStringList({"1:a", "mode:b"}));
    }

    void aCallbackAnnouncesAChangeItself() {
        bool first = true;
        add("1", [&first] {
            if (first) {
                first = false;
                announce(state, "inner");
            }
        });
        add("2", [] {});
        announce(state, "outer");
        QCOMPARE(m_heard, QStringList({"1:outer", "1:inner", "2:inner", "2:outer"}));
    }

    void anInnerChangeEndsAllForTheOuterOneToo() {
        bool first = true;
        add("1", [&] {
            if (first) {
                first = false;
                announce(state, "inner");
            }
        });
        add("2", [this] {
            for (const char* key : {"1", "2", "3"})
                unsubscribe("weld", state, key);
        });
        add("3", [] {});
        announce(state, "outer");
        QCOMPARE(m_heard, QStringList({"1:outer", "1:inner", "2:inner"}));
        QCOMPARE(watches(), QStringList({"+" + state, "-" + state}));
    }

    void whatIsThrownLeavesTheDispatchAndSkipsTheLater() {
        bool throws = true;
        add("1", [] {});
        add("2", [&throws] {
            if (throws)
                throw std::runtime_error("no");
        });
        add("3", [] {});
        QVERIFY_EXCEPTION_THROWN(announce(state, "a"), std::runtime_error);
        QCOMPARE(m_heard, QStringList({"1:a", "2:a"}));
        throws = false;
        m_heard.clear();
        announce(state, "b");
        QCOMPARE(m_heard, QStringList({"1:b", "2:b", "3:b"}));
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList({"1", "2", "3"}));
    }

    void whatIsThrownByADeliveryReachesTheHost() {
        QStringList reported;
        brisk::standin::setThrownHandler(
            [&reported](brisk::standin::GuardedCall call, const QString& name, const std::exception_ptr&) {
                QCOMPARE(call, brisk::standin::GuardedCall::BusDelivery);
                reported << name;
            });
        add("1", [] { throw std::runtime_error("no"); });
        bus().deliver(state, "a");
        QCOMPARE(reported, QStringList{state});
        bus().deliver(state, "b");
        QCOMPARE(m_heard, QStringList({"1:a", "1:b"}));
    }

    void anEmptyCallbackIsTakenAndThrowsWhenItsTimeComes() {
        QVERIFY(subscribe("weld", state, nullptr, "empty"));
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld"), QStringList{"empty"});
        add("2", [] {});
        QVERIFY_EXCEPTION_THROWN(announce(state, "a"), std::bad_function_call);
        QCOMPARE(m_heard, QStringList());
        unsubscribe("weld", state, "empty");
        announce(state, "b");
        QCOMPARE(m_heard, QStringList{"2:b"});
    }

    void aChangeDuringTheWatchIsNotForTheNewcomer() {
        HastyLink hasty;
        QVERIFY(subscribe(
            "weld", state, [this](const QVariant& value) { m_heard << value.toString(); }, "1"));
        QCOMPARE(m_heard, QStringList());
        announce(state, "a");
        QCOMPARE(m_heard, QStringList{"a"});
    }

    void theKeyThatWasPassedMayChangeDuringTheWatch() {
        HastyLink hasty;
        QString key = state;
        connect(relay()->watchNode(state), &brisk::ModuleObject::changed, &bus(), [&key] { key = mode; });
        QVERIFY(subscribe(
            "weld", key, [this](const QVariant& value) { m_heard << value.toString(); }, "1"));
        QCOMPARE(key, mode);
        announce(state, "a");
        announce(mode, "b");
        QCOMPARE(m_heard, QStringList{"a"});
        unsubscribe("weld", state, "1");
        QCOMPARE(hasty.sent.last().verb, Verb::Unwatch);
        QCOMPARE(hasty.sent.last().key, state);
    }

    void aCallbackThatTakesTheBusDownMaySubscribeStill() {
        add("1", [this] {
            bus().setUp(false);
            add("2", [] {});
            bus().setUp(true);
        });
        bus().deliver(state, "a");
        m_heard.clear();
        unsubscribe("weld", state, "1");
        bus().deliver(state, "b");
        QCOMPARE(m_heard, QStringList{"2:b"});
    }

    void aThousandSubscribersEndEachOther() {
        for (int i = 0; i < 1000; ++i) {
            const QString next = QString::number(i + 1);
            add(QString::number(i), [this, next] { unsubscribe("weld", state, next); });
        }
        announce(state, "a");
        QCOMPARE(m_heard.size(), 500);
        QCOMPARE(kiteInterface()->getConnectRelayKeyList("weld").size(), 500);
    }

private:
    void add(const QString& name, const std::function<void()>& then) {
        subscribe(
            "weld", state,
            [this, name, then](const QVariant& value) {
                m_heard << name + ":" + value.toString();
                then();
            },
            name);
    }

    QStringList m_heard;
};

QTEST_GUILESS_MAIN(TestAttacked)
#include "tst_interface_attacked.moc"
