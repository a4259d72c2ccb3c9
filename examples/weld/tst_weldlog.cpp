#include "pendanttest/pendant.h"

#include <QDialog>
#include <QDir>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using pendanttest::Pendant;

// The lines of the weld plugin on the console and in the file, letter by letter.
class TestWeldLog : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        m_pendant = std::make_unique<Pendant>();
        QVERIFY(m_pendant->load(PLUGIN_weld));
        m_pendant->start();
        QVERIFY(m_pendant->open("weld"));
    }
    void cleanupTestCase() { m_pendant.reset(); }
    void init() {
        m_linesBefore = m_pendant->logLines().size();
        m_pendant->log().forgetLines();
    }

    void theChosenProcedureIsInformation() {
        QVERIFY(m_pendant->press("procedures"));
        auto* list = m_pendant->sideBarPage("weld", "procedures")->findChild<QListWidget*>();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(1)).center());
        check(0, "36", "I", "<weld>Procedure in use: " + list->item(1)->text() + ", 220 A, 24 V");
    }

    void theChangedWireIsInformation() {
        QVERIFY(m_pendant->press("wireChange"));
        m_pendant->page("weld")->findChild<QDialog*>()->accept();
        check(lineWith("Wire changed"), "36", "I", "<weld>Wire changed");
    }

    void whatThePowerSourceIsToldIsService() {
        QVERIFY(m_pendant->holdKey("Wire and gas", "Gas", true));
        QVERIFY(m_pendant->holdKey("Wire and gas", "Gas", false));
        QVERIFY(m_pendant->holdKey("Wire and gas", "Forward", true));
        QVERIFY(m_pendant->holdKey("Wire and gas", "Forward", false));
        check(0, "35", "S", "<weld>Gas open");
        check(1, "35", "S", "<weld>Gas shut");
        check(2, "35", "S", "<weld>Wire forward at 0 mm");
        check(3, "35", "S", "<weld>Wire still at 0 mm");
    }

    void leavingWhileTheWireMovesIsAnError() {
        QVERIFY(m_pendant->holdKey("Wire and gas", "Back", true));
        m_pendant->expectError("The page was left");
        m_pendant->leave();
        check(1, "31", "E", "<weld>The page was left while the wire was moving: stopped");
    }

    void theFileIsTheOneThatAllShare() {
        const QStringList names = QDir("log").entryList(QDir::Files);
        QVERIFY(!names.isEmpty());
        for (const QString& name : names)
            QVERIFY2(QRegularExpression("\\Akite_\\d{8}\\.log\\z").match(name).hasMatch(), qPrintable(name));
    }

private:
    int lineWith(const QString& part) const {
        const QStringList lines = m_pendant->log().lines();
        for (int i = 0; i < lines.size(); ++i) {
            if (lines.at(i).contains(part))
                return i;
        }
        return -1;
    }

    // Of the lines of this case, the one with that number.
    void check(int number, const QString& colour, const QString& level, const QString& text) {
        const QString line = QString("\\[%1\\|\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\]%2")
                                 .arg(level, QRegularExpression::escape(text));
        const QString onConsole = m_pendant->log().lines().value(number);
        const QRegularExpression wanted("\\A\x1b\\[" + colour + "m" + line + "\x1b\\[0m\\z");
        QVERIFY2(wanted.match(onConsole).hasMatch(), qPrintable(onConsole));
        QCOMPARE(m_pendant->logLines().value(m_linesBefore + number), onConsole.mid(5, onConsole.size() - 9));
    }

    std::unique_ptr<Pendant> m_pendant;
    int m_linesBefore = 0;
};

QTEST_MAIN(TestWeldLog)
#include "tst_weldlog.moc"
