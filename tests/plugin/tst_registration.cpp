#include "pendanttest/pendant.h"

#include "brisk/modulemanager.h"
#include "helm/vexmanager.h"
#include "kite/pluginregister.h"
#include "tarp/factory.h"

#include <QJsonArray>
#include <QTest>

using pendanttest::Pendant;

namespace {

QStringList recordedCalls(const QString& plugin = QString()) {
    QStringList calls;
    for (const QJsonValue& call : m("fixture.calls")->exportToJson(true).toArray()) {
        if (call.toString().startsWith(plugin))
            calls.append(call.toString());
    }
    return calls;
}

} // namespace

// Plugins in real shared objects, from loading to the end. The cases share one pendant and follow each other.
class TestRegistration : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { m_pendant.reset(new Pendant); }

    void loadingASharedObjectRegistersItsPlugins() {
        QVERIFY(m_pendant->load(PLUGIN_fixture_pair));
        QCOMPARE(m_pendant->loader().files().last().names, QStringList({"first", "second"}));
        QVERIFY(bfactory()->creators.contains("first"));
        QVERIFY(bfactory()->creators.contains("second"));
        QVERIFY(brisk::pluginManager()->plugins.contains("second"));
        QCOMPARE(recordedCalls(), QStringList());
    }

    void aNameRegisteredTwiceStandsOnceUnderItsFile() {
        QVERIFY(m_pendant->load(PLUGIN_fixture_twice));
        QCOMPARE(m_pendant->loader().files().last().names, QStringList("twice"));
    }

    void otherSharedObjectsJoin() {
        QVERIFY(m_pendant->load(PLUGIN_fixture_early));
        QVERIFY(m_pendant->load(PLUGIN_fixture_registry));
    }

    void allPluginsAreMadeInTheOrderOfTheirNamesThenInitialised() {
        m_pendant->start();
        QCOMPARE(m_pendant->calls("first"), QStringList({"constructor", "setup", "afterSetup", "init", "afterInit"}));
        QStringList calls = recordedCalls();
        calls = calls.filter(QRegularExpression("^(first|second|early)\\.(constructor|init|afterInit)$"));
        QCOMPARE(calls,
                 QStringList({"early.constructor", "first.constructor", "second.constructor", "early.init",
                              "first.init", "second.init", "early.afterInit", "first.afterInit", "second.afterInit"}));
        QVERIFY(!m_pendant->session().hasFailures());
    }

    void theRegisterKnowsThem() {
        QObject parent;
        QVERIFY(kiteFactory()->create("first", &parent));
        QCOMPARE(bModule("brisk.kite.second")->mobj()->key(), QString("brisk.kite.second"));
    }

    void labelsAndNamesAreTheTitles() {
        QCOMPARE(m_pendant->navigation(),
                 QStringList({"early", "The first one", "registry", "second", "The registered one"}));
    }

    void aSharedObjectSeesTheSameRegistryAsTheHost() {
        const auto address = reinterpret_cast<quintptr>(helm::VexManager::getVexManager());
        QCOMPARE(m("fixture.registry")->value().toULongLong(), qulonglong(address));
    }

    void everyCallOnTheModuleBeforeItsSetupIsNeutral() {
        QCOMPARE(recordedCalls().filter(": "),
                 QStringList({"createCenterWidgte: false", "changeFullScreen: false", "changeModelWindowStatus: false",
                              "changePhyBtnStatus: true", "createStatusBar: false", "createRightExpandWidgte: false",
                              "cancelPage: false", "ThrowLog: 0", "pluginName: early"}));
    }

    void pagesRenderWhenTheyAreShownAndIdleWhenTheyAreLeft() {
        forget();
        QVERIFY(m_pendant->open("first"));
        QVERIFY(m_pendant->open("second"));
        m_pendant->leave();
        QCOMPARE(recordedCalls(), QStringList({"first.render", "first.idle", "second.render", "second.idle"}));
    }

    void atTheEndThePageIdlesAndAllDetachBeforeAnyIsDestroyed() {
        QVERIFY(m_pendant->open("second"));
        forget();
        m_pendant->close();
        QCOMPARE(recordedCalls(), QStringList({"second.idle", "early.detach", "first.detach", "second.detach",
                                               "early.destructor", "first.destructor", "second.destructor"}));
        QCOMPARE(m_pendant->navigation(), QStringList());
    }

    void cleanup() { QVERIFY(m_pendant->verify()); }
    void cleanupTestCase() { m_pendant.reset(); }

private:
    static void forget() { m("fixture.calls")->clear(nullptr, false, true); }

    QScopedPointer<Pendant> m_pendant;
};

QTEST_MAIN(TestRegistration)
#include "tst_registration.moc"
