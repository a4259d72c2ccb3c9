#include "view/camera.h"
#include "view/floor.h"

#include <QTest>

#include <cmath>

using namespace pendant::view;

namespace {

bool areNear(const QPointF& one, const QPointF& other, double tolerance = 1e-6) {
    return std::abs(one.x() - other.x()) < tolerance && std::abs(one.y() - other.y()) < tolerance;
}

Camera cameraAt(double azimuthDeg, double elevationDeg) {
    Camera camera;
    camera.setViewport({900, 600});
    camera.lookFrom(azimuthDeg, elevationDeg);
    camera.fit({{-500, -400, 0}, {800, 600, 1500}});
    return camera;
}

} // namespace

// What is where on the screen.
class TestViewCamera : public QObject {
    Q_OBJECT

private slots:
    void theTargetIsInTheMiddle();
    void whatIsToTheRightAndAboveIsSeenThere();
    void nearerIsLarger();
    void whatIsBehindTheEyeIsNotSeen();
    void fittedPositionsAreAllInView_data();
    void fittedPositionsAreAllInView();
    void nothingToFitLeavesItAsItIs();
    void aDragTurnsTheSceneAlong();
    void theEyeStaysAboveTheFloor();
    void aPanTakesTheTargetAlong();
    void zoomKeepsWhatIsUnderTheFinger();
    void zoomHasEnds();
    void gridLinesAreARoundNumberOfMmApart_data();
    void gridLinesAreARoundNumberOfMmApart();
};

void TestViewCamera::theTargetIsInTheMiddle() {
    const Camera camera = cameraAt(-52, 22);
    QVERIFY(areNear(camera.pixel(camera.target()), {450, 300}));
    QVERIFY(std::abs(camera.depthMm(camera.target()) - camera.distanceMm()) < 1e-6);
}

// From the front X comes nearer, Y goes to the right and Z up.
void TestViewCamera::whatIsToTheRightAndAboveIsSeenThere() {
    const Camera camera = cameraAt(0, 10);
    const Vector target = camera.target();
    const QPointF middle = camera.pixel(target);
    QVERIFY(camera.pixel(target + Vector{0, 100, 0}).x() > middle.x() + 5);
    QVERIFY(areNear({0, camera.pixel(target + Vector{0, 100, 0}).y()}, {0, middle.y()}));
    QVERIFY(camera.pixel(target + Vector{0, 0, 100}).y() < middle.y() - 5);
    QVERIFY(camera.depthMm(target + Vector{100, 0, 0}) < camera.distanceMm() - 90);
}

void TestViewCamera::nearerIsLarger() {
    const Camera camera = cameraAt(-90, 2);
    const auto widthAt = [&](double y) {
        return camera.pixel(camera.target() + Vector{100, y, 0}).x() -
               camera.pixel(camera.target() + Vector{0, y, 0}).x();
    };
    QVERIFY(std::abs(widthAt(0) - 100 * camera.focalPixels() / camera.distanceMm()) < 1e-6);
    QVERIFY(widthAt(-500) > widthAt(0) && widthAt(0) > widthAt(500));
}

void TestViewCamera::whatIsBehindTheEyeIsNotSeen() {
    const Camera camera = cameraAt(30, 40);
    const Vector way = camera.target() - camera.eye();
    QVERIFY(camera.sees(camera.eye() + way * 0.5));
    QVERIFY(!camera.sees(camera.eye()));
    QVERIFY(!camera.sees(camera.eye() - way * 0.5));
}

void TestViewCamera::fittedPositionsAreAllInView_data() {
    QTest::addColumn<double>("azimuthDeg");
    QTest::addColumn<double>("elevationDeg");
    QTest::addColumn<QSizeF>("viewport");
    QTest::newRow("wide") << -52.0 << 22.0 << QSizeF(900, 500);
    QTest::newRow("high") << 130.0 << 40.0 << QSizeF(300, 700);
    QTest::newRow("from above") << -90.0 << 89.0 << QSizeF(600, 600);
    QTest::newRow("level") << 0.0 << 2.0 << QSizeF(600, 600);
}

