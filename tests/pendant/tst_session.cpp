#include "pendanttest/pendant.h"
#include "plugins/report.h"

#include "brisk/modulemanager.h"
#include "kite/pluginregister.h"
#include "tarp/factory.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <stdexcept>

using kite::PluginBase;
using pendant::PluginInfo;
using pendant::PluginState;
using pendanttest::Pendant;

namespace {

QStringList calls;

// Notes the calls of all plugins in one list: "weld.init"; before each note, `hook` may do something.
class Noting : public PluginBase {
public:
    Noting(const QString& name, QObject* parent) : PluginBase(parent), m_name(name) {}
    ~Noting() override { note("destructor"); }
    void init() override { note("init"); }
    void afterInit() override { note("afterInit"); }
    void render() override { note("render"); }
    void idle() override { note("idle"); }
    void detach() override { note("detach"); }

    static std::function<void(const QString&)> hook;

private:
    void note(const char* call) {
        const QString line = m_name + QLatin1Char('.') + QLatin1String(call);
        calls.append(line);
        if (hook)
            hook(line);
    }

    QString m_name;
};

std::function<void(const QString&)> Noting::hook;

// A module of the host that is no plugin of Kite's: notes every call with its hooks.
class PlainModule : public tarp::BModule {
public:
    explicit PlainModule(QObject* parent) : BModule(parent) { bindMobj(QStringLiteral("brisk.plain.one")); }
    ~PlainModule() override { calls.append("plain.destructor"); }
    void setup() override {
        calls.append("plain.setup");
        m_page = new QWidget;
        instantiatedCenterWidget()->addPage(this, "plain.page", m_page);
        instantiatedCenterWidget()->addPage(this, "plain.other", new QWidget);
    }
    void afterSetup() override { calls.append("plain.afterSetup"); }
    void init() override { calls.append("plain.init"); }
    void afterInit() override { calls.append("plain.afterInit"); }
    void render() override { calls.append("plain.render"); }
    void afterRender() override { calls.append("plain.afterRender"); }
    void idle() override { calls.append("plain.idle"); }
    void afterIdle() override { calls.append("plain.afterIdle"); }
    void detach() override { calls.append("plain.detach"); }
    void beforeDetach() override { calls.append("plain.beforeDetach"); }

private:
    QPointer<QWidget> m_page;
};

} // namespace

class TestSession : public QObject {
    Q_OBJECT

private slots:
    void init() { m_pendant.reset(new Pendant); }

    void cleanup() {
        m_pendant.reset();
        Noting::hook = nullptr;
        calls.clear();
    }

    void withoutPluginsNothingHappens() {
        m_pendant->start();
        QVERIFY(m_pendant->session().plugins().isEmpty());
        QVERIFY(!m_pendant->session().hasFailures());
        m_pendant->close();
    }

    void modulesAreMadeInTheOrderOfTheirNamesAndBelongToTheSession() {
        QStringList made;
        for (const QString& name : {QString("paint"), QString("Weld"), QString("glue")}) {
            m_pendant->add(name, [&made, name](QObject* parent) {
                made.append(name);
                return new PluginBase(parent);
            });
        }
        m_pendant->start();
        QCOMPARE(made, QStringList({"Weld", "glue", "paint"}));
        QCOMPARE(m_pendant->session().module("glue")->parent(), &m_pendant->session());
        QCOMPARE(m_pendant->session().module("none"), static_cast<tarp::BModule*>(nullptr));
    }

    void allAreSetUpBeforeAnyIsInitialised() {
        QStringList pages;
        Noting::hook = [&](const QString& call) {
            if (call == "glue.init")
                pages = m_pendant->frame().center()->keys();
        };
        addNoting({"weld", "glue"});
        m_pendant->start();
        QCOMPARE(pages, QStringList({"start", "kite.glue", "kite.weld"}));
        QCOMPARE(calls, QStringList({"glue.init", "weld.init", "glue.afterInit", "weld.afterInit"}));
    }

