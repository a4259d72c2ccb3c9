#include "pendanttest/pendant.h"

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QSpinBox>
#include <QTest>

#include <memory>

using pendanttest::Pendant;

// The examples that newcomers copy from, as the shared objects that the build leaves in the plugins' folder. The cases
// share one pendant and follow each other.
class TestExamples : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        m_pendant.reset(new Pendant);
        QVERIFY(m_pendant->load(PLUGIN_dashboard));
        QVERIFY(m_pendant->load(PLUGIN_hello));
        QVERIFY(m_pendant->load(PLUGIN_monitor));
        QVERIFY(m_pendant->load(PLUGIN_pickplace));
        QVERIFY(m_pendant->load(PLUGIN_teach));
        QVERIFY(m_pendant->load(PLUGIN_weld));
        m_pendant->start();
        QVERIFY(!m_pendant->session().hasFailures());
    }

    void eachHasItsEntry() {
        QCOMPARE(m_pendant->navigation(),
                 QStringList({"Dashboard", "Hello", "Monitor", "Pick and place", "Teach", "Weld"}));
    }

    void helloShowsItsGreeting() {
        QVERIFY(m_pendant->open("hello"));
        QStringList shown;
        for (const QLabel* label : m_pendant->page("hello")->findChildren<QLabel*>()) {
            if (label->isVisible())
                shown.append(label->text());
        }
        QCOMPARE(shown, QStringList("Hello, robot."));
    }

    void monitorSaysThatNothingIsConnected() {
        QVERIFY(m_pendant->open("monitor"));
        QCOMPARE(m_pendant->page("monitor")->findChild<QLabel*>("linkState")->text(), QString("Not connected"));
    }

    void dashboardSaysThatNothingIsLive() {
        QVERIFY(m_pendant->open("dashboard"));
        QVERIFY(m_pendant->page("dashboard")->findChild<QLabel*>("links")->text().startsWith("The bus is down."));
    }

    void pickplaceSaysWhereTheRobotCanBeSent() {
        QVERIFY(m_pendant->open("pickplace"));
        QVERIFY(m_pendant->page("pickplace")->findChild<QLabel*>("reason")->text().contains("x = y"));
    }

    void teachSaysWhatToDoFirst() {
        QVERIFY(m_pendant->open("teach"));
        QVERIFY(m_pendant->page("teach")->findChild<QLabel*>("answer")->text().startsWith("Jog the robot"));
    }

    void weldShowsTheProcedureInUse() {
        QVERIFY(m_pendant->open("weld"));
        QVERIFY(m_pendant->page("weld")->findChild<QLabel*>("procedureName")->isVisible());
        QVERIFY(statusText().startsWith("Weld "));
    }

    void aChangedCurrentChangesTheHeatInPageAndStatusBar() {
        const QString heat = heatText();
        const QString status = statusText();
        auto* current = m_pendant->page("weld")->findChild<QSpinBox*>();
        current->setValue(current->value() + 50);
        QVERIFY(heatText() != heat);
        QVERIFY(statusText() != status);
        QVERIFY(statusText().contains(QString::number(current->value()) + " A"));
    }

    void theProceduresOpenInTheSideBarAndAreTakenIntoUse() {
        QVERIFY(m_pendant->press("procedures"));
        QVERIFY(m_pendant->frame().sideBar()->isVisible());
        auto* list = m_pendant->sideBarPage("weld", "procedures")->findChild<QListWidget*>();
        QVERIFY(list->isVisible());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(1)).center());
        QCOMPARE(m_pendant->page("weld")->findChild<QLabel*>("procedureName")->text(), list->item(1)->text());
    }

    void fullScreenGoesThereAndBack() {
        QVERIFY(m_pendant->press("Full screen"));
        QCOMPARE(m_pendant->fullScreenWindows().size(), 1);
        QVERIFY(m_pendant->press("Back to the page"));
        QCOMPARE(m_pendant->fullScreenWindows().size(), 0);
        QVERIFY(m_pendant->findButton("Full screen"));
    }

    void theWireChangeIsAModelWindowAndReported() {
        QVERIFY(m_pendant->press("wireChange"));
        auto* dialog = m_pendant->page("weld")->findChild<QDialog*>();
        QVERIFY(dialog && dialog->isVisible());
        QCOMPARE(m_pendant->log().count("Current Model Count : 1"), 1);
        dialog->accept();
        QCOMPARE(m_pendant->log().count("Current Model Count : 0"), 1);
        QCOMPARE(m_pendant->messages().last().source, QString("weld"));
    }

    void wireRunsWhileItsKeyIsHeld() {
        QVERIFY(m_pendant->holdKey("Wire and gas", "Forward", true));
        QVERIFY(sideText().contains("forward"));
        QVERIFY(m_pendant->holdKey("Wire and gas", "Forward", false));
        QVERIFY(sideText().contains("still"));
    }

    void leavingThePageStopsTheWire() {
        QVERIFY(m_pendant->holdKey("Wire and gas", "Back", true));
        QVERIFY(sideText().contains("back"));
        m_pendant->expectError("The page was left while the wire was moving");
        m_pendant->leave();
        QVERIFY(sideText().contains("still"));
    }

    void theEndLeavesNothingBehind() {
        m_pendant->close();
        QVERIFY(!m_pendant->holdKey("Wire and gas", "Forward", true));
        QCOMPARE(m_pendant->navigation(), QStringList());
    }

    void cleanup() { QVERIFY(m_pendant->verify()); }
    void cleanupTestCase() { m_pendant.reset(); }

private:
    QString statusText() const {
        auto* item = qobject_cast<QLabel*>(m_pendant->statusItem("weld", 0));
        return item ? item->text() : QString();
    }

    QString heatText() const { return m_pendant->page("weld")->findChild<QLabel*>("heatInput")->text(); }

    QString sideText() const {
        QString text;
        for (const QLabel* label : m_pendant->sideBarPage("weld", "wire")->findChildren<QLabel*>())
            text += label->text() + '\n';
        return text;
    }

    std::unique_ptr<Pendant> m_pendant;
};

QTEST_MAIN(TestExamples)
#include "tst_examples.moc"
