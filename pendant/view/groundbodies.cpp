#include "armbodies.h"
#include "solids.h"

#include <algorithm>
#include <cmath>

namespace pendant {
namespace view {

namespace {

const double least = 20; // mm above the floor that need no plinth

// From the floor up to what stands there.
void addPlinth(std::vector<Body>* bodies, const Place& top, double half, double gap) {
    const double height = top.at.z - gap;
    if (height < least || top.turn.z.z < 0.5)
        return;
    Body plinth{{Anchor::World, 0}, {}};
    const Place floor{facing({0, 0, 1}, top.turn.y), {top.at.x, top.at.y, 0}};
    addBlock(&plinth.mesh, floor, half, half, height, Material::Ground);
    bodies->push_back(plinth);
}

// The way of a rail, a bit longer than what stands on it goes.
struct Way {
    double from;
    double to;
};

Way wayOf(const External& rail, double size) {
    const bool isKnown = rail.maximum > rail.minimum;
    const double spare = size * 0.13;
    return {(isKnown ? rail.minimum : -size / 2) - spare, (isKnown ? rail.maximum : size / 2) + spare};
}

void addBeam(Mesh* mesh, const External& rail, const Way& way, const Rotation& turn, const Vector& beside, double halfX,
             double halfY, Material material) {
    addLoft(mesh,
            {{{turn, rail.axis * way.from + beside}, halfX, halfY, 8},
             {{turn, rail.axis * way.to + beside}, halfX, halfY, 8}},
            material);
}

// Under a rail that lies level.
void addLegs(std::vector<Body>* bodies, const External& rail, const Way& way, double width, double gap) {
    const Place& place = rail.mount.place;
    if (rail.mount.on != Mount::world || std::abs((place.turn * rail.axis).z) > 0.1)
        return;
    const int gaps = std::max(int((way.to - way.from) / (width * 10)), 1);
    for (int i = 0; i <= gaps; ++i) {
        const double along = way.from + width + (way.to - way.from - 2 * width) * i / gaps;
        addPlinth(bodies, {place.turn, place * (rail.axis * along)}, width * 0.6, gap);
    }
}

// How high a rail may be, so that it fits between what it carries and the floor.
double heightOf(const External& rail, double size) {
    const double usual = size * 0.11;
    const double room = rail.mount.place.at.z;
    return rail.mount.on == Mount::world && room > least ? std::min(usual, room) : usual;
}

// Y of the rail points up.
void addRail(std::vector<Body>* bodies, const ArmGeometry& arm, int index, double size) {
    const External& rail = arm.externals.at(index);
    const Way way = wayOf(rail, size);
    const double width = size * (arm.foot.on == index ? 0.11 : 0.06);
    const double height = heightOf(rail, size);
    const Rotation turn = facing(rail.axis, {0, 0, 1});
    Body fixed{{Anchor::Rail, index}, {}};
    for (const double side : {-0.75, 0.75})
        addBeam(&fixed.mesh, rail, way, turn, turn.x * (width * side) - turn.y * (height * 0.5), width * 0.14,
                height * 0.26, Material::Metal);
    addBeam(&fixed.mesh, rail, way, turn, turn.y * (-height * 0.84), width, height * 0.16, Material::Ground);
    bodies->push_back(fixed);
    Body moving{{Anchor::Carriage, index}, {}};
    addBlock(&moving.mesh, {facing(turn.y, rail.axis), turn.y * (-height * 0.24)}, width * 1.05, width * 1.1,
             height * 0.24, Material::Housing);
    bodies->push_back(moving);
    addLegs(bodies, rail, way, width, height);
}

bool carriesAnother(const ArmGeometry& arm, int index) {
    return std::any_of(arm.externals.begin(), arm.externals.end(),
                       [index](const External& external) { return external.mount.on == index; });
}

// Tilts what it carries.
void addTrunnion(std::vector<Body>* bodies, const ArmGeometry& arm, int index, double size) {
    const Vector axis = arm.externals.at(index).axis;
    const Rotation turn = facing(axis, across(axis));
    Body fixed{{Anchor::Rail, index}, {}};
    addDrum(&fixed.mesh, {turn, axis * (size * 0.15)}, size * 0.06, size * 0.035, Material::Housing);
    bodies->push_back(fixed);
    Body moving{{Anchor::Carriage, index}, {}};
    addDrum(&moving.mesh, {turn, axis * (size * 0.04)}, size * 0.042, size * 0.085, Material::Metal);
    bodies->push_back(moving);
}

void addTable(std::vector<Body>* bodies, const ArmGeometry& arm, int index, double size) {
    const Vector axis = arm.externals.at(index).axis;
    const Place lower{facing(axis, across(axis)), {}};
    const double radius = size * 0.12;
    Body moving{{Anchor::Carriage, index}, {}};
    addDrum(&moving.mesh, lower * Place{{}, {0, 0, -size * 0.012}}, radius, size * 0.012, Material::Metal);
    bodies->push_back(moving);
    Body fixed{{Anchor::Rail, index}, {}};
    addDrum(&fixed.mesh, lower * Place{{}, {0, 0, -size * 0.05}}, radius * 0.72, size * 0.026, Material::Housing);
    bodies->push_back(fixed);
}

void addExternal(std::vector<Body>* bodies, const ArmGeometry& arm, int index, double size) {
    const External& external = arm.externals.at(index);
    if (external.isLinear)
        return addRail(bodies, arm, index, size);
    const bool tilts = carriesAnother(arm, index);
    tilts ? addTrunnion(bodies, arm, index, size) : addTable(bodies, arm, index, size);
    if (external.mount.on != Mount::world)
        return;
    const Place top = external.mount.place * Place{{}, external.axis * (tilts ? size * 0.15 : 0)};
    addPlinth(bodies, top, size * (tilts ? 0.035 : 0.06), tilts ? 0 : size * 0.07);
}

} // namespace

std::vector<Body> groundBodies(const ArmGeometry& arm) {
    std::vector<Body> bodies;
    const double size = std::max(arm.size(), 1.0);
    for (int i = 0; i < arm.externals.size(); ++i)
        addExternal(&bodies, arm, i, size);
    if (arm.foot.on == Mount::world)
        addPlinth(&bodies, arm.foot.place, size * 0.11, 0);
    return bodies;
}

} // namespace view
} // namespace pendant
