#include "pluginfunctions.h"

#include "brisk/modulemanager.h"
#include "briskx/buttonpages.h"
#include "helm/messagelist.h"

#include <QRegularExpression>

#include <functional>

using Call = std::function<int(const QString&)>;
Q_DECLARE_METATYPE(Call)

namespace {

// A module of the host's own under a plugin's key.
class ForeignModule : public tarp::BModule {
public:
    ForeignModule() : BModule(nullptr) { bindMobj("brisk.kite.foreign"); }
};

} // namespace

// Functions that do not find the plugin.
class TestFailures : public FunctionsTest {
    Q_OBJECT

private slots:
    void anEmptyNameIsRefused_data() { functions(); }
    void anEmptyNameIsRefused() {
        QFETCH(Call, call);
        for (const QString& name : {QString(), QString("")})
            QCOMPARE(call(name), -1);
        QCOMPARE(pendant().log.lines(), QStringList());
        verifyNothingHappened();
    }

    void anUnknownNameIsRefusedWithALine_data() { functions(); }
    void anUnknownNameIsRefusedWithALine() {
        QFETCH(Call, call);
        pendant().log.expect("<kite interfacemanager>brisk.kite.glue unuseful");
        QCOMPARE(call("glue"), -2);
        verifyLine("brisk.kite.glue");
        verifyNothingHappened();
    }

    void theNameIsTakenAsItIs_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("other case") << "Weld";
        QTest::newRow("a blank behind") << "weld ";
        QTest::newRow("the whole key") << "brisk.kite.weld";
        QTest::newRow("below the plugin") << "weld.page";
    }
    void theNameIsTakenAsItIs() {
        QFETCH(QString, name);
        pendant().log.expect(" unuseful");
        QCOMPARE(kite::CreateCenterWidget(name, nullptr), -2);
        verifyLine("brisk.kite." + name);
    }

    void aModuleThatIsNoPluginsCountsAsNone_data() { functions(); }
    void aModuleThatIsNoPluginsCountsAsNone() {
        QFETCH(Call, call);
        const ForeignModule foreign;
        QVERIFY(bModule("brisk.kite.foreign"));
        pendant().log.expect("<kite interfacemanager>brisk.kite.foreign unuseful");
        QCOMPARE(call("foreign"), -2);
        verifyLine("brisk.kite.foreign");
        verifyNothingHappened();
    }

    void aModuleThatIsGoneIsNotFound_data() { functions(); }
    void aModuleThatIsGoneIsNotFound() {
        QFETCH(Call, call);
        removeModule();
        pendant().log.forgetLines();
        pendant().log.expect("<kite interfacemanager>brisk.kite.weld unuseful");
        QCOMPARE(call("weld"), -2);
        QCOMPARE(pendant().log.lines().size(), 1);
        QCOMPARE(pendant().folder.logLines().filter(" unuseful").size(), 1);
        verifyNothingHappened();
    }

    void aPathIsLeftAsItWas() {
        QString path("before");
        QCOMPARE(kite::GetPluginDataPath(path, ""), -1);
        QCOMPARE(path, QString("before"));
        pendant().log.expect(" unuseful");
        QCOMPARE(kite::GetPluginDataPath(path, "glue"), -2);
        QCOMPARE(path, QString("before"));
    }

private:
    // All but the one that closes the side bar.
    void functions() {
        QTest::addColumn<Call>("call");
        const auto row = [](const char* name, const Call& call) { QTest::newRow(name) << call; };
        row("ChangeFullScreen", [](const QString& name) { return kite::ChangeFullScreen(name, true); });
        row("ChangeModelWindowStatus", [](const QString& name) { return kite::ChangeModelWindowStatus(name, true); });
        row("ChangePhyButtonStatus",
            [](const QString& name) { return kite::ChangePhyButtonStatus(name, "page", false); });
        row("CreateRightExpandWidgte",
            [this](const QString& name) { return kite::CreateRightExpandWidgte(name, widget(), "page"); });
        row("CreateStatusBar", [this](const QString& name) { return kite::CreateStatusBar(name, widget(), 0); });
        row("CreateCenterWidget", [this](const QString& name) { return kite::CreateCenterWidget(name, widget()); });
        row("ThrowLog", [](const QString& name) { return kite::ThrowLog(name, kite::ThrowError, "text"); });
        row("CreatePhyButtonList",
            [](const QString& name) { return kite::CreatePhyButtonList(name, "page", {{}}, {}, {"row"}); });
        row("GetPluginDataPath", [](const QString& name) {
            QString path;
            return kite::GetPluginDataPath(path, name);
        });
    }

    QWidget* widget() {
        m_widget.reset(new QWidget);
        return m_widget.data();
    }

    void verifyLine(const QString& key) {
        const QRegularExpression line("\\A\x1b\\[31m\\[E\\|\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\]"
                                      "<kite interfacemanager>" +
                                      QRegularExpression::escape(key) + " unuseful\x1b\\[0m\\z");
        const QStringList lines = pendant().log.lines();
        QCOMPARE(lines.size(), 1);
        QVERIFY2(line.match(lines.first()).hasMatch(), qPrintable(lines.first()));
        QString plain = lines.first();
        plain.remove(QRegularExpression("\x1b\\[\\d+m"));
        QCOMPARE(pendant().folder.logLines(), QStringList{plain});
    }

    void verifyNothingHappened() {
        QCOMPARE(helm::standin::MessageList::instance()->messages().size(), 0);
        QCOMPARE(ot::gyre::standin::ButtonPages::instance()->pages().size(), 0);
        QCOMPARE(pendant().frame.sideBar()->keys(), QStringList());
        QCOMPARE(pendant().frame.statusBar()->keys().size(), 1);
        QVERIFY(!m_widget || !m_widget->parentWidget());
        QCOMPARE(m("helm.msg._")->getInt(0), 0);
    }

    QScopedPointer<QWidget> m_widget;
};

QTEST_MAIN(TestFailures)
#include "tst_pluginfunctions_failures.moc"
