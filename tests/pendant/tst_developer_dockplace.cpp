#include "developer/dockplace.h"

#include <QTest>

using pendant::DockPlace;

// Where the dock stands beside a pendant of 1280 x 800.
class TestDockPlace : public QObject {
    Q_OBJECT

private slots:
    void itStandsWhereThereIsRoom_data();
    void itStandsWhereThereIsRoom();
};

void TestDockPlace::itStandsWhereThereIsRoom_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QPoint>("pendant");
    QTest::addColumn<QPoint>("pendantThen");
    QTest::addColumn<QRect>("dock");
    QTest::addColumn<bool>("covers");
    QTest::newRow("right of it") << QSize(2560, 1440) << QPoint(100, 100) << QPoint(100, 100)
                                 << QRect(1380, 100, 800, 800) << false;
    QTest::newRow("right of it, narrower than it wants")
        << QSize(1920, 1080) << QPoint(0, 50) << QPoint(0, 50) << QRect(1280, 50, 640, 800) << false;
    QTest::newRow("left of it") << QSize(2560, 1440) << QPoint(1200, 100) << QPoint(1200, 100)
                                << QRect(400, 100, 800, 800) << false;
    QTest::newRow("below it") << QSize(1280, 1300) << QPoint(0, 0) << QPoint(0, 0) << QRect(0, 800, 800, 500) << false;
    QTest::newRow("above it") << QSize(1280, 1300) << QPoint(0, 500) << QPoint(0, 500) << QRect(0, 0, 800, 500)
                              << false;
    QTest::newRow("the pendant makes room")
        << QSize(1920, 1080) << QPoint(320, 140) << QPoint(0, 0) << QRect(1280, 0, 640, 800) << false;
    QTest::newRow("no room at all") << QSize(1366, 768) << QPoint(0, 0) << QPoint(0, 0) << QRect(766, 348, 600, 420)
                                    << true;
}

void TestDockPlace::itStandsWhereThereIsRoom() {
    QFETCH(QSize, screen);
    QFETCH(QPoint, pendant);
    QFETCH(bool, covers);
    const QRect window(pendant, QSize(1280, 800));
    const DockPlace place = DockPlace::beside(window, QRect(QPoint(0, 0), screen), {800, 800}, {600, 420});
    QTEST(place.pendant.topLeft(), "pendantThen");
    QCOMPARE(place.pendant.size(), window.size());
    QTEST(place.dock, "dock");
    QCOMPARE(place.dock.intersects(place.pendant), covers);
}

QTEST_APPLESS_MAIN(TestDockPlace)
#include "tst_developer_dockplace.moc"
