#include "view/picture.h"

#include <QJsonArray>
#include <QJsonObject>

#include <benchmark/benchmark.h>

#include <cmath>

// A picture of the standard robot at 600 x 600: while it moves, while it is turned by a finger, and the finest when it
// stands. 33 ms a picture are 30 a second.

namespace {

using namespace pendant::view;

QJsonObject link(const char* name, int axis, const QJsonObject& next) {
    QJsonArray direction;
    for (int i = 0; i < 3; ++i)
        direction << (i == axis ? 1 : 0);
    return QJsonObject{{"name", name}, {"axis", direction}, {"next", next}};
}

ArmGeometry standardArm() {
    QJsonArray links;
    links << link("A1", 2, QJsonObject{{"x", 150}, {"z", 450}}) << link("A2", 1, QJsonObject{{"z", 700}})
          << link("A3", 1, QJsonObject{{"x", 820}, {"z", 115}}) << link("A4", 0, QJsonObject())
          << link("A5", 1, QJsonObject()) << link("A6", 0, QJsonObject{{"x", 110}, {"b", 90}});
    const QJsonObject wobjs{{"table", QJsonObject{{"x", 800}, {"y", -300}, {"z", 400}}},
                            {"conveyor", QJsonObject{{"x", -200}, {"y", 900}, {"z", 550}, {"a", 90}}}};
    return armGeometryOf(
        {{"links", links}, {"tools", QJsonObject{{"gripper", QJsonObject{{"z", 180}}}}}, {"wobjs", wobjs}});
}

Colours lightColours() {
    Colours colours;
    colours.surfaces.fill(QColor(0xc0c4c8));
    colours.sky = Qt::white;
    colours.ground = QColor(0xe3e7eb);
    colours.floor = QColor(0xf5f7f9);
    colours.grid = QColor(0xaab5bf);
    colours.shadow = QColor(0x2b, 0x36, 0x40, 110);
    return colours;
}

struct Studio {
    Studio() {
        picture.setColours(lightColours());
        picture.setArm(arm);
        picture.setTool(QStringLiteral("gripper"));
        camera.setViewport({600, 600});
        const ArmChain home(arm, {{0, 0, 0, 0, 90, 0}, {}});
        QVector<Vector> positions{home.foot().at, home.tip(picture.tool()).at};
        for (int i = 0; i < arm.links.size(); ++i)
            positions << home.link(i).at;
        camera.fit(positions);
    }

    void draw(double degrees, int samples) {
        const ArmChain chain(arm, {{degrees, degrees / 9, 20, degrees, 60, degrees}, {}});
        benchmark::DoNotOptimize(picture.draw(chain, camera, samples).constBits());
    }

    ArmGeometry arm = standardArm();
    Picture picture;
    Camera camera;
};

void pictureOfAMotion(benchmark::State& state) {
    Studio studio;
    double degrees = 0;
    for (auto _ : state)
        studio.draw(degrees = std::fmod(degrees + 0.5, 90), Picture::quick);
}
BENCHMARK(pictureOfAMotion)->Unit(benchmark::kMillisecond);

void pictureWhileItIsTurned(benchmark::State& state) {
    Studio studio;
    for (auto _ : state) {
        studio.camera.orbit({1, 0});
        studio.camera.orbit({0, studio.camera.azimuthDeg() > 0 ? 0.2 : -0.2});
        studio.draw(30, Picture::quick);
    }
}
BENCHMARK(pictureWhileItIsTurned)->Unit(benchmark::kMillisecond);

void pictureThatStands(benchmark::State& state) {
    Studio studio;
    for (auto _ : state)
        studio.draw(30, Picture::fine);
}
BENCHMARK(pictureThatStands)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
