#include "brisk/channel.h"
#include "brisk/relay.h"
#include "kite/interfacemanager.h"

#include <QMap>
#include <QStringList>

#include <benchmark/benchmark.h>

#include <functional>

using brisk::standin::Answer;
using brisk::standin::Channel;
using brisk::standin::Content;
using brisk::standin::Message;
using kite::kiteInterface;

namespace {

using Callback = std::function<void(const QVariant&)>;

const QString serviceKey("robot.state");

QString nameOf(int subscriber) {
    return QString("page%1").arg(subscriber, 3, 10, QLatin1Char('0'));
}

// A far side that answers at once with the same content.
class PromptLink : public brisk::standin::Link {
public:
    PromptLink() : m_content(brisk::standin::contentOf(QVariant(250))) { Channel::bus()->setLink(this); }
    ~PromptLink() override { Channel::bus()->setLink(nullptr); }

    bool isUp() const override { return true; }
    void setUp(bool) override {}
    void send(const Message& message) override { m_asked = message.id; }
    bool receive(Answer* answer, int) override {
        *answer = {m_asked, m_content};
        return true;
    }

private:
    Content m_content;
    quint64 m_asked = 0;
};

class Subscribers {
public:
    explicit Subscribers(int count) : m_count(count) {
        for (int i = 0; i < count; ++i)
            kiteInterface()->connectRelayData(
                "weld", serviceKey, [this](const QVariant&) { ++m_heard; }, nameOf(i));
    }
    ~Subscribers() {
        for (int i = 0; i < m_count; ++i)
            kiteInterface()->disconnectRelayData("weld", serviceKey, nameOf(i));
    }
    qint64 heard() const { return m_heard; }

private:
    Q_DISABLE_COPY(Subscribers)
    int m_count;
    qint64 m_heard = 0;
};

void countCalls(benchmark::State& state, qint64 heard) {
    if (heard != state.iterations() * state.range(0))
        state.SkipWithError("not every subscriber was called");
    state.SetComplexityN(state.range(0));
}

void changeToSubscribers(benchmark::State& state) {
    const Subscribers subscribers(static_cast<int>(state.range(0)));
    brisk::ModuleObject* node = relay()->watchNode(serviceKey);
    const QVariant value(1);
    for (auto _ : state)
        emit node->changed(value, value, nullptr);
    countCalls(state, subscribers.heard());
}
BENCHMARK(changeToSubscribers)->Arg(1)->Arg(10)->Arg(100)->Arg(1000)->Complexity();

// The same look-ups and copies without a manager, behind one slot.
void changeToSubscribersByHand(benchmark::State& state) {
    qint64 heard = 0;
    QMap<QString, QStringList> names;
    QMap<QString, Callback> callbacks;
    for (int i = 0; i < state.range(0); ++i) {
        const QString name = "weld." + nameOf(i);
        names[serviceKey] << name;
        callbacks[name] = [&heard](const QVariant&) { ++heard; };
    }
    brisk::ModuleObject node("node");
    QObject::connect(&node, &brisk::ModuleObject::changed, &node, [&](const QVariant& value) {
        const QStringList copy = names.value(serviceKey);
        for (const QString& name : copy) {
            const auto found = callbacks.constFind(name);
            if (found == callbacks.constEnd())
                continue;
            const Callback callback = *found;
            callback(value);
        }
    });
    const QVariant value(1);
    for (auto _ : state)
        emit node.changed(value, value, nullptr);
    countCalls(state, heard);
}
BENCHMARK(changeToSubscribersByHand)->Arg(1)->Arg(10)->Arg(100)->Arg(1000)->Complexity();

void changeToSlots(benchmark::State& state) {
    qint64 heard = 0;
    brisk::ModuleObject node("node");
    for (int i = 0; i < state.range(0); ++i)
        QObject::connect(&node, &brisk::ModuleObject::changed, &node, [&heard](const QVariant&) { ++heard; });
    const QVariant value(1);
    for (auto _ : state)
        emit node.changed(value, value, nullptr);
    countCalls(state, heard);
}
BENCHMARK(changeToSlots)->Arg(1)->Arg(10)->Arg(100)->Arg(1000)->Complexity();

void changeToNobody(benchmark::State& state) {
    const Subscribers subscribers(10);
    brisk::ModuleObject* node = relay()->watchNode("robot.mode");
    const QVariant value(1);
    for (auto _ : state)
        emit node->changed(value, value, nullptr);
    if (subscribers.heard() != 0)
        state.SkipWithError("somebody was called");
}
BENCHMARK(changeToNobody);

void robotConnected(benchmark::State& state) {
    const PromptLink link;
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getRobotConnected());
}
BENCHMARK(robotConnected);

void relayData(benchmark::State& state) {
    const PromptLink link;
    const QString key("robot.speed");
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getRelayData(key));
}
BENCHMARK(relayData);

// What of that is the bus's own.
void relayDataOfTheBus(benchmark::State& state) {
    const PromptLink link;
    const QString key("robot.speed");
    for (auto _ : state)
        benchmark::DoNotOptimize(relay()->get(nullptr, key)->exportToJson(true));
}
BENCHMARK(relayDataOfTheBus);

} // namespace

BENCHMARK_MAIN();
