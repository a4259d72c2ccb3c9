#include "viewfixture.h"

#include <QTest>

#include <cmath>
#include <cstdlib>

using namespace pendant::view;

Q_DECLARE_METATYPE(pendant::view::Stance)

namespace {

const Stance home{{0, 0, 0, 0, 90, 0}, {}};

/// A robot before a camera that sees all of it.
struct Studio {
    explicit Studio(const QJsonObject& description = viewfixture::sixAxes(), const Stance& stance = home)
        : arm(armGeometryOf(description)), chain(arm, stance) {
        picture.setColours(viewfixture::colours());
        picture.setArm(arm);
        picture.setTool("gripper");
        camera.setViewport({300, 260});
        look(-52, 22);
    }

    void look(double azimuthDeg, double elevationDeg) {
        camera.lookFrom(azimuthDeg, elevationDeg);
        QVector<Vector> positions{chain.foot().at, chain.tip("gripper").at};
        for (int i = 0; i < arm.links.size(); ++i)
            positions << chain.link(i).at;
        camera.fit(positions);
    }

    QImage draw(int samples = Picture::quick) { return picture.draw(chain, camera, samples).copy(); }

    ArmGeometry arm;
    ArmChain chain;
    Picture picture;
    Camera camera;
};

bool isRed(QRgb colour) {
    return qRed(colour) > 60 && qGreen(colour) < qRed(colour) / 2 && qBlue(colour) < qRed(colour) / 2;
}

// The lowest pixel of the tool's metal.
QPoint lowestRed(const QImage& image, int fromY) {
    for (int y = image.height() - 1; y >= fromY; --y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isRed(image.pixel(x, y)))
                return {x, y};
        }
    }
    return {-1, -1};
}

int differing(const QImage& one, const QImage& other, int by = 0) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > by;
    }
    return count;
}

} // namespace

// The robot as an image.
class TestViewPicture : public QObject {
    Q_OBJECT

private slots:
    void theTipIsAtThePixelThatTheCameraSays_data();
    void theTipIsAtThePixelThatTheCameraSays();
    void theNearerCoversTheFarther();
    void whatIsBehindTheArmIsHidden();
    void theSameAgainIsTheSamePicture();
    void nothingStaysBehindOfThePictureBefore();
    void fineIsTheSameAsQuickButForItsEdges();
    void theArmCastsAShadowBelowIt();
    void anotherLookIsAnotherPicture();
    void withoutAnArmThereIsTheFloor();
    void everyRobotIsDrawn_data();
    void everyRobotIsDrawn();
    void anEyeInsideTheArmAndATinyViewportAreNoTrouble();
    void theWorkObjectThatIsSelectedStandsOut();
};

void TestViewPicture::theTipIsAtThePixelThatTheCameraSays_data() {
    QTest::addColumn<Stance>("stance");
    QTest::addColumn<double>("azimuthDeg");
    QTest::newRow("home") << home << -52.0;
    QTest::newRow("from the front") << home << 0.0;
    QTest::newRow("turned") << Stance{{60, 20, -10, 0, 80, 30}, {}} << 20.0;
    QTest::newRow("bent") << Stance{{-40, 30, 20, 0, 40, 0}, {}} << -120.0;
}

// The metal of the nozzle ends there, save for the thickness of the frame that is drawn at the tip.
void TestViewPicture::theTipIsAtThePixelThatTheCameraSays() {
    QFETCH(Stance, stance);
    QFETCH(double, azimuthDeg);
    Studio studio(viewfixture::sixAxes(), stance);
    studio.camera.setViewport({900, 800});
    studio.look(azimuthDeg, 5);
    const QImage image = studio.draw();
    const QPointF tip = studio.camera.pixel(studio.chain.tip("gripper").at);
    const QPoint end = lowestRed(image, int(tip.y()) - 40);
    QVERIFY(std::abs(end.x() - tip.x()) < 4);
    QVERIFY(std::abs(end.y() - tip.y()) < 4);
}

void TestViewPicture::theNearerCoversTheFarther() {
    Mesh near;
    near.vertices = {{{0, 10, -10}, {1, 0, 0}}, {{0, 10, 10}, {1, 0, 0}}, {{0, -10, 0}, {1, 0, 0}}};
    near.triangles = {{{0, 1, 2}, Material::Metal}};
    Mesh far = near;
    far.triangles = {{{0, 1, 2}, Material::Tool}};
    Camera camera;
    camera.setViewport({40, 40});
    camera.lookFrom(0, 2);
    camera.fit({{0, -20, -20}, {0, 20, 20}});
    for (const bool isNearFirst : {true, false}) {
        Rasteriser rasteriser;
        rasteriser.begin({40, 40});
        if (isNearFirst)
            rasteriser.draw(near, {{}, {5, 0, 0}}, camera, 1);
        rasteriser.draw(far, {}, camera, 1);
        if (!isNearFirst)
            rasteriser.draw(near, {{}, {5, 0, 0}}, camera, 1);
        const std::uint32_t middle = rasteriser.row(20)[20];
        QVERIFY(Surface::isCovered(middle));
        QCOMPARE(Surface::index(middle) / (Surface::steps * Surface::steps), std::uint32_t(Material::Metal));
        QVERIFY(std::abs(1 / rasteriser.nearness(20, 20) - camera.depthMm({5, 0, 0})) < 1);
    }
}

