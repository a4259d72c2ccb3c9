#pragma once

#include "camera.h"
#include "mesh.h"

#include <QImage>

namespace pendant {
namespace view {

/// What the robot keeps the light of the ceiling from: its outline, straight below it on the floor, with soft edges.
class Shadow {
public:
    /// Pixels of the picture that one of the mask is wide.
    static constexpr int coarseness = 2;

    void begin(const QSize& picture);
    void draw(const Mesh& mesh, const Place& place, const Camera& camera);
    /// Softens the edges. Of 8 bits: how dark.
    const QImage& finish();
    /// Of the mask that is not light all over.
    QRect touched() const { return m_touched; }

private:
    void fill(const QPointF& a, const QPointF& b, const QPointF& c);
    void soften(int radius);

    QImage m_mask;
    QImage m_other;
    QRect m_touched;
    std::vector<QPointF> m_corners;
};

} // namespace view
} // namespace pendant
