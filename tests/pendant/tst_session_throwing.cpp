#include "pendanttest/pendant.h"

#include <QTest>

using helm::standin::Message;
using helm::standin::MessageLevel;
using pendant::PluginInfo;
using pendant::PluginState;
using pendanttest::Pendant;

Q_DECLARE_METATYPE(PluginState)

// Real plugins that throw, beside two that do not. The cases share one pendant and follow each other.
class TestThrowing : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { m_pendant.reset(new Pendant); }

    void theyAllLoad() {
        for (const char* file : {PLUGIN_fixture_throwsconstructor, PLUGIN_fixture_throwsinit,
                                 PLUGIN_fixture_throwsafterinit, PLUGIN_fixture_throwsrender, PLUGIN_fixture_throwsidle,
                                 PLUGIN_fixture_throwsdetach, PLUGIN_fixture_throwsnumber, PLUGIN_fixture_pair})
            QVERIFY2(m_pendant->load(file), file);
    }

    void whatIsThrownAtTheStartIsReportedAndTheOthersStart() {
        m_pendant->expectError("<pendant>throwsconstructor: constructor threw: nothing works in constructor");
        m_pendant->expectError("<pendant>throwsinit: init threw: nothing works in init");
        m_pendant->expectError("<pendant>throwsafterinit: afterInit threw: nothing works in afterInit");
        m_pendant->expectError("<pendant>throwsnumber: init threw: a value of type int, which is no std::exception");
        m_pendant->start();
        QVERIFY(m_pendant->verify());
        QCOMPARE(m_pendant->messages().size(), 4);
        for (const Message& message : m_pendant->messages())
            QCOMPARE(message.level, MessageLevel::Error);
        QCOMPARE(m_pendant->messages().first().source, QString("throwsconstructor"));
    }

    void onlyWhatThrewBeforeItRanIsSwitchedOff_data() {
        QTest::addColumn<PluginState>("state");
        QTest::addColumn<QString>("reason");
        QTest::newRow("throwsconstructor")
            << PluginState::Failed << "Its constructor threw: nothing works in constructor";
        QTest::newRow("throwsinit") << PluginState::Failed << "init threw: nothing works in init";
        QTest::newRow("throwsnumber") << PluginState::Failed
                                      << "init threw: a value of type int, which is no std::exception";
        QTest::newRow("throwsafterinit") << PluginState::Running << "";
        QTest::newRow("throwsrender") << PluginState::Running << "";
        QTest::newRow("first") << PluginState::Running << "";
        QTest::newRow("second") << PluginState::Running << "";
    }

    void onlyWhatThrewBeforeItRanIsSwitchedOff() {
        QFETCH(PluginState, state);
        QFETCH(QString, reason);
        const PluginInfo info = describe(QTest::currentDataTag());
        QCOMPARE(info.state, state);
        QCOMPARE(info.reason, reason);
        QVERIFY(info.file.endsWith(".so"));
    }

    void aPluginWhoseConstructorThrewHasNoModuleAndNoEntry() {
        QVERIFY(!m_pendant->session().module("throwsconstructor"));
        QVERIFY(!m_pendant->navigation().contains("throwsconstructor"));
        QVERIFY(!m_pendant->open("throwsconstructor"));
    }

    void aPluginWhoseInitThrewGetsNoFurtherCall() {
        m_pendant->open("throwsinit");
        m_pendant->leave();
        QCOMPARE(m_pendant->calls("throwsinit"), QStringList({"constructor", "setup", "afterSetup", "init"}));
    }

    void whatIsThrownLaterIsReportedEachTimeAndThePluginGoesOn() {
        for (int i = 0; i < 2; ++i) {
            m_pendant->expectError("throwsrender: render threw: nothing works in render");
            m_pendant->expectError("throwsidle: idle threw: nothing works in idle");
            QVERIFY(m_pendant->open("throwsrender"));
            QVERIFY(m_pendant->open("throwsidle"));
            m_pendant->leave();
        }
        QVERIFY(m_pendant->verify());
        QCOMPARE(describe("throwsrender").state, PluginState::Running);
        QCOMPARE(m_pendant->calls("throwsidle").filter("idle").size(), 2);
    }

    void theOthersRender() {
        QVERIFY(m_pendant->open("first"));
        QVERIFY(m_pendant->calls("first").endsWith("afterRender"));
    }

    void whatIsThrownAtTheEndIsReportedAndTheOthersEnd() {
        m_pendant->expectError("throwsdetach: detach threw: nothing works in detach");
        m_pendant->close();
        QVERIFY(m_pendant->calls("throwsdetach").endsWith("destructor"));
        QVERIFY(m_pendant->calls("second").endsWith("destructor"));
        QVERIFY(m_pendant->calls("throwsinit").endsWith("destructor"));
        QCOMPARE(m_pendant->calls("throwsinit").size(), 5);
        QCOMPARE(m_pendant->guard().thrownCount(), 9);
    }

    void cleanup() { QVERIFY(m_pendant->verify()); }
    void cleanupTestCase() { m_pendant.reset(); }

private:
    PluginInfo describe(const QString& plugin) const {
        for (const PluginInfo& info : m_pendant->session().plugins()) {
            if (info.name == plugin)
                return info;
        }
        return {QString(), QString(), QString(), QString(), PluginState::Stopped, "There is no such plugin."};
    }

    QScopedPointer<Pendant> m_pendant;
};

QTEST_MAIN(TestThrowing)
#include "tst_session_throwing.moc"
