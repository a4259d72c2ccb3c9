#include "solids.h"

#include <algorithm>
#include <cmath>

namespace pendant {
namespace view {

namespace {

// Two faces of a profile that meet at less than this are one smooth face.
const double smoothCosine = std::cos(40 * M_PI / 180);

struct Direction2 {
    double along;
    double outwards;
};

std::array<float, 3> floats(const Vector& vector) {
    return {float(vector.x), float(vector.y), float(vector.z)};
}

std::uint32_t addVertex(Mesh* mesh, const Place& place, const Vector& at, const Vector& normal) {
    mesh->vertices.push_back({floats(place * at), floats(place.turn * normal)});
    return std::uint32_t(mesh->vertices.size() - 1);
}

// Between two rings of `count` vertices each that begin at `lower` and `upper`.
void addBand(Mesh* mesh, std::uint32_t lower, std::uint32_t upper, int count, Material material) {
    for (int i = 0; i < count; ++i) {
        const auto here = std::uint32_t(i);
        const auto next = std::uint32_t((i + 1) % count);
        mesh->triangles.push_back({{lower + here, lower + next, upper + next}, material});
        mesh->triangles.push_back({{lower + here, upper + next, upper + here}, material});
    }
}

int segmentsFor(double radius) {
    return std::min(std::max(int(4 * std::sqrt(radius)), 10), 40);
}

Direction2 normalOf(const Corner& from, const Corner& to) {
    const double along = to.along - from.along;
    const double out = to.radius - from.radius;
    const double size = std::max(std::hypot(along, out), 1e-9);
    return {-out / size, along / size};
}

// The normal at the end of a face that the face `other` goes on from.
Direction2 softened(const Direction2& face, const Direction2& other) {
    if (face.along * other.along + face.outwards * other.outwards < smoothCosine)
        return face;
    const Direction2 sum{face.along + other.along, face.outwards + other.outwards};
    const double size = std::hypot(sum.along, sum.outwards);
    return {sum.along / size, sum.outwards / size};
}

std::uint32_t addCircle(Mesh* mesh, const Place& place, const Corner& corner, const Direction2& normal, int count) {
    const auto first = std::uint32_t(mesh->vertices.size());
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * M_PI * i / count;
        const Vector out{std::cos(angle), std::sin(angle), 0};
        addVertex(mesh, place, out * corner.radius + Vector{0, 0, corner.along},
                  out * normal.outwards + Vector{0, 0, normal.along});
    }
    return first;
}

Vector onRing(const Ring& ring, double angle) {
    const auto bent = [&](double value) {
        return std::copysign(std::pow(std::abs(value), 2 / ring.squareness), value);
    };
    return ring.place * Vector{ring.halfX * bent(std::cos(angle)), ring.halfY * bent(std::sin(angle)), 0};
}

Vector normalOnRing(const std::vector<Ring>& rings, size_t ring, double angle, double step) {
    const Ring& before = rings.at(ring > 0 ? ring - 1 : 0);
    const Ring& after = rings.at(std::min(ring + 1, rings.size() - 1));
    const Vector around = onRing(rings.at(ring), angle + step) - onRing(rings.at(ring), angle - step);
    return normalised(cross(around, onRing(after, angle) - onRing(before, angle)));
}

void addCap(Mesh* mesh, const Ring& ring, int count, bool isUpper, Material material) {
    const Vector normal = isUpper ? ring.place.turn.z : -ring.place.turn.z;
    const std::uint32_t middle = addVertex(mesh, {}, ring.place.at, normal);
    for (int i = 0; i < count; ++i)
        addVertex(mesh, {}, onRing(ring, 2 * M_PI * i / count), normal);
    for (int i = 0; i < count; ++i) {
        const std::uint32_t here = middle + 1 + std::uint32_t(i);
        const std::uint32_t next = middle + 1 + std::uint32_t((i + 1) % count);
        if (isUpper)
            mesh->triangles.push_back({{middle, here, next}, material});
        else
            mesh->triangles.push_back({{middle, next, here}, material});
    }
}

} // namespace

void addTurned(Mesh* mesh, const Place& place, const std::vector<Corner>& profile, Material material) {
    double widest = 0;
    for (const Corner& corner : profile)
        widest = std::max(widest, corner.radius);
    const int count = segmentsFor(widest);
    for (size_t i = 0; i + 1 < profile.size(); ++i) {
        const Direction2 face = normalOf(profile[i], profile[i + 1]);
        const Direction2 before = i > 0 ? normalOf(profile[i - 1], profile[i]) : face;
        const Direction2 after = i + 2 < profile.size() ? normalOf(profile[i + 1], profile[i + 2]) : face;
        const std::uint32_t lower = addCircle(mesh, place, profile[i], softened(face, before), count);
        const std::uint32_t upper = addCircle(mesh, place, profile[i + 1], softened(face, after), count);
        addBand(mesh, lower, upper, count, material);
    }
}

void addDrum(Mesh* mesh, const Place& place, double radius, double halfLength, Material material) {
    const double edge = std::min(radius, halfLength) * 0.16;
    const double part = edge * (1 - std::sqrt(0.5));
    addTurned(mesh, place,
              {{-halfLength, 0},
               {-halfLength, radius - edge},
               {-halfLength + part, radius - part},
               {-halfLength + edge, radius},
               {halfLength - edge, radius},
               {halfLength - part, radius - part},
               {halfLength, radius - edge},
               {halfLength, 0}},
              material);
}

void addLoft(Mesh* mesh, const std::vector<Ring>& rings, Material material) {
    double widest = 0;
    for (const Ring& ring : rings)
        widest = std::max({widest, ring.halfX, ring.halfY});
    const int count = segmentsFor(widest * 1.2);
    const double step = 2 * M_PI / count;
    std::uint32_t before = 0;
    for (size_t ring = 0; ring < rings.size(); ++ring) {
        const auto first = std::uint32_t(mesh->vertices.size());
        for (int i = 0; i < count; ++i)
            addVertex(mesh, {}, onRing(rings[ring], i * step), normalOnRing(rings, ring, i * step, step / 2));
        if (ring > 0)
            addBand(mesh, before, first, count, material);
        before = first;
    }
    addCap(mesh, rings.front(), count, false, material);
    addCap(mesh, rings.back(), count, true, material);
}

void addBlock(Mesh* mesh, const Place& place, double halfX, double halfY, double height, Material material) {
    const double edge = std::min({halfX, halfY, height}) * 0.08;
    const auto ring = [&](double z, double inset) {
        return Ring{place * Place{{}, {0, 0, z}}, halfX - inset, halfY - inset, 12};
    };
    addLoft(mesh, {ring(0, 0), ring(height - edge, 0), ring(height - edge * 0.3, edge * 0.3), ring(height, edge)},
            material);
}

} // namespace view
} // namespace pendant
