#include "view/camera.h"
#include "view/gestures.h"

#include <QTest>

#include <cmath>

using namespace pendant::view;

namespace {

/// Fingers before a camera that looks at something.
struct Hand {
    Hand() {
        camera.setViewport({600, 600});
        camera.fit({{-500, -500, 0}, {500, 500, 1000}});
    }

    Gestures::Meaning tap(const QPointF& at, qint64 nowMs) {
        gestures.touch({at});
        return gestures.lift(nowMs);
    }

    Camera camera;
    Gestures gestures{&camera};
};

bool isSame(const Camera& one, const Camera& other) {
    return one.azimuthDeg() == other.azimuthDeg() && one.elevationDeg() == other.elevationDeg() &&
           one.distanceMm() == other.distanceMm() && length(one.target() - other.target()) == 0;
}

} // namespace

// What fingers mean.
class TestViewGestures : public QObject {
    Q_OBJECT

private slots:
    void oneFingerTurnsTheScene();
    void oneFingerTakesTheSceneAlongWhenAskedTo();
    void twoFingersZoomByTheirDistance();
    void twoFingersTakeTheSceneAlong();
    void aFingerThatTremblesTaps();
    void aDragIsNoTap();
    void twoTapsInOnePlaceAreADoubleTap();
    void twoTapsFarApartAreTwo();
    void aLateSecondTapIsAnotherOne();
    void aThirdTapIsAFirst();
    void twoFingersNeverTap();
    void liftingOneOfTwoFingersDoesNotJump();
    void whatSlidesWithoutATouchMeansNothing();
    void aCancelledTouchIsNoTap();
};

void TestViewGestures::oneFingerTurnsTheScene() {
    Hand hand;
    const Camera before = hand.camera;
    hand.gestures.touch({{100, 100}});
    QCOMPARE(hand.gestures.slide({{150, 120}}, false), Gestures::Moved);
    QVERIFY(hand.camera.azimuthDeg() != before.azimuthDeg() && hand.camera.elevationDeg() > before.elevationDeg());
    QVERIFY(length(hand.camera.target() - before.target()) == 0);
}

void TestViewGestures::oneFingerTakesTheSceneAlongWhenAskedTo() {
    Hand hand;
    const Camera before = hand.camera;
    hand.gestures.touch({{100, 100}});
    hand.gestures.slide({{150, 120}}, true);
    QCOMPARE(hand.camera.azimuthDeg(), before.azimuthDeg());
    const QPointF moved = hand.camera.pixel(before.target());
    QVERIFY(std::abs(moved.x() - 350) < 1e-6 && std::abs(moved.y() - 320) < 1e-6);
}

void TestViewGestures::twoFingersZoomByTheirDistance() {
    Hand hand;
    const double distanceMm = hand.camera.distanceMm();
    hand.gestures.touch({{250, 300}, {350, 300}});
    QCOMPARE(hand.gestures.slide({{200, 300}, {400, 300}}, false), Gestures::Moved);
    QVERIFY(std::abs(hand.camera.distanceMm() - distanceMm / 2) < 1e-6);
}

void TestViewGestures::twoFingersTakeTheSceneAlong() {
    Hand hand;
    const Camera before = hand.camera;
    hand.gestures.touch({{250, 300}, {350, 300}});
    hand.gestures.slide({{280, 310}, {380, 310}}, false);
    QCOMPARE(hand.camera.distanceMm(), before.distanceMm());
    QVERIFY(std::abs(hand.camera.pixel(before.target()).x() - 330) < 1e-6);
}

void TestViewGestures::aFingerThatTremblesTaps() {
    Hand hand;
    const Camera before = hand.camera;
    hand.gestures.touch({{100, 100}});
    QCOMPARE(hand.gestures.slide({{104, 103}}, false), Gestures::Nothing);
    QCOMPARE(hand.gestures.lift(0), Gestures::Tapped);
    QCOMPARE(hand.gestures.place(), QPointF(100, 100));
    QVERIFY(isSame(hand.camera, before));
}

void TestViewGestures::aDragIsNoTap() {
    Hand hand;
    hand.gestures.touch({{100, 100}});
    hand.gestures.slide({{140, 100}}, false);
    hand.gestures.slide({{100, 100}}, false);
    QCOMPARE(hand.gestures.lift(0), Gestures::Nothing);
}

void TestViewGestures::twoTapsInOnePlaceAreADoubleTap() {
    Hand hand;
    QCOMPARE(hand.tap({100, 100}, 1000), Gestures::Tapped);
    QCOMPARE(hand.tap({104, 100}, 1200), Gestures::TappedTwice);
}

void TestViewGestures::twoTapsFarApartAreTwo() {
    Hand hand;
    hand.tap({100, 100}, 1000);
    QCOMPARE(hand.tap({200, 100}, 1200), Gestures::Tapped);
}

void TestViewGestures::aLateSecondTapIsAnotherOne() {
    Hand hand;
    hand.tap({100, 100}, 1000);
    QCOMPARE(hand.tap({100, 100}, 1000 + Gestures::doubleTapMs), Gestures::Tapped);
}

void TestViewGestures::aThirdTapIsAFirst() {
    Hand hand;
    hand.tap({100, 100}, 1000);
    hand.tap({100, 100}, 1100);
    QCOMPARE(hand.tap({100, 100}, 1200), Gestures::Tapped);
}

void TestViewGestures::twoFingersNeverTap() {
    Hand hand;
    hand.gestures.touch({{100, 100}});
    hand.gestures.touch({{100, 100}, {200, 100}});
    hand.gestures.touch({{100, 100}});
    QCOMPARE(hand.gestures.lift(0), Gestures::Nothing);
}

void TestViewGestures::liftingOneOfTwoFingersDoesNotJump() {
    Hand hand;
    hand.gestures.touch({{100, 100}, {300, 300}});
    hand.gestures.touch({{300, 300}});
    const Camera before = hand.camera;
    QCOMPARE(hand.gestures.slide({{300, 300}}, false), Gestures::Moved);
    QVERIFY(isSame(hand.camera, before));
}

void TestViewGestures::whatSlidesWithoutATouchMeansNothing() {
    Hand hand;
    const Camera before = hand.camera;
    QCOMPARE(hand.gestures.slide({{300, 300}}, false), Gestures::Nothing);
    QCOMPARE(hand.gestures.lift(0), Gestures::Nothing);
    QVERIFY(isSame(hand.camera, before));
}

void TestViewGestures::aCancelledTouchIsNoTap() {
    Hand hand;
    hand.gestures.touch({{100, 100}});
    hand.gestures.cancel();
    QCOMPARE(hand.gestures.lift(0), Gestures::Nothing);
}

QTEST_APPLESS_MAIN(TestViewGestures)
#include "tst_view_gestures.moc"