    void everyCallOfTheLifecycleComesWithItsHook() {
        bfactory()->creators.insert("plain", [](QObject* parent) { return new PlainModule(parent); });
        m_pendant->start();
        QCOMPARE(calls, QStringList({"plain.setup", "plain.afterSetup", "plain.init", "plain.afterInit"}));
        calls.clear();
        m_pendant->frame().center()->switchTo(nullptr, "plain.page");
        QCOMPARE(calls, QStringList({"plain.render", "plain.afterRender"}));
        calls.clear();
        m_pendant->leave();
        QCOMPARE(calls, QStringList({"plain.idle", "plain.afterIdle"}));
        calls.clear();
        m_pendant->close();
        QCOMPARE(calls, QStringList({"plain.beforeDetach", "plain.detach", "plain.destructor"}));
    }

    void fromOnePageOfAModuleToItsOtherItIdlesAndRenders() {
        bfactory()->creators.insert("plain", [](QObject* parent) { return new PlainModule(parent); });
        m_pendant->start();
        m_pendant->frame().center()->switchTo(nullptr, "plain.page");
        calls.clear();
        m_pendant->frame().center()->switchTo(nullptr, "plain.other");
        QCOMPARE(calls, QStringList({"plain.idle", "plain.afterIdle", "plain.render", "plain.afterRender"}));
    }

    void startingTwiceStartsOnce() {
        addNoting({"weld"});
        m_pendant->start();
        m_pendant->start();
        QCOMPARE(calls, QStringList({"weld.init", "weld.afterInit"}));
        QCOMPARE(m_pendant->session().plugins().size(), 1);
    }

    void theSamePageAgainChangesNothing() {
        addNoting({"weld"});
        m_pendant->start();
        calls.clear();
        QVERIFY(m_pendant->open("weld"));
        QVERIFY(m_pendant->open("weld"));
        QCOMPARE(calls, QStringList("weld.render"));
    }

    void thePageThatIsLeftIdlesBeforeTheNextRenders() {
        addNoting({"weld", "glue"});
        m_pendant->start();
        calls.clear();
        m_pendant->open("weld");
        m_pendant->open("glue");
        m_pendant->leave();
        QCOMPARE(calls, QStringList({"weld.render", "weld.idle", "glue.render", "glue.idle"}));
    }

    void aPluginThatSwitchesPagesWhileItRendersGetsItsCallsInOrder() {
        addNoting({"weld", "glue"});
        m_pendant->start();
        calls.clear();
        Noting::hook = [&](const QString& call) {
            if (call == "weld.render")
                m_pendant->open("glue");
        };
        m_pendant->open("weld");
        QCOMPARE(calls, QStringList({"weld.render", "weld.idle", "glue.render"}));
        QCOMPARE(m_pendant->calls("weld").mid(5), QStringList({"render", "afterRender", "idle", "afterIdle"}));
    }

    void aPluginThatGoesThereAndBackWhileItRendersHasNotLeft() {
        addNoting({"weld"});
        m_pendant->start();
        calls.clear();
        Noting::hook = [&](const QString& call) {
            if (call != "weld.render")
                return;
            m_pendant->leave();
            m_pendant->open("weld");
        };
        m_pendant->open("weld");
        QCOMPARE(calls, QStringList("weld.render"));
    }

    void aPageThatItsPluginRemovesIdles() {
        addNoting({"weld"});
        m_pendant->start();
        m_pendant->open("weld");
        calls.clear();
        delete m_pendant->page("weld");
        QCOMPARE(calls, QStringList("weld.idle"));
        QVERIFY(!m_pendant->open("weld"));
    }

    void atTheEndTheShownPageIdlesThenAllDetachThenAllAreDestroyed() {
        addNoting({"weld", "glue"});
        m_pendant->start();
        m_pendant->open("weld");
        calls.clear();
        m_pendant->close();
        QCOMPARE(calls, QStringList({"weld.idle", "glue.detach", "weld.detach", "glue.destructor", "weld.destructor"}));
        QCOMPARE(m_pendant->frame().center()->keys(), QStringList("start"));
        QCOMPARE(m_pendant->navigation(), QStringList());
    }

