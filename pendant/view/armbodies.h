#pragma once

#include "armchain.h"
#include "mesh.h"

namespace pendant {
namespace view {

/// What a body is fixed to.
struct Anchor {
    enum Kind { World, Rail, Carriage, Foot, Link, Flange };

    Kind kind;
    int index = 0; ///< of the external axis or of the link

    Place inWorld(const ArmGeometry& arm, const ArmChain& chain) const;
};

/// A part of the picture that does not change its shape.
struct Body {
    Anchor anchor;
    Mesh mesh;
};

/// How thick the parts of an arm look right; all follow from its lengths.
class ArmSizes {
public:
    explicit ArmSizes(const ArmGeometry& arm);

    /// Of the arm from joint to joint.
    double size() const { return m_size; }
    /// Of the housing of the joint of that index.
    double radius(int joint) const { return m_radii.at(joint); }
    /// Of the flange.
    double flange() const { return m_flange; }

private:
    double m_size;
    double m_flange;
    QVector<double> m_radii;
};

/// The arm from its foot to its flange.
std::vector<Body> armBodies(const ArmGeometry& arm);
/// A tool on the flange whose tip is at `tip`; empty when that is the flange.
Mesh toolMesh(const ArmGeometry& arm, const Place& tip);
/// What the arm and the work objects stand on.
std::vector<Body> groundBodies(const ArmGeometry& arm);
/// Three arrows, red, green and blue along X, Y and Z.
Mesh frameMesh(double size);

} // namespace view
} // namespace pendant
