#include "wholesession.h"

#include "app/workfolder.h"
#include "controller/io/signaltable.h"
#include "controller/robot/robot.h"
#include "pages/programpage.h"

#include "pendanttest/frame.h"

#include "brisk/modulemanager.h"
#include "kite/interfacemanager.h"

#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <memory>

using Place = WholeSession::Place;

namespace {

const QString startLine = " moveToStart : ";
const QString gripperLine = "CloseGripper force=40N wait=200ms";
const QStringList plugins{"dashboard", "gripper", "hello", "monitor", "pause", "pickplace", "teach", "weld"};

const char* const files[] = {PLUGIN_dashboard, PLUGIN_gripper,   PLUGIN_hello, PLUGIN_monitor,
                             PLUGIN_pause,     PLUGIN_pickplace, PLUGIN_teach, PLUGIN_weld};

// The text beside `name` in a list of the dashboard's.
QString valueOf(const QTreeWidget* list, const QString& name) {
    for (QTreeWidgetItem* item : list->findItems(name, Qt::MatchExactly | Qt::MatchRecursive))
        return item->text(1);
    return QString();
}

} // namespace

/// A day at the pendant, from its start to its end; the cases are its steps and follow each other. It is lived twice in
/// one process and one working folder: what the first day saved is there on the second.
class TestWholeSession : public QObject {
    Q_OBJECT

public:
    TestWholeSession(pendant::Application& application, int day) : m_application(application), m_day(day) {}

private slots:
    void initTestCase();
    void everyExampleIsThere();
    void theLinksComeUpByThemselves();
    void whatWasSavedTheDayBeforeIsThere();
    void everyPageIsShownInBothThemes();
    void thePendantSpeaksGermanAndEnglishAgain();
    void theArmIsJoggedToWhereTheFirstPlaceIsTaught();
    void fromThereTheSecondPlaceIsTaught();
    void theWayIsChecked();
    void theRobotGetsToThePlace();
    void theRobotIsStoppedOnTheWay();
    void theLinksAreLostInTheMiddleOfAMoveAndReturn();
    void aLineOfAPluginIsWrittenAndSaved();
    void anInputIsForcedAndReleased();
    void anotherProjectIsOpenedAndTheFirstAgain();
    void aPointIsTaughtAtLast();
    void theEndLeavesNothingBehind();
    void cleanup();
    void cleanupTestCase();

private:
    // Beside those of the cell; teaching anew moves a point to the end of the list.
    static QStringList taught() {
        QStringList names = points().mid(5);
        names.sort();
        return names;
    }
    QStringList taughtToday() const {
        return isFirstDay() ? QStringList({"pick", "place"}) : QStringList({"last", "pick", "place"});
    }
    bool isFirstDay() const { return m_day == 1; }
    static QStringList points() { return kite::kiteInterface()->getPointNameList(); }
    QStringList lines() { return m_session->pendant.pages().program()->store()->program()->lines(); }
    static double offTheLine() { return WholeSession::here().at(0) - WholeSession::here().at(1); }
    void go(const char* button);
    void halfWay(const char* button, const QString& point);
    void verifyIsAt(const QString& point);

    pendant::Application& m_application;
    const int m_day;
    std::unique_ptr<WholeSession> m_session;
};

// A shared object registers its plugin once in a process, so every day has copies of its own.
void TestWholeSession::initTestCase() {
    const QString folder = QDir::current().filePath("plugins" + QString::number(m_day));
    QVERIFY(QDir().mkpath(folder));
    for (const char* file : files)
        QVERIFY2(QFile::copy(file, folder + '/' + QFileInfo(file).fileName()), file);
    m_session.reset(new WholeSession(m_application, folder));
    QCOMPARE(m_session->pendant.error(), QString());
    m_session->pendant.start();
}

void TestWholeSession::everyExampleIsThere() {
    QVERIFY(!m_session->pendant.loader().hasErrors());
    QVERIFY(!m_session->pendant.session().hasFailures());
    QStringList names;
    for (const pendant::PluginInfo& plugin : m_session->pendant.session().plugins())
        names << plugin.name;
    QCOMPARE(names, plugins);
}

void TestWholeSession::theLinksComeUpByThemselves() {
    QVERIFY(!kite::kiteInterface()->getRobotConnected());
    QTRY_VERIFY(m_session->pendant.embedded().bus()->isUp() && m_session->pendant.embedded().controllerLink()->isUp());
    QVERIFY(kite::kiteInterface()->getRobotConnected());
    m_session->holdClock();
    m_session->settle();
    QCOMPARE(kite::kiteInterface()->getRobotIP(), QString("127.0.0.1"));
}

