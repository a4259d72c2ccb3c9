#include "kite/kitemodule.h"
#include "kite/pluginregister.h"
#include "plugins/callguard.h"
#include "plugins/pluginsession.h"

#include "tarp/containers.h"
#include "tarp/factory.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

// A plugin as small as one that shows something can be.
class Small : public kite::PluginBase {
public:
    explicit Small(QObject* parent) : PluginBase(parent), m_module(static_cast<kite::Kite*>(parent)) {
        setPluginLabel(QStringLiteral("Small"));
    }
    void init() override { m_module->createCenterWidgte(new QLabel(QStringLiteral("Small"))); }

private:
    kite::Kite* m_module;
};

void registerPlugins(int count) {
    for (int i = 0; i < count; ++i) {
        kiteFactory()->regist(QStringLiteral("plugin%1").arg(i), [](QObject* parent) { return new Small(parent); });
    }
}

// The pendant's window with its centre, as the plugins find it.
class Frame {
public:
    Frame() : m_center(new tarp::CenterWidget) {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(m_center);
        m_window.resize(1280, 800);
        m_window.show();
    }
    tarp::CenterWidget* center() const { return m_center; }

private:
    QWidget m_window;
    tarp::CenterWidget* m_center;
};

// The host's names are left from the run before; only the plugins of this run may be made.
void forgetHostsNames() {
    bfactory()->creators.clear();
    brisk::pluginManager()->plugins.clear();
}

// From registered names to plugins that are made, set up and initialised.
void startPlugins(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        forgetHostsNames();
        registerPlugins(count);
        auto frame = std::make_unique<Frame>();
        pendant::CallGuard guard;
        auto session = std::make_unique<pendant::PluginSession>(&guard);
        state.ResumeTiming();

        session->start(frame->center());

        state.PauseTiming();
        if (session->plugins().size() != count || session->hasFailures())
            state.SkipWithError("not every plugin has started");
        session.reset();
        frame.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(count);
    state.counters["per plugin"] = benchmark::Counter(
        static_cast<double>(count), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

BENCHMARK(startPlugins)->Arg(10)->Arg(32)->Arg(100)->Unit(benchmark::kMillisecond)->Complexity();

void swallow(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    if (!folder.isValid() || !QDir::setCurrent(folder.path()))
        qFatal("There is no temporary folder to work in.");
    qInstallMessageHandler(swallow);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QDir::rootPath());
    return 0;
}