void TestViewPicture::whatIsBehindTheArmIsHidden() {
    Studio studio;
    studio.look(-90, 10);
    studio.draw();
    const Vector elbow = studio.chain.link(2).at;
    QVERIFY(studio.picture.hides(elbow + Vector{0, 300, 0}));
    QVERIFY(!studio.picture.hides(elbow - Vector{0, 300, 0}));
    QVERIFY(!studio.picture.hides(elbow + Vector{-600, 0, 0}));
    QVERIFY(!studio.picture.hides({1e6, 0, 0}));
}

void TestViewPicture::theSameAgainIsTheSamePicture() {
    Studio studio;
    QCOMPARE(studio.draw(), studio.draw());
    QCOMPARE(Studio().draw(), studio.draw());
}

void TestViewPicture::nothingStaysBehindOfThePictureBefore() {
    Studio studio;
    Studio other(viewfixture::sixAxes(), {{90, 40, -30, 20, 30, 10}, {}});
    other.camera = studio.camera;
    const QImage alone = other.draw();
    studio.draw();
    QCOMPARE(studio.picture.draw(other.chain, studio.camera, Picture::quick), alone);
    studio.draw(Picture::fine);
    QCOMPARE(studio.picture.draw(other.chain, studio.camera, Picture::quick), alone);
}

void TestViewPicture::fineIsTheSameAsQuickButForItsEdges() {
    Studio studio;
    const QImage quick = studio.draw(Picture::quick);
    const QImage fine = studio.draw(Picture::fine);
    QVERIFY(quick != fine);
    QVERIFY(differing(quick, fine, 60) < quick.width() * quick.height() / 500);
}

void TestViewPicture::theArmCastsAShadowBelowIt() {
    Studio studio;
    studio.look(-90, 60);
    const QImage image = studio.draw();
    const Vector tip = studio.chain.tip("gripper").at;
    const Vector below{tip.x - 250, 0, 0};
    const Vector beside{tip.x - 250, -250, 0};
    QVERIFY(qGray(image.pixel(studio.camera.pixel(below).toPoint())) <
            qGray(image.pixel(studio.camera.pixel(beside).toPoint())) - 30);
}

void TestViewPicture::anotherLookIsAnotherPicture() {
    Studio studio;
    const QImage image = studio.draw();
    Colours colours = viewfixture::colours();
    colours.surfaces[size_t(Material::Paint)] = Qt::black;
    studio.picture.setColours(colours);
    QVERIFY(differing(studio.draw(), image, 20) > 1000);
    studio.picture.setColours(viewfixture::colours());
    QCOMPARE(studio.draw(), image);
    studio.camera.orbit({3, 0});
    QVERIFY(studio.draw() != image);
}

void TestViewPicture::withoutAnArmThereIsTheFloor() {
    Studio studio{QJsonObject(), Stance()};
    studio.camera.fit({{-500, -500, 0}, {500, 500, 500}});
    const QImage image = studio.draw();
    QCOMPARE(image.size(), QSize(300, 260));
    QCOMPARE(QColor(image.pixel(5, 5)), QColor(Qt::white));
}

void TestViewPicture::everyRobotIsDrawn_data() {
    QTest::addColumn<QJsonObject>("description");
    QTest::addColumn<Stance>("stance");
    QTest::newRow("six axes") << viewfixture::sixAxes() << home;
    QTest::newRow("seven axes") << viewfixture::sevenAxes() << Stance{{0, 20, 40, 20, 60, 10, 40}, {}};
    QTest::newRow("external axes") << viewfixture::withExternals() << Stance{home.joints, {700, 20, 30}};
    QTest::newRow("odd") << viewfixture::odd() << Stance{{10, 20, 30, 40}, {}};
}

// At every joint there is something that is not the floor.
void TestViewPicture::everyRobotIsDrawn() {
    QFETCH(QJsonObject, description);
    QFETCH(Stance, stance);
    Studio studio(description, stance);
    const QImage image = studio.draw();
    for (int i = 0; i < studio.arm.links.size(); ++i) {
        const Vector at = studio.chain.link(i).at;
        const QRgb colour = image.pixel(studio.camera.pixel(at).toPoint());
        QVERIFY(qGray(colour) < 240);
    }
}

void TestViewPicture::anEyeInsideTheArmAndATinyViewportAreNoTrouble() {
    Studio studio;
    for (const QSizeF& size : {QSizeF(1, 1), QSizeF(3, 200), QSizeF(201, 7)}) {
        studio.camera.setViewport(size);
        studio.camera.zoom(1e6, {0, 0});
        QCOMPARE(studio.draw().size(), size.toSize());
        QCOMPARE(studio.draw(Picture::fine).size(), size.toSize());
        studio.camera.fit({studio.chain.link(1).at, studio.chain.link(1).at + Vector{1, 1, 1}});
        QCOMPARE(studio.draw().size(), size.toSize());
    }
}

void TestViewPicture::theWorkObjectThatIsSelectedStandsOut() {
    Studio studio;
    const auto blues = [](const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += qBlue(image.pixel(x, y)) > 2 * qRed(image.pixel(x, y)) + 20;
        }
        return count;
    };
    const int before = blues(studio.draw());
    studio.picture.setWobj("table");
    QVERIFY(blues(studio.draw()) > before + 5);
}

QTEST_GUILESS_MAIN(TestViewPicture)
#include "tst_view_picture.moc"
