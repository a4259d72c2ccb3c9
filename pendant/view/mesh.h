#pragma once

#include "spatial.h"

#include <array>
#include <cstdint>
#include <vector>

namespace pendant {
namespace view {

/// What a surface is made of.
enum class Material : std::uint8_t { Paint, Housing, Metal, Tool, Ground, AxisX, AxisY, AxisZ };
constexpr int materials = 8;

struct Vertex {
    std::array<float, 3> at;
    std::array<float, 3> normal; ///< outwards, of length 1
};

struct Triangle {
    std::array<std::uint32_t, 3> corners; ///< seen from outside they go round to the left
    Material material;
};

/// Closed surfaces of solids.
struct Mesh {
    std::vector<Vertex> vertices;
    std::vector<Triangle> triangles;
};

} // namespace view
} // namespace pendant
