#pragma once

#include "camera.h"
#include "mesh.h"

#include <QColor>

#include <array>
#include <vector>

namespace pendant {
namespace view {

/// The colours of a picture.
struct Colours {
    std::array<QColor, materials> surfaces; ///< by material
    QColor sky;                             ///< above the horizon
    QColor ground;                          ///< of the room
    QColor floor;                           ///< around the robot
    QColor grid;
    QColor shadow;
    QColor text;
    QColor dimText;
    QColor halo; ///< around text that stands on the picture
    QColor point;
    QColor selected;
    QColor trace;
    QColor edge; ///< around the picture
};

bool operator==(const Colours& one, const Colours& other);

/// The colour of every material for every way that it may lie to the eye. The light comes from above and over the left
/// shoulder of who looks.
class Shading {
public:
    /// Reckons anew only when something changed.
    void prepare(const Colours& colours, const Camera& camera);
    /// By Surface::index().
    const QRgb* table() const { return m_table.data(); }

private:
    struct Light {
        float diffuse;
        float shine;
    };

    static Light lightOn(const Vector& normal, const Vector& up);

    Colours m_colours;
    double m_elevationDeg = -1;
    std::vector<QRgb> m_table;
};

} // namespace view
} // namespace pendant
