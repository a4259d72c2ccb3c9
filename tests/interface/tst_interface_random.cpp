#include "links.h"
#include "subscriptionmodel.h"

#include <random>

namespace {

const QStringList plugins{"a", "ab", "", "a.b"};
const QStringList serviceKeys{"robot.state", "robot.mode", "robot"};
const QStringList connectKeys{"1", "2", "b.1", ""};

/// One thing that is done, from outside or by a callback.
struct Act {
    enum Kind { Connect, ConnectInVain, Disconnect, Change, Throw, Nothing };
    Kind kind;
    QString plugin;
    QString serviceKey;
    QString connectKey;
};

struct Thrown {};

class Dice {
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}
    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    const QString& of(const QStringList& list) { return list.at(below(list.size())); }

    Act act(const QList<Act::Kind>& kinds) {
        return {kinds.at(below(kinds.size())), of(plugins), of(serviceKeys), of(connectKeys)};
    }
    Act outerAct() { return act({Act::Connect, Act::Connect, Act::ConnectInVain, Act::Disconnect, Act::Change}); }
    // What callbacks do, one after another; those that are called after the last do nothing.
    QList<Act> innerActs() {
        QList<Act> acts;
        for (int i = below(5); i > 0; --i)
            acts << act({Act::Connect, Act::Connect, Act::Disconnect, Act::Disconnect, Act::Change, Act::Throw,
                         Act::Nothing, Act::Nothing});
        return acts;
    }

private:
    std::mt19937 m_engine;
};

/// Does acts on the manager or on the model, and keeps what came of them.
class Side {
public:
    virtual ~Side() = default;

    QStringList perform(const Act& outer, const QList<Act>& inner) {
        m_inner = inner;
        m_transcript.clear();
        try {
            perform(outer);
        } catch (const Thrown&) {
            m_transcript << "thrown";
        }
        return m_transcript;
    }

protected:
    virtual bool connect(const Act& act, int callback, bool inVain) = 0;
    virtual void disconnect(const Act& act) = 0;
    virtual void change(const QString& key) = 0;

    void called(int callback) {
        m_transcript << QString("called %1").arg(callback);
        if (m_inner.isEmpty())
            return;
        perform(m_inner.takeFirst());
    }

private:
    void perform(const Act& act) {
        if (act.kind == Act::Connect || act.kind == Act::ConnectInVain) {
            const bool done = connect(act, ++m_callbacks, act.kind == Act::ConnectInVain);
            m_transcript << (done ? "connected" : "refused");
        } else if (act.kind == Act::Disconnect) {
            disconnect(act);
            m_transcript << "disconnected";
        } else if (act.kind == Act::Change) {
            change(act.serviceKey);
            m_transcript << "changed";
        } else if (act.kind == Act::Throw) {
            throw Thrown();
        }
    }

    QList<Act> m_inner;
    QStringList m_transcript;
    int m_callbacks = 0;
};

class ManagerSide : public Side {
protected:
    bool connect(const Act& act, int callback, bool inVain) override {
        brisk::standin::hostFaults().nullWatchNodes = inVain;
        const auto call = [this, callback](const QVariant&) { called(callback); };
        const bool done = kiteInterface()->connectRelayData(act.plugin, act.serviceKey, call, act.connectKey);
        brisk::standin::hostFaults().nullWatchNodes = false;
        return done;
    }
    void disconnect(const Act& act) override {
        QVERIFY(kiteInterface()->disconnectRelayData(act.plugin, act.serviceKey, act.connectKey));
    }
    void change(const QString& key) override { relay()->watchNode(key)->setValue(nullptr, 1); }
};

class ModelSide : public Side {
public:
    ModelSide() {
        model.called = [this](int callback) { called(callback); };
    }
    SubscriptionModel model;

protected:
    bool connect(const Act& act, int callback, bool inVain) override {
        model.nothingToFollow = inVain;
        return model.connect(act.plugin, act.serviceKey, callback, act.connectKey);
    }
    void disconnect(const Act& act) override { model.disconnect(act.plugin, act.serviceKey, act.connectKey); }
    void change(const QString& key) override { model.change(key); }
};

} // namespace

// A long row of acts at random, against a model of what they should do.
class TestRandom : public LinksTest {
    Q_OBJECT

private slots:
    void cleanup() {
        for (const QString& plugin : plugins) {
            for (const QString& serviceKey : serviceKeys) {
                for (const QString& connectKey : connectKeys)
                    unsubscribe(plugin, serviceKey, connectKey);
            }
        }
        end();
    }

    void theManagerDoesWhatTheModelDoes_data() {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : {1U, 20240506U, 4711U})
            QTest::addRow("seed %u", seed) << seed;
    }
    void theManagerDoesWhatTheModelDoes() {
        QFETCH(unsigned, seed);
        Dice dice(seed);
        ManagerSide manager;
        ModelSide model;
        QMap<QString, int> seen;
        for (int step = 0; step < 50000; ++step) {
            const Act outer = dice.outerAct();
            const QList<Act> inner = dice.innerActs();
            const QStringList did = manager.perform(outer, inner);
            const QStringList should = model.perform(outer, inner);
            if (did != should || watches() != model.model.watches || !listsAgree(model.model))
                return differs(step, did, should, model.model.watches);
            for (const QString& line : did)
                ++seen[line.section(' ', 0, 0)];
            seen["left behind"] += model.model.leftBehind() > 0 ? 1 : 0;
            forget(&model.model);
        }
        for (const char* kind : {"connected", "refused", "disconnected", "changed", "called", "thrown", "left behind"})
            QVERIFY2(seen.value(kind) > 1000, kind);
    }

private:
    static bool listsAgree(const SubscriptionModel& model) {
        for (const QString& plugin : plugins) {
            if (kiteInterface()->getConnectRelayKeyList(plugin) != model.list(plugin))
                return false;
        }
        return true;
    }
    void forget(SubscriptionModel* model) {
        model->watches.clear();
        bus().sent.clear();
        log().forgetLines();
    }
    void differs(int step, const QStringList& did, const QStringList& should, const QStringList& shouldWatch) {
        QFAIL(qPrintable(QString("step %1: %2 | %3, but should: %4 | %5")
                             .arg(step)
                             .arg(did.join(", "), watches().join(" "), should.join(", "), shouldWatch.join(" "))));
    }
};

QTEST_GUILESS_MAIN(TestRandom)
#include "tst_interface_random.moc"