void TestWholeSession::whatWasSavedTheDayBeforeIsThere() {
    QCOMPARE(points().mid(0, 5), QStringList({"home", "park", "above_part", "part", "conveyor"}));
    QCOMPARE(taught(), isFirstDay() ? QStringList() : QStringList({"last", "pick", "place"}));
    m_session->show(pendant::pagekeys::program());
    QCOMPARE(lines(), isFirstDay() ? QStringList() : QStringList{gripperLine});
}

void TestWholeSession::everyPageIsShownInBothThemes() {
    for (const char* theme : {"theme:dark", "theme:light"}) {
        m_session->show(pendant::pagekeys::settings());
        QVERIFY2(m_session->press(theme), theme);
        const QStringList pages = m_session->pendant.window().center()->keys();
        QVERIFY(pages.size() > plugins.size());
        for (const QString& page : pages) {
            m_session->show(page);
            QCOMPARE(m_session->pendant.window().center()->current(), page);
            m_session->step(100);
        }
        m_session->pendant.dock().toggle();
        m_session->settle();
    }
    QVERIFY(!m_session->pendant.dock().isOpen());
}

void TestWholeSession::thePendantSpeaksGermanAndEnglishAgain() {
    m_session->show(pendant::pagekeys::settings());
    for (const char* language : {"de", "en"}) {
        QVERIFY2(m_session->press(QString("language:") + language), language);
        QCOMPARE(m_application.language(), QString(language));
    }
}

void TestWholeSession::theArmIsJoggedToWhereTheFirstPlaceIsTaught() {
    m_session->show(pendant::pagekeys::jog());
    QVERIFY(m_session->press("jogCartesian"));
    QVERIFY(m_session->press("jogSpeed:5"));
    QVERIFY(offTheLine() < -50);
    m_session->jog("jog:X:plus", [] { return offTheLine() > -0.3; });
    QVERIFY(qAbs(offTheLine()) < 1);
    QVERIFY(!m_session->isMoving());
    m_session->open("pickplace");
    QVERIFY(m_session->press("pickTeach"));
    QCOMPARE(m_session->text("answer"), QString("“pick” is taught."));
    verifyIsAt("pick");
}

void TestWholeSession::fromThereTheSecondPlaceIsTaught() {
    m_session->show(pendant::pagekeys::jog());
    QVERIFY(m_session->press("jogSpeed:25"));
    m_session->jog("jog:Z:minus",
                   [] { return WholeSession::distance(WholeSession::here(), WholeSession::placeOf("pick")) > 200; });
    m_session->open("pickplace");
    QVERIFY(m_session->press("placeTeach"));
    QCOMPARE(m_session->text("answer"), QString("“place” is taught."));
    verifyIsAt("place");
    QCOMPARE(taught(), taughtToday());
}

void TestWholeSession::theWayIsChecked() {
    QVERIFY(m_session->press("check"));
    QCOMPARE(m_session->text("answer"), QString("The controller has nothing against the way from “pick” to “place”."));
}

void TestWholeSession::go(const char* button) {
    m_session->log.expect(startLine);
    QVERIFY2(m_session->press(button), button);
}

void TestWholeSession::verifyIsAt(const QString& point) {
    const double off = WholeSession::distance(WholeSession::here(), WholeSession::placeOf(point));
    QVERIFY2(off < 0.5, qPrintable(point + ": " + QString::number(off)));
}

void TestWholeSession::halfWay(const char* button, const QString& point) {
    const Place target = WholeSession::placeOf(point);
    const double whole = WholeSession::distance(WholeSession::here(), target);
    QVERIFY(whole > 50);
    go(button);
    for (int i = 0; i < 1000 && WholeSession::distance(WholeSession::here(), target) > whole / 2; ++i)
        m_session->step(controller::Clock::tickMs);
    QVERIFY(m_session->isMoving());
}

void TestWholeSession::theRobotGetsToThePlace() {
    go("pickGo");
    m_session->step(100);
    QCOMPARE(m_session->text("state"), QString("moving: linear move"));
    m_session->untilItStands();
    QCOMPARE(m_session->text("state"), QString("idle: arrived"));
    verifyIsAt("pick");
}

void TestWholeSession::theRobotIsStoppedOnTheWay() {
    halfWay("placeGo", "place");
    QVERIFY(m_session->press("stop"));
    m_session->untilItStands();
    const Place stopped = WholeSession::here();
    for (const char* point : {"pick", "place"})
        QVERIFY(WholeSession::distance(stopped, WholeSession::placeOf(point)) > 5);
    m_session->step(1000);
    QCOMPARE(WholeSession::here(), stopped);
}

