#include "shading.h"

#include "rasteriser.h"

#include <algorithm>
#include <cmath>

namespace pendant {
namespace view {

namespace {

const Vector keyLight = normalised({-0.55, 0.65, 0.75});
const Vector rimLight = normalised({0.8, 0.1, -0.35});

double power16(double value) {
    const double square = value * value;
    const double fourth = square * square;
    const double eighth = fourth * fourth;
    return eighth * eighth;
}

// What a material throws back like a mirror.
double gloss(int material) {
    const double glosses[materials] = {0.22, 0.16, 0.5, 0.2, 0.06, 0.15, 0.15, 0.15};
    return glosses[material];
}

int channel(int base, double diffuse, double shine) {
    return std::min(int(base * diffuse + 255 * shine), 255);
}

// Of a step towards the eye's right and down; what lies outside of the ball is taken for its rim.
Vector normalAt(int x, int y) {
    const double half = (Surface::steps - 1) / 2.0;
    const double right = (x - half) / half;
    const double up = (half - y) / half;
    const double outside = right * right + up * up;
    if (outside >= 1)
        return normalised({right, up, 0});
    return {right, up, std::sqrt(1 - outside)};
}

} // namespace

bool operator==(const Colours& one, const Colours& other) {
    return one.surfaces == other.surfaces && one.sky == other.sky && one.ground == other.ground &&
           one.floor == other.floor && one.grid == other.grid && one.shadow == other.shadow && one.text == other.text &&
           one.dimText == other.dimText && one.halo == other.halo && one.point == other.point &&
           one.selected == other.selected && one.trace == other.trace && one.edge == other.edge;
}

void Shading::prepare(const Colours& colours, const Camera& camera) {
    if (!m_table.empty() && colours == m_colours && camera.elevationDeg() == m_elevationDeg)
        return;
    m_colours = colours;
    m_elevationDeg = camera.elevationDeg();
    m_table.resize(Surface::indices);
    const Vector up = inverse(camera.basis()) * Vector{0, 0, 1};
    const int normals = Surface::steps * Surface::steps;
    for (int i = 0; i < normals; ++i) {
        const Light light = lightOn(normalAt(i % Surface::steps, i / Surface::steps), up);
        for (int material = 0; material < materials; ++material) {
            const QRgb base = colours.surfaces[size_t(material)].rgb();
            const double shine = light.shine * gloss(material);
            m_table[size_t(material * normals + i)] =
                qRgb(channel(qRed(base), light.diffuse, shine), channel(qGreen(base), light.diffuse, shine),
                     channel(qBlue(base), light.diffuse, shine));
        }
    }
}

Shading::Light Shading::lightOn(const Vector& normal, const Vector& up) {
    const double sky = 0.5 + 0.5 * dot(normal, up);
    const double key = std::max(dot(normal, keyLight), 0.0);
    const double rim = std::max(dot(normal, rimLight), 0.0);
    const Vector halfway = normalised(keyLight + Vector{0, 0, 1});
    const double shine = power16(std::max(dot(normal, halfway), 0.0));
    const double diffuse = 0.3 + 0.29 * sky + 0.42 * key + 0.1 * rim - 0.12 * (1 - normal.z);
    return {float(diffuse), float(shine)};
}

} // namespace view
} // namespace pendant