void TestViewCamera::fittedPositionsAreAllInView() {
    QFETCH(double, azimuthDeg);
    QFETCH(double, elevationDeg);
    QFETCH(QSizeF, viewport);
    Camera camera;
    camera.setViewport(viewport);
    camera.lookFrom(azimuthDeg, elevationDeg);
    const QVector<Vector> positions{{0, 0, 0}, {1500, 200, 900}, {-300, 1200, 100}, {10, -800, 1800}};
    camera.fit(positions);
    const QRectF inside(viewport.width() * 0.05, viewport.height() * 0.05, viewport.width() * 0.9,
                        viewport.height() * 0.9);
    double widest = 0;
    for (const Vector& position : positions) {
        const QPointF pixel = camera.pixel(position);
        QVERIFY(inside.contains(pixel));
        widest = std::max(
            {widest, std::abs(pixel.x() / viewport.width() - 0.5), std::abs(pixel.y() / viewport.height() - 0.5)});
    }
    QVERIFY(widest > 0.4);
}

void TestViewCamera::nothingToFitLeavesItAsItIs() {
    Camera camera = cameraAt(0, 10);
    const double distanceMm = camera.distanceMm();
    camera.fit({});
    QCOMPARE(camera.distanceMm(), distanceMm);
}

void TestViewCamera::aDragTurnsTheSceneAlong() {
    Camera camera = cameraAt(0, 30);
    const Vector front = camera.target() + Vector{300, 0, 0};
    const QPointF before = camera.pixel(front);
    camera.orbit({40, 0});
    QVERIFY(camera.pixel(front).x() > before.x() + 5);
    QVERIFY(std::abs(camera.azimuthDeg()) > 1);
    const double elevationDeg = camera.elevationDeg();
    camera.orbit({0, 40});
    QVERIFY(camera.elevationDeg() > elevationDeg);
    QVERIFY(areNear(camera.pixel(camera.target()), {450, 300}));
}

void TestViewCamera::theEyeStaysAboveTheFloor() {
    Camera camera = cameraAt(0, 30);
    camera.orbit({0, -100000});
    QVERIFY(camera.elevationDeg() > 0);
    camera.orbit({0, 100000});
    QVERIFY(camera.elevationDeg() < 90);
    camera.orbit({100000, 0});
    QVERIFY(std::abs(camera.azimuthDeg()) <= 180);
}

void TestViewCamera::aPanTakesTheTargetAlong() {
    Camera camera = cameraAt(-52, 22);
    const Vector target = camera.target();
    camera.pan({30, -20});
    QVERIFY(areNear(camera.pixel(target), {480, 280}));
}

void TestViewCamera::zoomKeepsWhatIsUnderTheFinger() {
    Camera camera = cameraAt(-52, 22);
    const Vector held = camera.target() + camera.basis().x * 200 + camera.basis().y * 150;
    const QPointF pixel = camera.pixel(held);
    const double distanceMm = camera.distanceMm();
    camera.zoom(1.5, pixel);
    QVERIFY(areNear(camera.pixel(held), pixel));
    QVERIFY(std::abs(camera.distanceMm() - distanceMm / 1.5) < 1e-6);
}

void TestViewCamera::zoomHasEnds() {
    Camera camera = cameraAt(-52, 22);
    const double fittedMm = camera.distanceMm();
    camera.zoom(1e6, {10, 10});
    QVERIFY(camera.distanceMm() > fittedMm * 0.05);
    camera.zoom(1e-6, {10, 10});
    QVERIFY(camera.distanceMm() < fittedMm * 10);
}

void TestViewCamera::gridLinesAreARoundNumberOfMmApart_data() {
    QTest::addColumn<double>("radiusMm");
    QTest::addColumn<double>("spacingMm");
    QTest::newRow("tiny") << 85.0 << 10.0;
    QTest::newRow("small") << 900.0 << 100.0;
    QTest::newRow("usual") << 2800.0 << 500.0;
    QTest::newRow("large") << 4600.0 << 1000.0;
}

void TestViewCamera::gridLinesAreARoundNumberOfMmApart() {
    QFETCH(double, radiusMm);
    QTEST(Floor::spacing(radiusMm), "spacingMm");
}

QTEST_APPLESS_MAIN(TestViewCamera)
#include "tst_view_camera.moc"
