#include "pendanttest/pendant.h"
#include "pendanttest/robot.h"

#include "brisk/log.h"
#include "helm/managerhelper.h"
#include "kite/kitemodule.h"
#include "kite/subscription.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <memory>
#include <thread>

using pendanttest::LogWatch;
using pendanttest::Pendant;
using pendanttest::WorkingFolder;

namespace {

void writeError(const QString& text) {
    brisk::QLog("\x1b[31m", "[E|03/14 09:26:53.058]", "<kite>") << text;
}

void writeInformation(const QString& text) {
    brisk::QLog("\x1b[36m", "[I|03/14 09:26:53.058]", "<kite>") << text;
}

// A plugin of its own for the support library to handle.
class Demo : public kite::PluginBase {
public:
    explicit Demo(QObject* parent) : PluginBase(parent), m_module(static_cast<kite::Kite*>(parent)) {
        setPluginLabel("The demo");
    }

    void init() override {
        auto* page = new QWidget;
        auto* layout = new QVBoxLayout(page);
        addButton(layout, "&Start", [this] { m_module->ThrowLog(kite::ThrowInformation, "Started."); });
        addButton(layout, "Full screen", [this] { m_module->changeFullScreen(true); })->setObjectName("full");
        addButton(layout, "Locked", [] {})->setEnabled(false);
        addButton(layout, "Hidden", [] {})->hide();
        m_module->createCenterWidgte(page);
        m_module->createStatusBar(new QLabel("demo"), 3);
        m_module->createRightExpandWidgte(new QLabel("side"), QString());
        const auto heard = [this](bool held) { m_module->ThrowLog(kite::ThrowWarning, held ? "held" : "let go"); };
        m_module->createPhyBtnPage("Keys", {{"up", QIcon(), QIcon(), heard}}, {{"dead", QIcon(), QIcon(), nullptr}},
                                   {});
    }

private:
    template <typename Action> QPushButton* addButton(QVBoxLayout* layout, const char* text, Action action) {
        auto* button = new QPushButton(QLatin1String(text));
        connect(button, &QPushButton::clicked, this, action);
        layout->addWidget(button);
        return button;
    }

    kite::Kite* m_module;
};

} // namespace

// The tools that tests of plugins work with.
class TestSupport : public QObject {
    Q_OBJECT

private slots:
    void anErrorLineIsAProblemUnlessItIsExpected() {
        LogWatch watch;
        watch.expect("no gas");
        writeError("There is no gas.");
        QCOMPARE(watch.takeProblems(), QStringList());
        writeError("There is no gas.");
        const QStringList problems = watch.takeProblems();
        QCOMPARE(problems.size(), 1);
        QVERIFY(problems.first().startsWith("Unexpected line: "));
        QVERIFY(problems.first().contains("There is no gas."));
        QCOMPARE(watch.takeProblems(), QStringList());
    }

    void aWarningOfQtsIsAProblem() {
        LogWatch watch;
        qWarning("careful");
        qCritical("too late");
        QCOMPARE(watch.takeProblems(), QStringList({"Unexpected line: careful", "Unexpected line: too late"}));
    }

    void otherLinesAreNoProblem() {
        LogWatch watch;
        qDebug("by the way");
        qInfo("good to know");
        writeInformation("an error in words only");
        writeError("~Kite begin");
        writeError("~Kite end!");
        QCOMPARE(watch.takeProblems(), QStringList());
        QCOMPARE(watch.lines().size(), 5);
    }

    void anExpectedLineThatDoesNotComeIsAProblem() {
        LogWatch watch;
        watch.expect("no gas");
        watch.expect("no gas");
        writeInformation("There is no gas.");
        QCOMPARE(watch.takeProblems(), QStringList("Expected line that did not come: no gas"));
    }

    void linesOfOtherThreadsCount() {
        LogWatch watch;
        std::thread([] { qWarning("from elsewhere"); }).join();
        QCOMPARE(watch.takeProblems(), QStringList("Unexpected line: from elsewhere"));
    }

    void countingAndForgettingLines() {
        LogWatch watch;
        writeInformation("one");
        writeInformation("one and two");
        QCOMPARE(watch.count("one"), 2);
        watch.forgetLines();
        QCOMPARE(watch.count("one"), 0);
    }

    void theWorkingFolderIsEmptyAndGoesAway() {
        const QString before = QDir::currentPath();
        QString path;
        {
            const WorkingFolder folder;
            path = folder.path();
            QCOMPARE(QDir::current().canonicalPath(), QDir(path).canonicalPath());
            QVERIFY(QDir::current().isEmpty());
            QCOMPARE(folder.logLines(), QStringList());
            brisk::FLog("[I]", "<kite>", "./log/kite", "log") << "kept";
            QCOMPARE(folder.logLines(), QStringList("[I]<kite>kept"));
        }
        QCOMPARE(QDir::currentPath(), before);
        QVERIFY(!QDir(path).exists());
    }