// The robot goes on: nobody told it to stop.
void TestWholeSession::theLinksAreLostInTheMiddleOfAMoveAndReturn() {
    go("pickGo");
    m_session->untilItStands();
    halfWay("placeGo", "place");
    m_session->log.expect("monitor: The bus is down.");
    m_session->setLinks(false);
    QVERIFY(m_session->isMoving());
    QCOMPARE(m_session->text("state"), QString("A link is down: what the robot does is not known."));
    const Place lost = WholeSession::here();
    m_session->step(100);
    QCOMPARE(WholeSession::here(), lost);
    m_session->setLinks(true);
    QVERIFY(m_session->isMoving());
    QCOMPARE(m_session->text("state"), QString("moving: linear move"));
    m_session->untilItStands();
    verifyIsAt("place");
    QCOMPARE(taught(), taughtToday());
}

void TestWholeSession::aLineOfAPluginIsWrittenAndSaved() {
    m_session->show(pendant::pagekeys::program());
    const QStringList before = lines();
    QVERIFY(m_session->press("insertLine"));
    QVERIFY(m_session->choose("instructionTypes", "CloseGripper"));
    auto* content = m_session->find("instructionContent");
    QVERIFY(content);
    content->findChild<QDoubleSpinBox*>("value")->setValue(40);
    QVERIFY(m_session->press("acceptLine"));
    QCOMPARE(lines(), before + QStringList{gripperLine});
    QVERIFY(m_session->press("saveProgram"));
    QVERIFY(!m_session->press("saveProgram"));
}

void TestWholeSession::anInputIsForcedAndReleased() {
    controller::SignalTable* inputs = m_session->pendant.embedded().controller()->ioSignals();
    m_session->show(pendant::pagekeys::io());
    QVERIFY(m_session->choose("ioSignals", "start_button"));
    QVERIFY(m_session->press("ioOn"));
    QCOMPARE(inputs->value("start_button").toBool(), true);
    m_session->open("dashboard");
    QTRY_COMPARE(valueOf(m_session->find<QTreeWidget>("signals"), "start_button"), QString("on"));
    m_session->show(pendant::pagekeys::io());
    QVERIFY(m_session->press("ioReleaseAll"));
    QVERIFY(m_session->press("ioReleaseNow"));
    QCOMPARE(inputs->value("start_button").toBool(), false);
}

void TestWholeSession::anotherProjectIsOpenedAndTheFirstAgain() {
    const QStringList before = lines();
    m_session->show(pendant::pagekeys::projects());
    if (isFirstDay()) {
        QVERIFY(m_session->press("newProject"));
        m_session->find<QLineEdit>("projectName")->setText("night");
        QVERIFY(m_session->press("createProject"));
    } else {
        QVERIFY(m_session->choose("projects", "night"));
        QVERIFY(m_session->press("openProject"));
    }
    QCOMPARE(m("orca.project.cur_project")->getString(), QString("virtual/night"));
    QCOMPARE(points(), QStringList());
    QCOMPARE(lines(), QStringList());
    QVERIFY(m_session->choose("projects", "demo"));
    QVERIFY(m_session->press("openProject"));
    QCOMPARE(taught(), taughtToday());
    QCOMPARE(lines(), before);
    m_session->open("pickplace");
    QVERIFY(m_session->press("check"));
    QCOMPARE(m_session->text("answer"), QString("The controller has nothing against the way from “pick” to “place”."));
}

// No project is opened after it and no program saved: the end alone keeps it.
void TestWholeSession::aPointIsTaughtAtLast() {
    m_session->open("teach");
    m_session->find<QLineEdit>("pointName")->setText("last");
    QVERIFY(m_session->press("teachPose"));
    QCOMPARE(m_session->text("answer"), QString("“last” is taught."));
}

void TestWholeSession::theEndLeavesNothingBehind() {
    m_session->open("pickplace");
    halfWay("pickGo", "pick");
    m_session->log.expect("monitor: The controller link is down.");
    m_session->pendant.close();
    QCOMPARE(m_session->leftBehind().join("; "), QString());
}

void TestWholeSession::cleanup() {
    if (m_session)
        m_session->log.verify();
}

// As after the end of a process.
void TestWholeSession::cleanupTestCase() {
    m_session.reset();
    m("orca")->clear(nullptr, true, true);
    pendanttest::resetHost();
}

int main(int argc, char** argv) {
    const QTemporaryDir folder;
    if (!folder.isValid() || !pendant::enterWorkFolder(folder.path()).isEmpty())
        return 1;
    pendant::Application application(argc, argv);
    int failures = 0;
    for (int day = 1; day <= 2; ++day) {
        TestWholeSession test(application, day);
        failures += QTest::qExec(&test, argc, argv);
    }
    QDir::setCurrent(QDir::rootPath());
    return failures;
}
#include "tst_wholesession.moc"
