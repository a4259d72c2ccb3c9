#pragma once

#include "mesh.h"

namespace pendant {
namespace view {

/// A corner of a profile: so far along the axis, so far from it.
struct Corner {
    double along;
    double radius;
};

/// A cross section: an ellipse when `squareness` is 2, nearer to a rectangle the greater it is. Z goes on to the next.
struct Ring {
    Place place;
    double halfX;
    double halfY;
    double squareness = 2;
};

/// What is turned about Z of `place`. The profile begins and ends on the axis; blunt corners are rounded off.
void addTurned(Mesh* mesh, const Place& place, const std::vector<Corner>& profile, Material material);
/// A cylinder with soft edges around Z, its middle at `place`.
void addDrum(Mesh* mesh, const Place& place, double radius, double halfLength, Material material);
/// The skin over the rings, closed at its ends.
void addLoft(Mesh* mesh, const std::vector<Ring>& rings, Material material);
/// A box with the middle of its lower face at `place`.
void addBlock(Mesh* mesh, const Place& place, double halfX, double halfY, double height, Material material);

} // namespace view
} // namespace pendant
