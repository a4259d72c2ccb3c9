#include "framefixture.h"

#include "developer/linkspanel.h"
#include "pendanttest/fakelink.h"

#include <QLabel>
#include <QPushButton>

using brisk::standin::Channel;
using pendanttest::FakeLink;

class TestLinks : public QObject {
    Q_OBJECT

private slots:
    void theButtonTakesItsLinkDownAndBringsItUp_data();
    void theButtonTakesItsLinkDownAndBringsItUp();
    void bothAreSwitchedAtOnce();
    void aLinkThatBreaksByItselfIsShown();
    void withoutALinkTheButtonIsOffAndSaysWhy();

private:
    static QString text(const QWidget& panel, const QString& link, const QString& name) {
        return panel.findChild<QWidget*>("link:" + link)->findChild<QLabel*>(name)->text();
    }
    static QPushButton* button(const QWidget& panel, const QString& link) {
        return panel.findChild<QWidget*>("link:" + link)->findChild<QPushButton*>("switch");
    }
};

void TestLinks::theButtonTakesItsLinkDownAndBringsItUp_data() {
    QTest::addColumn<QString>("link");
    QTest::newRow("bus") << "bus";
    QTest::newRow("controller") << "controller";
}

void TestLinks::theButtonTakesItsLinkDownAndBringsItUp() {
    QFETCH(QString, link);
    FakeLink bus(Channel::bus());
    FakeLink controller(Channel::controller());
    pendant::LinksPanel panel(pendant::Theme::light());
    panel.setLive(true);
    panel.show();
    FakeLink& one = link == "bus" ? bus : controller;
    FakeLink& other = link == "bus" ? controller : bus;
    QCOMPARE(text(panel, link, "state"), QString("Up"));
    const QString meaning = text(panel, link, "meaning");
    QTest::mouseClick(button(panel, link), Qt::LeftButton);
    QVERIFY(!one.isUp());
    QVERIFY(other.isUp());
    QCOMPARE(text(panel, link, "state"), QString("Down"));
    QVERIFY(text(panel, link, "meaning") != meaning);
    QCOMPARE(button(panel, link)->text(), QString("Bring up"));
    QTest::mouseClick(button(panel, link), Qt::LeftButton);
    QVERIFY(one.isUp());
    QCOMPARE(text(panel, link, "state"), QString("Up"));
}

void TestLinks::bothAreSwitchedAtOnce() {
    FakeLink bus(Channel::bus());
    FakeLink controller(Channel::controller());
    pendant::LinksPanel panel(pendant::Theme::light());
    panel.setLive(true);
    panel.show();
    QTest::mouseClick(panel.findChild<QPushButton*>("bothDown"), Qt::LeftButton);
    QVERIFY(!bus.isUp() && !controller.isUp());
    QTest::mouseClick(panel.findChild<QPushButton*>("bothUp"), Qt::LeftButton);
    QVERIFY(bus.isUp() && controller.isUp());
}

void TestLinks::aLinkThatBreaksByItselfIsShown() {
    FakeLink bus(Channel::bus());
    pendant::LinksPanel panel(pendant::Theme::light());
    panel.setLive(true);
    panel.show();
    bus.setUp(false);
    QCOMPARE(text(panel, "bus", "state"), QString("Down"));
    bus.setUp(true);
    QCOMPARE(text(panel, "bus", "state"), QString("Up"));
}

void TestLinks::withoutALinkTheButtonIsOffAndSaysWhy() {
    FakeLink bus(Channel::bus());
    pendant::LinksPanel panel(pendant::Theme::light());
    panel.setLive(true);
    panel.show();
    QVERIFY(button(panel, "bus")->isEnabled());
    QVERIFY(!button(panel, "controller")->isEnabled());
    QVERIFY(text(panel, "controller", "meaning").startsWith("Nothing stands behind this link"));
    QVERIFY(panel.findChild<QPushButton*>("bothDown")->isEnabled());
}

PENDANT_TEST_MAIN(TestLinks)
#include "tst_developer_links.moc"
