#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "brisk/modulemanager.h"
#include "briskx/navigation.h"
#include "helm/messagelist.h"
#include "kite/kitemodule.h"
#include "kite/pluginregister.h"
#include "tarp/factory.h"
#include "tarp/rendering.h"

#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QTest>

#include <functional>
#include <memory>

using kite::Kite;
using kite::PluginBase;
using tarp::BModule;

namespace {

const QString entriesKey = QStringLiteral("gyre.page.robot.page.pack.page");

// Notes its calls and, before each note, runs what the test wants to know at that moment.
class Noting : public PluginBase {
public:
    explicit Noting(QObject* parent) : PluginBase(parent) {}
    ~Noting() override { note("destructor"); }
    void init() override { note("init"); }
    void afterInit() override { note("afterInit"); }
    void render() override { note("render"); }
    void idle() override { note("idle"); }
    void detach() override { note("detach"); }

    QStringList* calls = nullptr;
    std::function<void(const QString&)> look;

private:
    void note(const char* call) {
        if (look)
            look(QLatin1String(call));
        if (calls)
            calls->append(QLatin1String(call));
    }
};

class DeferredDeletes : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        count += event->type() == QEvent::DeferredDelete;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class TestLifecycle : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log.reset(new pendanttest::LogWatch);
        m_frame.reset(new pendanttest::Frame);
        m_calls.clear();
    }

    void cleanup() {
        m_module.reset();
        kiteFactory()->cancel("weld");
        m_frame.reset();
        pendanttest::resetHost();
        tarp::standin::setRenderStyleSheet(QString());
        m_log.reset();
    }

    void everyModuleIsOfTheTypeKite() {
        const Kite weld("weld", nullptr);
        const Kite paint("paint", nullptr);
        QCOMPARE(weld.name(), QString("kite"));
        QCOMPARE(paint.name(), QString("kite"));
    }

    void thePluginNameIsTheStoredOne() {
        Kite module("weld", nullptr);
        QCOMPARE(module.pluginName(), QString("weld"));
        QString& name = module.pluginName();
        QCOMPARE(&name, &module.pluginName());
    }

    void theModuleIsBoundToItsNodeFromTheStart() {
        QObject parent;
        auto* module = new Kite("weld", &parent);
        QCOMPARE(module->parent(), &parent);
        QVERIFY(module->mobj());
        QCOMPARE(module->mobj()->key(), QString("brisk.kite.weld"));
        QCOMPARE(bModule(mName("brisk", "kite", "weld")), module);
    }

    void thePluginsResourcesAreKnownUnderItsName() {
        const Kite module("resourceful", nullptr);
        QCOMPARE(QDir::searchPaths("resourceful"), QStringList(":/resourceful"));
    }

    void theModuleHasNoMetaObjectOfItsOwn() {
        const Kite module("weld", nullptr);
        QCOMPARE(module.metaObject()->className(), "tarp::BModule");
    }

    void setupPutsThePageIntoTheCentre() {
        make();
        QVERIFY(!m_frame->center()->keys().contains("kite.weld"));
        m_module->setup();
        QVERIFY(m_frame->center()->keys().contains("kite.weld"));
        QCOMPARE(m_frame->center()->owner("kite.weld"), m_module.get());
        QCOMPARE(m_module->findChildren<kite::PluginSettingPage*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
        QCOMPARE(page()->wgt(), m_frame->center()->page("kite.weld"));
        QCOMPARE(m_calls, QStringList());
    }

    void settingUpTwiceMakesOnePage() {
        make();
        m_module->setup();
        QWidget* const widget = page()->wgt();
        m_module->setup();
        QCOMPARE(m_module->findChildren<kite::PluginSettingPage*>().size(), 1);
        QCOMPARE(page()->wgt(), widget);
    }

    void aClearedTreeIsSurvived() {
        make();
        m_module->setup();
        m_module->init();
        m("gyre")->clear(nullptr, false, true);
        m("brisk")->clear(nullptr, false, true);
        m_module->render();
        QVERIFY(m_module->changeModelWindowStatus(true));
        m_module.reset();
        QCOMPARE(m_calls, QStringList({"init", "render", "destructor"}));
    }

    void theSettingsPageIsOfTheTypeKite() {
        make();
        m_module->setup();
        QCOMPARE(page()->name(), QString("kite"));
    }

    void initRegistersTheNavigationEntry() {
        make();
        m_module->setup();
        m_module->init();
        brisk::ModuleObject* entries = m(entriesKey);
        QCOMPARE(entries->cmobjCount(), 1);
        QCOMPARE(entries->c(0)->c("title")->getString(), QString("weld"));
        QCOMPARE(entries->c(0)->c("icon")->getString("none"), QString());
        QCOMPARE(entries->c(0)->c("nav")->getString(), QString("kite.weld"));
    }

    void theLabelIsTheTitleAsItStands_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("title");
        QTest::newRow("none") << ""
                              << "weld";
        QTest::newRow("a label") << "Arc welding"
                                 << "Arc welding";
        QTest::newRow("blanks are a label") << "  "
                                            << "  ";
        QTest::newRow("other letters") << QString::fromUtf8("焊接") << QString::fromUtf8("焊接");
        QTest::newRow("markup") << "<b>Weld & more</b>"
                                << "<b>Weld & more</b>";
    }

    void theLabelIsTheTitleAsItStands() {
        QFETCH(QString, label);
        QFETCH(QString, title);
        make();
        m_plugin->setPluginLabel(label);
        m_module->setup();
        m_module->init();
        QCOMPARE(m(entriesKey)->c(0)->c("title")->getString(), title);
    }

    void theEntryIsAppended() {
        ot::gyre::registerPage(nullptr, "Before", "robot.pack", "", -1);
        make();
        m_module->setup();
        m_module->init();
        QCOMPARE(m(entriesKey)->c(1)->c("title")->getString(), QString("weld"));
    }

    void theEntryIsThereBeforeThePluginsInitIsCalled() {
        make();
        int entries = 0;
        QString nav;
        m_plugin->look = [&](const QString& call) {
            if (call != "init")
                return;
            entries = m(entriesKey)->cmobjCount();
            nav = m(entriesKey)->c(0)->c("nav")->getString();
        };
        m_module->setup();
        m_module->init();
        QCOMPARE(entries, 1);
        QCOMPARE(nav, QString("kite.weld"));
    }

    void theNavFieldIsAnnouncedByTheModule() {
        make();
        m_module->setup();
        QObject* sender = nullptr;
        QObject context;
        connect(m("gyre.page"), &brisk::ModuleObject::touched, &context, [&](brisk::ModuleObject* node, QObject* by) {
            if (node->name() == "nav")
                sender = by;
        });
        m_module->init();
        QCOMPARE(sender, m_module.get());
    }

    void everyCallIsHandedOnOnce() {
        make();
        m_module->setup();
        m_module->afterSetup();
        m_module->init();
        m_module->afterInit();
        m_module->render();
        m_module->afterRender();
        m_module->idle();
        m_module->afterIdle();
        m_module->beforeDetach();
        m_module->detach();
        QCOMPARE(m_calls, QStringList({"init", "afterInit", "render", "idle", "detach"}));
    }

    void renderGivesThePageTheGlobalSheetFirst() {
        const QString sheet = QStringLiteral("QLabel { color: red; }");
        tarp::standin::setRenderStyleSheet(sheet);
        make();
        m_module->setup();
        QString duringRender;
        m_plugin->look = [&](const QString& call) {
            if (call == "render")
                duringRender = page()->wgt()->styleSheet();
        };
        m_module->render();
        QCOMPARE(m_calls, QStringList("render"));
        QCOMPARE(duringRender, sheet);
    }

    void aPluginWithoutTheGlobalSheetIsNotStyled() {
        tarp::standin::setRenderStyleSheet(QStringLiteral("QLabel { color: red; }"));
        make();
        m_plugin->setDefaultGlobalSheet(false);
        m_module->setup();
        m_module->render();
        QCOMPARE(m_calls, QStringList("render"));
        QCOMPARE(page()->wgt()->styleSheet(), QString());
    }

    void theWishForTheGlobalSheetIsReadAtEveryRender() {
        const QString sheet = QStringLiteral("QLabel { color: red; }");
        tarp::standin::setRenderStyleSheet(sheet);
        make();
        m_plugin->setDefaultGlobalSheet(false);
        m_module->setup();
        m_module->render();
        m_plugin->setDefaultGlobalSheet(true);
        m_module->render();
        QCOMPARE(page()->wgt()->styleSheet(), sheet);
    }

    void destroyingTakesPageEntryAndRegistrationAway() {
        make();
        m_module->setup();
        m_module->init();
        const QPointer<QWidget> widget(page()->wgt());
        m_module.reset();
        QVERIFY(widget.isNull());
        QVERIFY(!m_frame->center()->keys().contains("kite.weld"));
        QCOMPARE(m(entriesKey)->cmobjCount(), 0);
        QCOMPARE(kiteFactory()->create("weld", nullptr), static_cast<PluginBase*>(nullptr));
        QCOMPARE(bModule("brisk.kite.weld"), static_cast<BModule*>(nullptr));
        QCOMPARE(m_calls, QStringList({"init", "destructor"}));
    }

    void destroyingGoesInItsOrder() {
        make();
        m_module->setup();
        m_module->init();
        QStringList order;
        const QPointer<QWidget> widget(page()->wgt());
        connect(m_frame->center(), &tarp::CenterWidget::pageRemoved, this, [&] {
            order << (isRegistered() ? "registered" : "cancelled")
                  << QStringLiteral("%1 entry").arg(m(entriesKey)->cmobjCount())
                  << (m_log->count("~Kite begin") == 1 ? "begun" : "not begun")
                  << (widget->parentWidget() ? "still inside" : "handed back") << "page removed";
        });
        m_plugin->look = [&](const QString&) {
            order << QStringLiteral("%1 entries").arg(m(entriesKey)->cmobjCount())
                  << (m_log->count("~Kite end!") == 1 ? "ended" : "not ended") << "plugin destroyed";
        };
        m_plugin->calls = nullptr;
        m_log->forgetLines();
        m_module.reset();
        QCOMPARE(order, QStringList({"cancelled", "1 entry", "begun", "handed back", "page removed", "0 entries",
                                     "ended", "plugin destroyed"}));
    }

    void destroyingWritesItsLinesInOrder() {
        make();
        m_module->setup();
        m_module->init();
        m_log->forgetLines();
        m_module.reset();
        const QStringList lines = m_log->lines();
        QCOMPARE(lines.size(), 5);
        QVERIFY(lines.at(0).endsWith("<kite>~Kite begin\x1b[0m"));
        QVERIFY(lines.at(1).endsWith("<kite>kite::Kite::cancelPage\x1b[0m"));
        QVERIFY(lines.at(2).contains("<kite>kite::Kite::cancelPage : "));
        QVERIFY(lines.at(3).contains("<kite>kite::Kite::cancelPage : "));
        QVERIFY(lines.at(4).endsWith("<kite>~Kite end!\x1b[0m"));
        QVERIFY(lines.at(0).startsWith("\x1b[31m[E|"));
        QVERIFY(lines.at(4).startsWith("\x1b[31m[E|"));
    }

    void destroyingRemovesThisPluginOnly() {
        make();
        m_module->setup();
        m_module->init();
        Kite paint("paint", nullptr);
        paint.setup();
        paint.init();
        m_module.reset();
        QVERIFY(m_frame->center()->keys().contains("kite.paint"));
        QCOMPARE(m(entriesKey)->cmobjCount(), 1);
        QCOMPARE(m(entriesKey)->c(0)->c("nav")->getString(), QString("kite.paint"));
    }

    void withoutAPluginTheWholeLifecycleRuns() {
        const QString sheet = QStringLiteral("QLabel { color: red; }");
        tarp::standin::setRenderStyleSheet(sheet);
        kiteFactory()->regist("weld", [](QObject* parent) { return new PluginBase(parent); });
        kiteFactory()->cancel("weld");
        m_module.reset(static_cast<Kite*>(bfactory()->creators.value("weld")(nullptr)));
        m_module->setup();
        m_module->afterSetup();
        m_module->init();
        m_module->afterInit();
        m_module->render();
        QCOMPARE(page()->wgt()->styleSheet(), sheet);
        QCOMPARE(m(entriesKey)->c(0)->c("title")->getString(), QString("weld"));
        m_module->idle();
        m_module->beforeDetach();
        m_module->detach();
        m_module.reset();
        QCOMPARE(m(entriesKey)->cmobjCount(), 0);
    }

    void aPluginThatDeletesItselfIsNotCalledAgain() {
        make();
        m_module->setup();
        m_module->init();
        delete m_plugin;
        m_module->afterInit();
        m_module->render();
        m_module->idle();
        m_module->detach();
        QCOMPARE(m_calls, QStringList({"init", "destructor"}));
    }

    void withoutContainersNothingCrashes() {
        m_frame.reset();
        make();
        m_module->setup();
        m_module->init();
        m_module->render();
        m_module->idle();
        m_module->detach();
        m_module.reset();
        QCOMPARE(m_calls, QStringList({"init", "render", "idle", "detach", "destructor"}));
    }

    void aCentreThatGoesFirstIsSurvived() {
        make();
        m_module->setup();
        m_module->init();
        m_module->createCenterWidgte(new QWidget);
        m_frame.reset();
        m_module->render();
        QVERIFY(!m_module->changeFullScreen(true));
        m_module.reset();
        QVERIFY(m_calls.endsWith("destructor"));
    }

    void aModuleThatWasNeverSetUpCanGo() {
        make();
        m_module.reset();
        QCOMPARE(m_calls, QStringList("destructor"));
    }

    void theTitleOfThePageIsThePluginsName() {
        make();
        m_module->setup();
        QCOMPARE(qobject_cast<QLabel*>(page()->titleWgt())->text(), QString("weld"));
    }

    void aPageThatIsRemovedIsHandedBackAndNotDeletedByTheCentre() {
        make();
        m_module->setup();
        DeferredDeletes deletes;
        page()->wgt()->installEventFilter(&deletes);
        m_module.reset();
        QCOMPARE(deletes.count, 0);
    }

    void withoutAPlaceInTheNavigationThePluginIsInitialisedAllTheSame() {
        m(QStringLiteral("gyre.page.robot.page"))->append(nullptr, "#0");
        make();
        m_module->setup();
        m_module->init();
        QCOMPARE(m_calls, QStringList("init"));
        QCOMPARE(helm::standin::MessageList::instance()->messages().size(), 1);
    }

    void leavingAndDetachingTakeNothingAway() {
        make();
        m_module->setup();
        m_module->init();
        m_module->afterInit();
        m_module->idle();
        m_module->detach();
        QVERIFY(isRegistered());
        QVERIFY(m_frame->center()->keys().contains("kite.weld"));
        QCOMPARE(m(entriesKey)->cmobjCount(), 1);
    }

    void whoHearsOfTheEntryMayDeleteTheModule() {
        make();
        m_module->setup();
        QObject context;
        connect(m(entriesKey), &brisk::ModuleObject::inserted, &context, [this] { m_module.reset(); });
        m_module->init();
        QVERIFY(!m_module);
        QVERIFY(!m_calls.contains("init"));
        QCOMPARE(m(entriesKey)->cmobjCount(), 0);
    }

    void whoHearsOfTheEntrysPageMayDeleteTheModule() {
        make();
        m_module->setup();
        QObject context;
        connect(m(entriesKey), &brisk::ModuleObject::inserted, &context, [&] {
            connect(m(entriesKey)->c(0)->c("nav", true), &brisk::ModuleObject::changed, &context,
                    [this] { m_module.reset(); });
        });
        m_module->init();
        QVERIFY(!m_module);
        QVERIFY(!m_calls.contains("init"));
        QCOMPARE(m(entriesKey)->cmobjCount(), 0);
    }

    void initBeforeSetupMakesTheEntryAndInitialisesThePlugin() {
        make();
        m_module->init();
        QCOMPARE(m_calls, QStringList("init"));
        QCOMPARE(m(entriesKey)->c(0)->c("nav")->getString(), QString("kite.weld"));
    }

    void everyOperationIsNeutralBeforeSetup() {
        Kite module("weld", nullptr);
        QWidget widget;
        module.createCenterWidgte(&widget);
        module.createCenterWidgte(nullptr);
        QCOMPARE(widget.parent(), static_cast<QObject*>(nullptr));
        QVERIFY(!module.changeFullScreen(true));
        QVERIFY(!module.changeFullScreen(false));
        QVERIFY(!module.changeModelWindowStatus(false));
        QVERIFY(module.changePhyBtnStatus("none", true));
        QVERIFY(module.createPhyBtnPage("Wire", {}, {}, {}));
        QVERIFY(!module.createStatusBar(nullptr, 0));
        QVERIFY(!module.createRightExpandWidgte(nullptr, QString()));
        module.switchRightExpandWidgte(QString());
        QCOMPARE(module.ThrowLog(kite::ThrowInformation, "Early."), 0);
        QVERIFY(!module.cancelPage(QString(), "kite.weld"));
        module.render();
        module.afterInit();
        module.idle();
        module.detach();
        QCOMPARE(module.wgt(), static_cast<QWidget*>(nullptr));
    }

private:
    // The module of "weld", made as the host makes it, with a noting plugin.
    void make() {
        kiteFactory()->regist("weld", [this](QObject* parent) {
            m_plugin = new Noting(parent);
            m_plugin->calls = &m_calls;
            return m_plugin;
        });
        m_module.reset(dynamic_cast<Kite*>(bfactory()->creators.value("weld")(nullptr)));
        QVERIFY(m_module);
    }

    kite::PluginSettingPage* page() { return m_module->findChild<kite::PluginSettingPage*>(); }

    static bool isRegistered() {
        const std::unique_ptr<PluginBase> made(kiteFactory()->create("weld", nullptr));
        return made != nullptr;
    }

    pendanttest::WorkingFolder m_folder;
    QScopedPointer<pendanttest::LogWatch> m_log;
    QScopedPointer<pendanttest::Frame> m_frame;
    std::unique_ptr<Kite> m_module;
    Noting* m_plugin = nullptr;
    QStringList m_calls;
};

QTEST_MAIN(TestLifecycle)
#include "tst_kitemodule_lifecycle.moc"