    void aPluginOfTheTestProgramCanBeStartedAgainAndAgain() {
        for (int i = 0; i < 3; ++i) {
            Pendant pendant;
            pendant.add<Demo>("demo");
            pendant.start();
            QVERIFY(pendant.open("demo"));
            QCOMPARE(pendant.navigation(), QStringList("The demo"));
            QVERIFY(pendant.messages().isEmpty());
            QVERIFY(pendant.press("Start"));
            QCOMPARE(pendant.messages().size(), 1);
            pendant.close();
            QVERIFY(pendant.calls("demo").contains("detach"));
        }
    }

    void buttonsArePressedByNameOrText_data() {
        QTest::addColumn<QString>("which");
        QTest::addColumn<bool>("pressed");
        QTest::newRow("text without its mnemonic") << "Start" << true;
        QTest::newRow("object name") << "full" << true;
        QTest::newRow("disabled") << "Locked" << false;
        QTest::newRow("hidden") << "Hidden" << false;
        QTest::newRow("not there") << "Stop" << false;
    }

    void buttonsArePressedByNameOrText() {
        QFETCH(QString, which);
        QFETCH(bool, pressed);
        Pendant pendant;
        pendant.add<Demo>("demo");
        pendant.start();
        QVERIFY(!pendant.press(which));
        QVERIFY(pendant.open("demo"));
        QCOMPARE(pendant.press(which), pressed);
    }

    void whatAPluginPlacedIsFound() {
        Pendant pendant;
        pendant.add<Demo>("demo");
        pendant.start();
        QVERIFY(pendant.page("demo"));
        QVERIFY(!pendant.page("none"));
        QVERIFY(!pendant.open("none"));
        QVERIFY(pendant.statusItem("demo", 3));
        QVERIFY(!pendant.statusItem("demo", 0));
        QVERIFY(pendant.sideBarPage("demo"));
        QVERIFY(!pendant.sideBarPage("demo", "other"));
        QVERIFY(pendant.open("demo"));
        QVERIFY(pendant.fullScreenWindows().isEmpty());
        QVERIFY(pendant.press("Full screen"));
        QCOMPARE(pendant.fullScreenWindows().size(), 1);
        QVERIFY(pendant.findButton("Start"));
        QCOMPARE(pendant.grab().size(), QSize(1280, 800));
    }

    void keysAreHeldAndLetGo() {
        Pendant pendant;
        pendant.add<Demo>("demo");
        pendant.start();
        QVERIFY(pendant.holdKey("Keys", "up", true));
        QVERIFY(pendant.holdKey("Keys", "up", false));
        QVERIFY(!pendant.holdKey("Keys", "dead", true));
        QVERIFY(!pendant.holdKey("Keys", "down", true));
        QVERIFY(!pendant.holdKey("Other", "up", true));
        QCOMPARE(pendant.messages().value(0).text, QString("held"));
        QCOMPARE(pendant.messages().value(1).text, QString("let go"));
    }

    void aFileThatBringsNoPluginIsTold() {
        Pendant pendant;
        pendant.expectError("does not exist");
        QVERIFY(!pendant.load("none.so"));
        QVERIFY(pendant.load(PLUGIN_fixture_twice));
        pendant.start();
        QCOMPARE(pendant.navigation(), QStringList("The registered one"));
    }

    void whatTheControllerRefusesIsAProblem() {
        Pendant pendant;
        pendanttest::Robot robot;
        helm::ManagerHelper::instance();
        robot.connectLinks();
        kite::kiteInterface()->getRelayData("no.such");
        robot.settle();
        const QStringList problems = pendant.log().takeProblems();
        QCOMPARE(problems.size(), 1);
        QVERIFY(problems.first().contains("no.such"));
        pendant.expectError("no.more");
        kite::kiteInterface()->getRelayData("no.more");
        robot.settle();
    }

    void aSubscriptionThatIsLeftBehindIsAProblem() {
        Pendant pendant;
        pendant.add<Demo>("demo");
        pendant.start();
        kite::kiteInterface()->connectRelayData(
            "demo", "io.di", [](const QVariant&) {}, "inputs");
        pendant.expectError("\"demo\" has left its subscription \"inputs\" behind");
        pendant.close();
        kite::kiteInterface()->disconnectRelayData("demo", "io.di", "inputs");
    }

    void aSubscriptionThatIsRefusedIsInTheMessageList() {
        Pendant pendant;
        pendant.add<Demo>("demo");
        pendant.start();
        const kite::Subscription first(
            "demo", "io.di", [](const QVariant&) {}, "inputs");
        const kite::Subscription second(
            "demo", "io.do", [](const QVariant&) {}, "inputs");
        QVERIFY(first && !second);
        QCOMPARE(pendant.messages().last().source, QString("demo"));
        QVERIFY(pendant.messages().last().text.startsWith("There is no subscription \"inputs\" to \"io.do\": "));
    }

    void theFilesOfALogAreReadInThePendantsFolder() {
        Pendant pendant;
        pendant.add<Demo>("demo");
        pendant.start();
        pendant.close();
        QCOMPARE(pendant.logLines().filter("~Kite begin").size(), 1);
    }
};

QTEST_MAIN(TestSupport)
#include "tst_support.moc"
