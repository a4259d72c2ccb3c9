#include "links.h"

#include <memory>

namespace {

// A task of that kind until the end of the block.
class Task {
public:
    Task(bool onConnect, QObject* owner, std::function<void()> handler, const QString& id = QString())
        : m_onConnect(onConnect), m_id(kiteInterface()->connectNetworkStatus(onConnect, "task", owner, handler, id)) {}
    ~Task() { end(); }
    bool end() { return kiteInterface()->disconnectNetworkStatus(m_onConnect, m_id); }
    QString id() const { return m_id; }

private:
    Q_DISABLE_COPY(Task)
    bool m_onConnect;
    QString m_id;
};

} // namespace

class TestNetworkTasks : public LinksTest {
    Q_OBJECT

private slots:
    void aPluginThatComesLateIsCalledAtOnce() {
        int calls = 0;
        const Task task(true, nullptr, [&calls] { ++calls; });
        QCOMPARE(calls, 1);
    }

    void aTaskForConnectingIsCalledEachTimeBothLinksAreUp() {
        bus().setUp(false);
        int calls = 0;
        const Task task(true, nullptr, [&calls] { ++calls; });
        QCOMPARE(calls, 0);
        bus().setUp(true);
        QCOMPARE(calls, 1);
        controller().setUp(false);
        QCOMPARE(calls, 1);
        controller().setUp(true);
        QCOMPARE(calls, 2);
    }

    void aTaskForDisconnectingIsCalledForTheFirstLinkThatGoesDown_data() {
        QTest::addColumn<bool>("busFirst");
        QTest::newRow("the bus first") << true;
        QTest::newRow("the controller first") << false;
    }
    void aTaskForDisconnectingIsCalledForTheFirstLinkThatGoesDown() {
        QFETCH(bool, busFirst);
        pendanttest::FakeLink& first = busFirst ? bus() : controller();
        pendanttest::FakeLink& second = busFirst ? controller() : bus();
        int calls = 0;
        const Task task(false, nullptr, [&calls] { ++calls; });
        QCOMPARE(calls, 0);
        first.setUp(false);
        QCOMPARE(calls, 1);
        second.setUp(false);
        QCOMPARE(calls, 1);
        first.setUp(true);
        second.setUp(true);
        QCOMPARE(calls, 1);
        second.setUp(false);
        QCOMPARE(calls, 2);
    }

    void anIdThatIsTakenReplacesTheRegistrationOfItsKind() {
        QStringList calls;
        const auto call = [&calls](const char* who) { return [&calls, who] { calls << who; }; };
        const Task otherKind(true, nullptr, call("up"), "same");
        const Task first(false, nullptr, call("first"), "same");
        const Task second(false, nullptr, call("second"), "same");
        calls.clear();
        bus().setUp(false);
        QCOMPARE(calls, QStringList{"second"});
        bus().setUp(true);
        QCOMPARE(calls, QStringList({"second", "up"}));
        QVERIFY(kiteInterface()->disconnectNetworkStatus(false, "same"));
        QVERIFY(!kiteInterface()->disconnectNetworkStatus(false, "same"));
    }

    void aHandlerKeepsWhatItCounts() {
        int last = 0;
        const Task task(false, nullptr, [count = 0, &last]() mutable { last = ++count; });
        for (int i = 0; i < 3; ++i) {
            bus().setUp(false);
            bus().setUp(true);
        }
        QCOMPARE(last, 3);
    }

    void aTaskThatWasTakenBackIsNotCalled_data() {
        QTest::addColumn<bool>("onConnect");
        QTest::newRow("connecting") << true;
        QTest::newRow("disconnecting") << false;
    }
    void aTaskThatWasTakenBackIsNotCalled() {
        QFETCH(bool, onConnect);
        bus().setUp(!onConnect);
        int calls = 0;
        Task task(onConnect, nullptr, [&calls] { ++calls; });
        QVERIFY(task.end());
        QVERIFY(!task.end());
        bus().setUp(onConnect);
        QCOMPARE(calls, 0);
    }

    void theTwoKindsAreKeptApart() {
        const Task task(
            false, nullptr, [] {}, "same");
        QVERIFY(!kiteInterface()->disconnectNetworkStatus(true, "same"));
        QVERIFY(kiteInterface()->disconnectNetworkStatus(false, "same"));
    }

    void anUnknownIdIsNotTakenBack() {
        QVERIFY(!kiteInterface()->disconnectNetworkStatus(true, "nobody"));
        QVERIFY(!kiteInterface()->disconnectNetworkStatus(false, ""));
    }

    void aTaskEndsWithItsOwner() {
        int calls = 0;
        auto owner = std::make_unique<QObject>();
        Task task(false, owner.get(), [&calls] { ++calls; });
        owner.reset();
        bus().setUp(false);
        QCOMPARE(calls, 0);
        QVERIFY(!task.end());
    }

    void whatTheHandlerHoldsIsFreedWithTheTask() {
        const auto held = std::make_shared<int>(0);
        {
            const Task task(false, nullptr, [held] { ++*held; });
            bus().setUp(false);
            QCOMPARE(*held, 1);
            QVERIFY(held.use_count() > 1);
        }
        QCOMPARE(held.use_count(), 1L);
    }

    void aHandlerMayTakeItselfBack() {
        const auto held = std::make_shared<int>(0);
        kiteInterface()->connectNetworkStatus(
            false, "", nullptr,
            [held] {
                QVERIFY(kiteInterface()->disconnectNetworkStatus(false, "itself"));
                ++*held;
            },
            "itself");
        bus().setUp(false);
        QCOMPARE(*held, 1);
        QCOMPARE(held.use_count(), 1L);
    }
};

QTEST_GUILESS_MAIN(TestNetworkTasks)
#include "tst_interface_networktasks.moc"
