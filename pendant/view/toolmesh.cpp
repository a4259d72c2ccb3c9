#include "armbodies.h"
#include "solids.h"

#include <algorithm>

namespace pendant {
namespace view {

namespace {

const double none = 1;

void addArrow(Mesh* mesh, const Vector& direction, double size, Material material) {
    const double thick = size * 0.035;
    addTurned(mesh, {facing(direction, across(direction)), {}},
              {{0, 0}, {0, thick}, {size * 0.72, thick}, {size * 0.72, thick * 2.6}, {size, 0}}, material);
}

void addRod(Mesh* mesh, const Vector& from, const Vector& to, double radius) {
    if (length(to - from) < none)
        return;
    const double run = length(to - from);
    addTurned(mesh, {facing(to - from, across(to - from)), from},
              {{-radius * 0.6, 0},
               {-radius * 0.6, radius * 0.7},
               {0, radius},
               {run, radius},
               {run + radius * 0.6, radius * 0.7},
               {run + radius * 0.6, 0}},
              Material::Tool);
}

} // namespace

Mesh toolMesh(const ArmGeometry& arm, const Place& tip) {
    Mesh mesh;
    const double reach = length(tip.at);
    if (reach < none)
        return mesh;
    const double flange = ArmSizes(arm).flange();
    const double adapter = std::min(flange * 0.5, reach * 0.2);
    addDrum(&mesh, {{}, {0, 0, adapter / 2}}, flange * 0.82, adapter / 2, Material::Housing);
    const double nozzle = std::min(reach * 0.45, flange * 1.6);
    const Vector behind = tip.at - tip.turn.z * nozzle;
    const double thick = std::min(flange * 0.5, reach * 0.25);
    addRod(&mesh, {0, 0, adapter}, behind, thick);
    addTurned(&mesh, {tip.turn, behind},
              {{0, 0},
               {0, thick * 1.15},
               {nozzle * 0.3, thick * 1.15},
               {nozzle * 0.42, thick * 0.7},
               {nozzle, thick * 0.12},
               {nozzle, 0}},
              Material::Metal);
    return mesh;
}

Mesh frameMesh(double size) {
    Mesh mesh;
    addArrow(&mesh, {1, 0, 0}, size, Material::AxisX);
    addArrow(&mesh, {0, 1, 0}, size, Material::AxisY);
    addArrow(&mesh, {0, 0, 1}, size, Material::AxisZ);
    return mesh;
}

} // namespace view
} // namespace pendant
