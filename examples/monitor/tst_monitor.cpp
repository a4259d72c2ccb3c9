#include "monitorplugin.h"

#include "pendanttest/pendant.h"
#include "pendanttest/robot.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using pendanttest::Pendant;
using pendanttest::Robot;

class TestMonitor : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void beforeTheLinksAreUpThereAreNoValues();
    void valuesStandThereOnceBothLinksAreUp_data();
    void valuesStandThereOnceBothLinksAreUp();
    void linksThatAreUpAlreadyAreSeen();
    void valuesChangeWithTheController();
    void theLampIsSwitchedThroughTheController();
    void linksMayBePulledInEitherOrder_data();
    void linksMayBePulledInEitherOrder();
    void afterALinkWasDownTheValuesAreReadAgain();
    void aCustomCommandShowsItsAnswer();
    void aCustomCommandWithoutTheBusSaysSo();
    void theRecordsStandInTheLogFile();
    void closingThePendantEndsTheSubscriptions();

private:
    void start() {
        m_pendant->add<MonitorPlugin>("monitor");
        m_pendant->start();
        QVERIFY(m_pendant->open("monitor"));
    }
    QString text(const QString& name) { return m_pendant->page("monitor")->findChild<QLabel*>(name)->text(); }
    QStringList events() {
        QStringList texts;
        const auto* list = m_pendant->page("monitor")->findChild<QListWidget*>("linkEvents");
        for (int i = 0; i < list->count(); ++i)
            texts.prepend(list->item(i)->text().section("  ", 1));
        return texts;
    }

    std::unique_ptr<Pendant> m_pendant;
    std::unique_ptr<Robot> m_robot;
};

void TestMonitor::init() {
    m_pendant.reset(new Pendant);
    m_robot.reset(new Robot);
    m_robot->loadDefaultCell();
}

void TestMonitor::cleanup() {
    m_pendant.reset();
    m_robot.reset();
}

void TestMonitor::beforeTheLinksAreUpThereAreNoValues() {
    start();
    QCOMPARE(text("linkState"), QString("Not connected"));
    QCOMPARE(text("cell.parts"), QString("no value yet"));
    QVERIFY(!m_pendant->press("lamp"));
}

void TestMonitor::valuesStandThereOnceBothLinksAreUp_data() {
    QTest::addColumn<bool>("busFirst");
    QTest::newRow("bus first") << true;
    QTest::newRow("controller first") << false;
}

void TestMonitor::valuesStandThereOnceBothLinksAreUp() {
    QFETCH(bool, busFirst);
    start();
    busFirst ? m_robot->bus(true) : m_robot->controllerLink(true);
    QCOMPARE(text("linkState"), QString("Not connected"));
    busFirst ? m_robot->controllerLink(true) : m_robot->bus(true);
    QCOMPARE(text("linkState"), QString("Connected"));
    QCOMPARE(text("cell.parts"), QString("0"));
    QCOMPARE(events(), QStringList("Bus and controller are connected."));
}

void TestMonitor::linksThatAreUpAlreadyAreSeen() {
    m_robot->connectLinks();
    start();
    QCOMPARE(text("linkState"), QString("Connected"));
    QCOMPARE(text("cell.parts"), QString("0"));
}

void TestMonitor::valuesChangeWithTheController() {
    m_robot->connectLinks();
    start();
    m_robot->step(5000);
    QCOMPARE(text("cell.parts"), QString("1"));
    QCOMPARE(text("controller.uptime"), QString("5"));
    const QString temperature = text("cell.temperature");
    m_robot->step(5000);
    QVERIFY(text("cell.temperature") != temperature);
}

void TestMonitor::theLampIsSwitchedThroughTheController() {
    m_robot->connectLinks();
    start();
    QVERIFY(m_pendant->press("lamp"));
    QVERIFY(text("io.do").contains("\"lamp\":false"));
    m_robot->settle();
    QVERIFY(text("io.do").contains("\"lamp\":true"));
    QVERIFY(m_pendant->press("Switch the lamp off"));
    m_robot->settle();
    QVERIFY(text("io.do").contains("\"lamp\":false"));
}

void TestMonitor::linksMayBePulledInEitherOrder_data() {
    valuesStandThereOnceBothLinksAreUp_data();
}

void TestMonitor::linksMayBePulledInEitherOrder() {
    QFETCH(bool, busFirst);
    m_robot->connectLinks();
    start();
    busFirst ? m_robot->bus(false) : m_robot->controllerLink(false);
    QCOMPARE(text("linkState"), QString("Not connected"));
    busFirst ? m_robot->controllerLink(false) : m_robot->bus(false);
    QCOMPARE(events(), QStringList(busFirst ? "The bus is down." : "The controller link is down."));
    m_robot->connectLinks();
    QCOMPARE(text("linkState"), QString("Connected"));
    m_robot->step(5000);
    QCOMPARE(text("cell.parts"), QString("1"));
    QCOMPARE(m_pendant->messages().last().source, QString("monitor"));
}

void TestMonitor::afterALinkWasDownTheValuesAreReadAgain() {
    m_robot->connectLinks();
    start();
    m_robot->bus(false);
    m_robot->step(10000);
    QCOMPARE(text("cell.parts"), QString("0"));
    m_robot->bus(true);
    QCOMPARE(text("cell.parts"), QString("2"));
}

void TestMonitor::aCustomCommandShowsItsAnswer() {
    m_robot->connectLinks();
    start();
    QVERIFY(m_pendant->press("send"));
    QCOMPARE(text("answer"), QString("Answer: [{\"gripper\":{\"force\":\"40\"}}]"));
}

void TestMonitor::aCustomCommandWithoutTheBusSaysSo() {
    start();
    QVERIFY(m_pendant->press("send"));
    QCOMPARE(text("answer"), QString("Nothing came back: the bus is down, or the service has nothing to say."));
}

void TestMonitor::theRecordsStandInTheLogFile() {
    m_robot->connectLinks();
    start();
    QVERIFY(m_pendant->press("send"));
    QStringList lines;
    const QRegularExpression tag("^\\[S\\|\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\]");
    for (const QString& line : m_pendant->logLines()) {
        QVERIFY2(tag.match(line).hasMatch(), qPrintable(line));
        lines << line.section(']', 1);
    }
    QCOMPARE(
        lines,
        QStringList({"connectRelayData - serviceKey : controller.uptime",
                     "connectRelayData - serviceKey : cell.temperature", "connectRelayData - serviceKey : cell.parts",
                     "connectRelayData - serviceKey : io.di", "connectRelayData - serviceKey : io.do",
                     "send : kite::command : QJsonArray([{\"gripper\":{\"force\":\"40\"}}])",
                     "ret : kite::command : QJsonValue(array, QJsonArray([{\"gripper\":{\"force\":\"40\"}}]))"}));
}

void TestMonitor::closingThePendantEndsTheSubscriptions() {
    m_robot->connectLinks();
    start();
    m_robot->forgetTraffic();
    m_pendant->close();
    const QStringList own{"cell.parts", "cell.temperature", "controller.uptime", "io.di", "io.do"};
    QStringList unwatched;
    for (const auto& entry : m_robot->traffic()) {
        // The pendant itself leaves keys of its own too.
        if (entry.kind == "unwatch" && own.contains(entry.key))
            unwatched << entry.key;
    }
    unwatched.sort();
    QCOMPARE(unwatched, own);
    m_robot->step(5000);
}

QTEST_MAIN(TestMonitor)
#include "tst_monitor.moc"
