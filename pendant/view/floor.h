#pragma once

#include "camera.h"
#include "shading.h"

#include <QImage>

class QPainter;

namespace pendant {
namespace view {

/// The room behind the robot and the floor below it, with a grid. Drawn once for each way to look at it.
class Floor {
public:
    /// \param radiusMm how far around the world's origin the grid goes
    const QImage& picture(const Camera& camera, const Colours& colours, double radiusMm);

    /// From line to line: a round number of mm.
    static double spacing(double radiusMm);

private:
    void draw(const Camera& camera, const Colours& colours, double radiusMm);

    QImage m_picture;
    Camera m_camera;
    Colours m_colours;
    double m_radiusMm = 0;
};

} // namespace view
} // namespace pendant
