#include "armbodies.h"

#include "solids.h"

#include <algorithm>
#include <cmath>

namespace pendant {
namespace view {

namespace {

const double none = 1; // mm; what is shorter is no length

// The axis of the joint behind a link, seen from the link. That of the last is the flange's.
Vector nextAxis(const ArmGeometry& arm, int link) {
    const Place& next = arm.links.at(link).next;
    return link + 1 < arm.links.size() ? next.turn * arm.links.at(link + 1).axis : next.turn.z;
}

bool isAlong(const Vector& axis, const Vector& way) {
    return length(way) > none && std::abs(dot(axis, normalised(way))) > 0.8;
}

Mesh& meshOn(std::vector<Body>* bodies, Anchor anchor) {
    for (Body& body : *bodies) {
        if (body.anchor.kind == anchor.kind && body.anchor.index == anchor.index)
            return body.mesh;
    }
    bodies->push_back({anchor, {}});
    return bodies->back().mesh;
}

/// Puts the bodies of the links together, from joint to joint.
class Builder {
public:
    explicit Builder(const ArmGeometry& arm) : m_arm(arm), m_sizes(arm) {}

    std::vector<Body> build() {
        for (int i = 0; i < m_arm.links.size(); ++i)
            addLink(i);
        addFlange();
        return m_bodies;
    }

private:
    Vector way(int link) const { return m_arm.links.at(link).next.at; }
    Mesh& meshOf(int link) {
        return link < 0 ? meshOn(&m_bodies, {Anchor::Foot, 0}) : meshOn(&m_bodies, {Anchor::Link, link});
    }
    bool isRoll(int link) const { return isAlong(m_arm.links.at(link).axis, way(link)); }
    bool endsInRoll(int link) const {
        return link + 1 < m_arm.links.size() && !isRoll(link) && isAlong(nextAxis(m_arm, link), way(link));
    }

    void addLink(int link) {
        if (!isRoll(link))
            addPivot(link);
        if (length(way(link)) < none)
            return;
        if (isRoll(link))
            link == 0 ? addTurret() : addRoll(link);
        else
            endsInRoll(link) ? addForearm(link) : addArm(link);
    }

    // Of a joint that bends: a drum through the link, with a cap at each end.
    void addPivot(int link) {
        const double radius = m_sizes.radius(link);
        const Vector& axis = m_arm.links.at(link).axis;
        const Rotation turn = facing(axis, across(axis));
        Mesh& mesh = meshOf(link);
        addDrum(&mesh, {turn, {}}, radius, radius * 0.62, Material::Paint);
        addDrum(&mesh, {turn, {}}, radius * 0.74, radius * 1.12, Material::Housing);
    }

    // The end of a link at the joint behind it: what holds the drum.
    void addFork(int link, const Vector& at) {
        const double radius = m_sizes.radius(link + 1);
        const Vector axis = nextAxis(m_arm, link);
        addDrum(&meshOf(link), {facing(axis, across(axis)), at}, radius * 0.93, radius * 0.95, Material::Paint);
    }

    // The joint on the ground.
    void addTurret() {
        const Vector axis = m_arm.links.at(0).axis;
        const Vector up = along(way(0), axis);
        const double height = length(up);
        const double radius = m_sizes.radius(0);
        const Place base{facing(up, across(up)), {}};
        Mesh& foot = meshOf(-1);
        addTurned(&foot, base,
                  {{0, 0},
                   {0, radius * 1.22},
                   {height * 0.06, radius * 1.22},
                   {height * 0.09, radius * 1.1},
                   {height * 0.3, radius * 0.98},
                   {height * 0.3, 0}},
                  Material::Paint);
        Mesh& turret = meshOf(0);
        addDrum(&turret, base * Place{{}, {0, 0, height * 0.34}}, radius * 0.95, height * 0.05, Material::Housing);
        const double shoulder = m_arm.links.size() > 1 ? m_sizes.radius(1) : radius;
        const Vector across1 = nextAxis(m_arm, 0);
        const auto ring = [&](double share, double forward, double x, double y, double squareness) {
            const Vector at = up * share + (way(0) - up) * forward;
            return Ring{{facing(up, across1), at}, x, y, squareness};
        };
        addLoft(&turret,
                {ring(0.38, 0, radius * 0.9, radius * 0.9, 2), ring(0.42, 0, radius, radius, 2),
                 ring(0.55, 0.15, radius * 1.02, radius * 0.98, 2.3),
                 ring(0.8, 0.7, shoulder * 1.05, shoulder * 0.98, 2.8), ring(1, 1, shoulder * 0.9, shoulder * 0.93, 3)},
                Material::Paint);
        addFork(0, way(0));
    }

    // Between two joints that bend.
    void addArm(int link) {
        const double lower = m_sizes.radius(link);
        const double upper = link + 1 < m_arm.links.size() ? m_sizes.radius(link + 1) : m_sizes.flange();
        addLimb(&meshOf(link), m_arm.links.at(link).axis, {}, way(link), lower, upper);
        if (link + 1 < m_arm.links.size())
            addFork(link, way(link));
    }

    static void addLimb(Mesh* mesh, const Vector& axis, const Vector& from, const Vector& to, double lower,
                        double upper) {
        const Rotation turn = facing(to - from, axis);
        const auto ring = [&](double share, double x, double y) {
            return Ring{{turn, mixed(from, to, share)}, x, y, 3.2};
        };
        const double waist = (lower + upper) / 2;
        addLoft(mesh,
                {ring(0, lower * 0.93, lower * 0.6), ring(0.1, lower * 0.93, lower * 0.62),
                 ring(0.3, waist * 0.84, waist * 0.64), ring(0.65, waist * 0.76, waist * 0.66),
                 ring(0.9, upper * 0.92, upper * 0.8), ring(1, upper * 0.9, upper * 0.85)},
                Material::Paint);
    }

