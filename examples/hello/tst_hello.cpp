#include "pendanttest/pendant.h"

#include <QLabel>
#include <QTest>

class TestHello : public QObject {
    Q_OBJECT

private slots:
    void thePageSaysHello() {
        pendanttest::Pendant pendant;
        QVERIFY(pendant.load(PLUGIN_hello));
        pendant.start();
        QVERIFY(pendant.open("hello"));
        QCOMPARE(pendant.page("hello")->findChild<QLabel*>("greeting")->text(), QString("Hello, robot."));
    }
};

QTEST_MAIN(TestHello)
#include "tst_hello.moc"
