#pragma once

#include "camera.h"
#include "mesh.h"

#include <QRect>
#include <QSize>

namespace pendant {
namespace view {

/// What is seen at a sample: nothing, or a material and how its surface lies to the eye.
class Surface {
public:
    /// Steps from one side of the ball of normals to the other.
    static constexpr int steps = 128;

    /// \param x, y of the normal towards the eye, in steps
    static std::uint32_t of(Material material, int x, int y) {
        return covered | std::uint32_t(int(material) << 14 | (y & 127) << 7 | (x & 127));
    }
    static bool isCovered(std::uint32_t surface) { return surface != 0; }
    /// Counts materials and normals.
    static std::uint32_t index(std::uint32_t surface) { return surface & (covered - 1); }
    static constexpr int indices = materials * steps * steps;

private:
    static constexpr std::uint32_t covered = 1u << 17;
};

/// Meshes as samples of surfaces, the nearest of each.
class Rasteriser {
public:
    /// Empties it. Only what was drawn before is cleaned, so that a small robot is quick.
    void begin(const QSize& samples);
    /// \param perPixel samples that a pixel of the camera is wide
    void draw(const Mesh& mesh, const Place& place, const Camera& camera, double perPixel);

    QSize size() const { return m_size; }
    /// The samples that something may have been drawn to.
    QRect touched() const { return m_touched; }
    const std::uint32_t* row(int y) const { return m_surfaces.data() + size_t(y) * size_t(m_size.width()); }
    /// Of the nearest surface, the greater the nearer: 1 / mm; 0 where there is none.
    float nearness(int x, int y) const { return m_nearness[size_t(y) * size_t(m_size.width()) + size_t(x)]; }

private:
    struct Corner {
        float x, y;     // in samples
        float nearness; // negative: behind the eye
        float u, v;     // of the normal, in steps
    };

    // A value that grows evenly over a triangle.
    struct Slope {
        float x;
        float y;
        float at(float value, float dx, float dy) const { return value + x * dx + y * dy; }
    };
    struct Face {
        const Corner* corner;
        Slope nearness, u, v;
        Material material;
    };

    void project(const Mesh& mesh, const Place& place, const Camera& camera, double perPixel);
    void fill(const Corner& a, const Corner& b, const Corner& c, Material material);
    void fillRows(const Face& face, const Corner& top, const Corner& middle, const Corner& bottom);
    void fillRow(const Face& face, int y, int first, int end);

    QSize m_size;
    QRect m_touched;
    std::vector<std::uint32_t> m_surfaces;
    std::vector<float> m_nearness;
    std::vector<Corner> m_corners;
};

} // namespace view
} // namespace pendant