    void stoppingTwiceStopsOnce() {
        addNoting({"weld"});
        m_pendant->start();
        calls.clear();
        m_pendant->session().stop();
        m_pendant->session().stop();
        QCOMPARE(calls, QStringList({"weld.detach", "weld.destructor"}));
    }

    void aSessionThatIsDestroyedStopsFirst() {
        kiteFactory()->regist("weld", [](QObject* parent) { return new Noting("weld", parent); });
        {
            pendant::CallGuard guard;
            pendant::PluginSession session(&guard);
            session.start(m_pendant->frame().center());
        }
        QCOMPARE(calls.mid(2), QStringList({"weld.detach", "weld.destructor"}));
    }

    void aPluginIsDescribedForPeople() {
        m_pendant->add("weld", [](QObject* parent) {
            auto* plugin = new PluginBase(parent);
            plugin->setPluginLabel("Arc welding");
            return plugin;
        });
        m_pendant->start();
        const PluginInfo info = m_pendant->session().plugins().value(0);
        QCOMPARE(info.name, QString("weld"));
        QCOMPARE(info.title, QString("Arc welding"));
        QCOMPARE(info.file, QString());
        QCOMPARE(info.page, QString("kite.weld"));
        QCOMPARE(info.state, PluginState::Running);
        QCOMPARE(info.reason, QString());
        m_pendant->close();
        QCOMPARE(m_pendant->session().plugins().value(0).state, PluginState::Stopped);
        QCOMPARE(m_pendant->session().plugins().value(0).title, QString("Arc welding"));
    }

    void aCreatorThatMakesNothingIsTold() {
        bfactory()->creators.insert("empty", [](QObject*) -> tarp::BModule* { return nullptr; });
        bfactory()->creators.insert("none", nullptr);
        m_pendant->expectError("empty: Nothing was made for it.");
        m_pendant->expectError("none: Nothing was made for it.");
        m_pendant->start();
        QCOMPARE(m_pendant->session().plugins().value(0).state, PluginState::Failed);
        QCOMPARE(m_pendant->session().plugins().value(0).reason, QString("Nothing was made for it."));
        QCOMPARE(m_pendant->session().plugins().value(1).state, PluginState::Failed);
    }

    void aPluginThatThrowsInSetupIsSwitchedOff() {
        class Failing : public tarp::BModule {
        public:
            using BModule::BModule;
            void setup() override { throw std::runtime_error("no room"); }
            void init() override { calls.append("failing.init"); }
            void detach() override { calls.append("failing.detach"); }
        };
        bfactory()->creators.insert("failing", [](QObject* parent) { return new Failing(parent); });
        m_pendant->expectError("failing: setup threw: no room");
        m_pendant->start();
        m_pendant->close();
        QCOMPARE(calls, QStringList());
        QCOMPARE(m_pendant->session().plugins().value(0).state, PluginState::Failed);
        QCOMPARE(m_pendant->session().plugins().value(0).reason, QString("setup threw: no room"));
    }

    void aModuleThatIsDeletedMeanwhileIsTold() {
        addNoting({"weld", "glue"});
        m_pendant->start();
        QSignalSpy changed(&m_pendant->session(), &pendant::PluginSession::changed);
        m_pendant->open("weld");
        calls.clear();
        m_pendant->expectError("weld: It was deleted while the pendant was running.");
        delete m_pendant->session().module("weld");
        QVERIFY(!changed.isEmpty());
        QCOMPARE(m_pendant->session().plugins().value(1).state, PluginState::Failed);
        QCOMPARE(m_pendant->session().plugins().value(1).reason,
                 QString("It was deleted while the pendant was running."));
        QCOMPARE(m_pendant->frame().center()->current(), QString("start"));
        m_pendant->open("glue");
        m_pendant->close();
        QCOMPARE(calls, QStringList({"weld.idle", "weld.destructor", "glue.render", "glue.idle", "glue.detach",
                                     "glue.destructor"}));
    }