    // Up to a joint that turns about the arm itself: that turns its front part.
    void addForearm(int link) {
        const Vector axis = normalised(nextAxis(m_arm, link));
        const Vector tube = along(way(link), axis);
        const Vector start = way(link) - tube;
        const double elbow = m_sizes.radius(link);
        const double share = 0.36;
        Mesh& rear = meshOf(link);
        const Rotation turn = facing(tube, m_arm.links.at(link).axis);
        const auto ring = [&](double at, double x, double y) { return Ring{{turn, start + tube * at}, x, y, 2.8}; };
        const double back = -elbow * 0.95 / length(tube);
        addLoft(&rear,
                {ring(back - 0.012, elbow * 0.56, elbow * 0.62), ring(back, elbow * 0.7, elbow * 0.76),
                 ring(back * 0.4, elbow * 0.84, elbow * 0.98),
                 ring(elbow * 0.6 / length(tube), elbow * 0.86, elbow * 0.98),
                 ring(share * 0.55, elbow * 0.78, elbow * 0.8), ring(share * 0.9, elbow * 0.66, elbow * 0.66),
                 ring(share, elbow * 0.64, elbow * 0.64)},
                Material::Paint);
        if (length(start) > elbow * 0.4)
            addLimb(&rear, m_arm.links.at(link).axis, {}, start, elbow, elbow);
        addFront(link, tube, share);
    }

    void addFront(int link, const Vector& tube, double share) {
        const Rotation back = inverse(m_arm.links.at(link).next.turn);
        const Vector whole = back * tube;
        const double elbow = m_sizes.radius(link);
        const double wrist = m_sizes.radius(link + 1);
        Mesh& front = meshOf(link + 1);
        const Place start{facing(whole, across(whole)), whole * (share - 1)};
        const double run = length(whole) * (1 - share);
        addDrum(&front, start * Place{{}, {0, 0, elbow * 0.1}}, elbow * 0.6, elbow * 0.16, Material::Housing);
        addTurned(&front, start,
                  {{elbow * 0.2, 0},
                   {elbow * 0.2, elbow * 0.52},
                   {elbow * 0.3, elbow * 0.58},
                   {run * 0.3, elbow * 0.54},
                   {run - wrist * 1.2, wrist * 0.86},
                   {run - wrist * 0.4, wrist * 0.8},
                   {run - wrist * 0.4, 0}},
                  Material::Paint);
        addFork(link + 1, {});
    }

    // Turns what is behind it, out of a neck of the link before.
    void addRoll(int link) {
        const bool isLast = link + 1 == m_arm.links.size();
        const double share = isLast ? 0.82 : 0.24;
        const double from = m_sizes.radius(link - 1);
        const Vector whole = way(link);
        const Place start{facing(whole, across(whole)), {}};
        const double run = length(whole);
        const double neck = isLast ? m_sizes.flange() * 1.12 : from * 0.7;
        addTurned(&meshOf(link - 1), start,
                  {{0, 0}, {0, from * 0.8}, {run * share * 0.75, neck}, {run * share, neck * 0.97}, {run * share, 0}},
                  Material::Paint);
        if (isLast)
            return;
        addDrum(&meshOf(link), start * Place{{}, {0, 0, run * share}}, neck, run * 0.02, Material::Housing);
        addLimb(&meshOf(link), nextAxis(m_arm, link), whole * (share + 0.01), whole, neck, m_sizes.radius(link + 1));
        addFork(link, whole);
    }

    void addFlange() {
        if (m_arm.links.isEmpty())
            return;
        const int last = m_arm.links.size() - 1;
        const double thick = std::min(m_sizes.flange() * 0.5, std::max(length(way(last)) * 0.18, none));
        addDrum(&meshOn(&m_bodies, {Anchor::Flange, 0}), {{}, {0, 0, -thick / 2}}, m_sizes.flange(), thick / 2,
                Material::Metal);
    }

    ArmGeometry m_arm;
    ArmSizes m_sizes;
    std::vector<Body> m_bodies;
};

} // namespace

Place Anchor::inWorld(const ArmGeometry& arm, const ArmChain& chain) const {
    switch (kind) {
    case World:
        return {};
    case Rail:
        return chain.inWorld(arm.externals.at(index).mount);
    case Carriage:
        return chain.external(index);
    case Foot:
        return chain.foot();
    case Link:
        return chain.link(index);
    case Flange:
        return chain.flange();
    }
    return {};
}

// Joints get slimmer towards the flange, and none is thicker than the way to the next leaves it.
ArmSizes::ArmSizes(const ArmGeometry& arm) : m_size(std::max(arm.size(), none)) {
    double rest = m_size;
    for (const view::Link& link : arm.links) {
        m_radii.append(m_size * (0.027 + 0.043 * rest / m_size));
        rest -= length(link.next.at);
    }
    const double hand = arm.links.isEmpty() ? 0 : length(arm.links.last().next.at);
    for (double& radius : m_radii) {
        if (hand > none && radius < m_size * 0.035)
            radius = std::min(radius, std::max(hand * 0.58, m_size * 0.015));
    }
    m_flange = (m_radii.isEmpty() ? m_size * 0.03 : m_radii.last()) * 0.72;
}

std::vector<Body> armBodies(const ArmGeometry& arm) {
    return Builder(arm).build();
}

} // namespace view
} // namespace pendant
