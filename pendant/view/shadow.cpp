#include "shadow.h"

#include <algorithm>
#include <cmath>

namespace pendant {
namespace view {

namespace {

const int softness = 3; // pixels of the mask
const QPointF unseen(-1e300, -1e300);

// What is nearly in the eye is very far outside.
int firstPixel(double edge) {
    return int(std::ceil(std::min(std::max(edge, -1e6), 1e6) - 0.5));
}

// Sums of the neighbours along a row or a column, `step` bytes apart.
void blurLine(const uchar* from, uchar* to, int count, int step, int radius) {
    const int width = 2 * radius + 1;
    int sum = 0;
    for (int i = -radius; i < count; ++i) {
        if (i + radius < count)
            sum += from[(i + radius) * step];
        if (i - radius - 1 >= 0)
            sum -= from[(i - radius - 1) * step];
        if (i >= 0)
            to[i * step] = uchar(sum / width);
    }
}

} // namespace

void Shadow::begin(const QSize& picture) {
    const QSize size((picture.width() + coarseness - 1) / coarseness, (picture.height() + coarseness - 1) / coarseness);
    if (m_mask.size() != size) {
        m_mask = QImage(size, QImage::Format_Grayscale8);
        m_other = QImage(size, QImage::Format_Grayscale8);
        m_other.fill(0);
    }
    m_mask.fill(0);
    m_touched = QRect();
}

void Shadow::draw(const Mesh& mesh, const Place& place, const Camera& camera) {
    m_corners.clear();
    for (const Vertex& vertex : mesh.vertices) {
        Vector at = place * Vector{vertex.at[0], vertex.at[1], vertex.at[2]};
        at.z = 0;
        m_corners.push_back(camera.sees(at) ? camera.pixel(at) / coarseness : unseen);
    }
    for (const Triangle& triangle : mesh.triangles) {
        const QPointF& a = m_corners[triangle.corners[0]];
        const QPointF& b = m_corners[triangle.corners[1]];
        const QPointF& c = m_corners[triangle.corners[2]];
        if (a != unseen && b != unseen && c != unseen)
            fill(a, b, c);
    }
}

// Closed solids cast the same shadow with the half of their faces that look up.
void Shadow::fill(const QPointF& a, const QPointF& b, const QPointF& c) {
    if ((c.x() - a.x()) * (b.y() - a.y()) - (b.x() - a.x()) * (c.y() - a.y()) <= 0)
        return;
    const double top = std::min({a.y(), b.y(), c.y()});
    const double bottom = std::max({a.y(), b.y(), c.y()});
    const int firstY = std::max(firstPixel(top), 0);
    const int lastY = std::min(firstPixel(bottom), m_mask.height()) - 1;
    const QPointF* corners[] = {&a, &b, &c, &a};
    for (int y = firstY; y <= lastY; ++y) {
        const double centre = y + 0.5;
        double left = 1e9;
        double right = -1e9;
        for (int i = 0; i < 3; ++i) {
            const QPointF& from = *corners[i];
            const QPointF& to = *corners[i + 1];
            if ((from.y() <= centre) == (to.y() <= centre))
                continue;
            const double x = from.x() + (to.x() - from.x()) * (centre - from.y()) / (to.y() - from.y());
            left = std::min(left, x);
            right = std::max(right, x);
        }
        const int first = std::max(firstPixel(left), 0);
        const int end = std::min(firstPixel(right), m_mask.width());
        if (first >= end)
            continue;
        std::fill(m_mask.scanLine(y) + first, m_mask.scanLine(y) + end, uchar(255));
        m_touched |= QRect(first, y, end - first, 1);
    }
}

const QImage& Shadow::finish() {
    if (!m_touched.isEmpty()) {
        const int reach = 2 * softness;
        m_touched = m_touched.adjusted(-reach, -reach, reach, reach) & m_mask.rect();
        soften(softness);
        soften(softness);
    }
    return m_mask;
}

void Shadow::soften(int radius) {
    for (int y = m_touched.top(); y <= m_touched.bottom(); ++y)
        blurLine(m_mask.constScanLine(y) + m_touched.left(), m_other.scanLine(y) + m_touched.left(), m_touched.width(),
                 1, radius);
    const int rowBytes = int(m_mask.bytesPerLine());
    const int offset = m_touched.top() * rowBytes;
    for (int x = m_touched.left(); x <= m_touched.right(); ++x)
        blurLine(m_other.constBits() + offset + x, m_mask.bits() + offset + x, m_touched.height(), rowBytes, radius);
}

} // namespace view
} // namespace pendant