    void aPluginThatDeletesAnotherDuringACallIsSurvived() {
        addNoting({"glue", "weld"});
        Noting::hook = [&](const QString& call) {
            if (call == "glue.init")
                delete m_pendant->session().module("weld");
        };
        m_pendant->expectError("weld: It was deleted while the pendant was running.");
        m_pendant->start();
        m_pendant->close();
        QCOMPARE(calls,
                 QStringList({"glue.init", "weld.destructor", "glue.afterInit", "glue.detach", "glue.destructor"}));
    }

    void aModuleThatDeletesItselfDuringACallIsSurvived() {
        class Leaving : public tarp::BModule {
        public:
            using BModule::BModule;
            void init() override { delete this; }
        };
        bfactory()->creators.insert("leaving", [](QObject* parent) { return new Leaving(parent); });
        m_pendant->expectError("leaving: It was deleted while the pendant was running.");
        m_pendant->start();
        QCOMPARE(m_pendant->session().plugins().value(0).state, PluginState::Failed);
        m_pendant->close();
    }

    void everyCallIsMeasured() {
        m_pendant->add("slow", [](QObject* parent) {
            QTest::qSleep(20);
            return new PluginBase(parent);
        });
        m_pendant->start();
        const QList<pendant::CallRecord> records = m_pendant->guard().records();
        QCOMPARE(records.size(), 5);
        QCOMPARE(records.first().plugin, QString("slow"));
        QCOMPARE(records.first().call, QString("constructor"));
        QVERIFY2(records.first().ms >= 20, qPrintable(QString::number(records.first().ms)));
        QCOMPARE(records.first().thrown, QString());
        QCOMPARE(m_pendant->guard().thrownCount(), 0);
    }

    void reportedErrorsAreKeptOnce() {
        for (int i = 0; i < 2; ++i) {
            m_pendant->expectError("weld: The spool is empty.");
            pendant::reportError("weld", "The spool is empty.");
        }
        QCOMPARE(pendant::reportedErrors().filter("The spool is empty."), QStringList("weld: The spool is empty."));
        QCOMPARE(m_pendant->messages().size(), 2);
    }

    void theRecordsDoNotGrowWithoutEnd() {
        pendant::CallGuard guard;
        for (int i = 0; i < pendant::CallGuard::capacity + 10; ++i)
            guard.run("weld", QString::number(i), [] {});
        QCOMPARE(guard.records().size(), int(pendant::CallGuard::capacity));
        QCOMPARE(guard.records().first().call, QString("10"));
    }

    void whatIsThrownIsToldInWords_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("words");
        QTest::newRow("an exception") << 0 << "no gas";
        QTest::newRow("an exception without words") << 1 << "std::runtime_error";
        QTest::newRow("a number") << 2 << "a value of type int, which is no std::exception";
        QTest::newRow("a text") << 3 << "a value of type char const*, which is no std::exception";
        QTest::newRow("an empty function") << 4 << "bad_function_call";
    }

    void whatIsThrownIsToldInWords() {
        QFETCH(int, kind);
        QFETCH(QString, words);
        m_pendant->expectError("weld: init threw: " + words);
        QCOMPARE(m_pendant->guard().run("weld", "init", [kind] { throwKind(kind); }), words);
        QCOMPARE(m_pendant->messages().last().source, QString("weld"));
        QCOMPARE(m_pendant->messages().last().text, QString("init threw: " + words));
        QCOMPARE(m_pendant->guard().records().last().thrown, words);
        QCOMPARE(m_pendant->guard().thrownCount(), 1);
    }

private:
    void addNoting(const QStringList& names) {
        for (const QString& name : names)
            m_pendant->add(name, [name](QObject* parent) { return new Noting(name, parent); });
    }

    static void throwKind(int kind) {
        switch (kind) {
        case 0:
            throw std::runtime_error("no gas");
        case 1:
            throw std::runtime_error("");
        case 2:
            throw 42;
        case 3:
            throw "text";
        default:
            std::function<void()>()();
        }
    }

    std::unique_ptr<Pendant> m_pendant;
};

QTEST_MAIN(TestSession)
#include "tst_session.moc"
