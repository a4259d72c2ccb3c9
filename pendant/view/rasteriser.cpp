#include "rasteriser.h"

#include <algorithm>
#include <cmath>

namespace pendant {
namespace view {

namespace {

// A normal does not turn more than once around from one sample to the next.
const float steepest = 2 * Surface::steps;
const float speck = 1e-4F; // samples; a triangle that small shows nothing

// What is nearly in the eye is that far outside.
const float farthest = 1e6F;

int firstSample(float edge) {
    return int(std::ceil(std::min(std::max(edge, -farthest), farthest) - 0.5F));
}

// Where the edge from one corner to another, which is lower, is at a height.
float edgeAt(float fromX, float fromY, float toX, float toY, float y) {
    const float height = toY - fromY;
    return height > 0 ? fromX + (toX - fromX) * (y - fromY) / height : fromX;
}

// 16 bits before the point and after it.
int fixed(float value) {
    return int(std::min(std::max(value, -steepest), steepest) * 65536);
}

} // namespace

void Rasteriser::begin(const QSize& samples) {
    if (samples != m_size) {
        m_size = samples;
        const size_t count = size_t(samples.width()) * size_t(samples.height());
        m_surfaces.assign(count, 0);
        m_nearness.assign(count, 0);
        m_touched = QRect();
    }
    for (int y = m_touched.top(); y <= m_touched.bottom(); ++y) {
        const size_t first = size_t(y) * size_t(m_size.width()) + size_t(m_touched.left());
        const auto count = size_t(m_touched.width());
        std::fill_n(m_surfaces.begin() + first, count, 0);
        std::fill_n(m_nearness.begin() + first, count, 0.F);
    }
    m_touched = QRect();
}

void Rasteriser::draw(const Mesh& mesh, const Place& place, const Camera& camera, double perPixel) {
    project(mesh, place, camera, perPixel);
    for (const Triangle& triangle : mesh.triangles) {
        const Corner& a = m_corners[triangle.corners[0]];
        const Corner& b = m_corners[triangle.corners[1]];
        const Corner& c = m_corners[triangle.corners[2]];
        if (a.nearness > 0 && b.nearness > 0 && c.nearness > 0)
            fill(a, b, c, triangle.material);
    }
}

void Rasteriser::project(const Mesh& mesh, const Place& place, const Camera& camera, double perPixel) {
    const Place eye{camera.basis(), camera.eye()};
    const Place seen = inverse(eye) * place;
    const Rotation rows = inverse(seen.turn);
    const float r[3][3] = {{float(rows.x.x), float(rows.x.y), float(rows.x.z)},
                           {float(rows.y.x), float(rows.y.y), float(rows.y.z)},
                           {float(rows.z.x), float(rows.z.y), float(rows.z.z)}};
    const float at[3] = {float(seen.at.x), float(seen.at.y), float(seen.at.z)};
    const auto focal = float(camera.focalPixels() * perPixel);
    const auto middleX = float(m_size.width()) / 2;
    const auto middleY = float(m_size.height()) / 2;
    const float half = float(Surface::steps - 1) / 2;
    m_corners.resize(mesh.vertices.size());
    Corner* corner = m_corners.data();
    for (const Vertex& vertex : mesh.vertices) {
        const auto turned = [&](const std::array<float, 3>& v, int row) {
            return r[row][0] * v[0] + r[row][1] * v[1] + r[row][2] * v[2];
        };
        const float depth = -(turned(vertex.at, 2) + at[2]);
        const float nearness = depth > float(Camera::nearestMm) ? 1 / depth : -1;
        const float scale = focal * nearness;
        *corner++ = {middleX + (turned(vertex.at, 0) + at[0]) * scale, middleY - (turned(vertex.at, 1) + at[1]) * scale,
                     nearness, half + turned(vertex.normal, 0) * half, half - turned(vertex.normal, 1) * half};
    }
}

void Rasteriser::fill(const Corner& a, const Corner& b, const Corner& c, Material material) {
    const float area = (c.x - a.x) * (b.y - a.y) - (b.x - a.x) * (c.y - a.y);
    if (area < speck)
        return;
    const auto slope = [&](float Corner::*value) {
        const float ab = b.*value - a.*value;
        const float ac = c.*value - a.*value;
        return Slope{(ac * (b.y - a.y) - ab * (c.y - a.y)) / area, (ab * (c.x - a.x) - ac * (b.x - a.x)) / area};
    };
    const Face face{&a, slope(&Corner::nearness), slope(&Corner::u), slope(&Corner::v), material};
    const Corner* top = &a;
    const Corner* middle = &b;
    const Corner* bottom = &c;
    if (middle->y < top->y)
        std::swap(middle, top);
    if (bottom->y < middle->y)
        std::swap(bottom, middle);
    if (middle->y < top->y)
        std::swap(middle, top);
    fillRows(face, *top, *middle, *bottom);
}

void Rasteriser::fillRows(const Face& face, const Corner& top, const Corner& middle, const Corner& bottom) {
    const int firstY = std::max(firstSample(top.y), 0);
    const int lastY = std::min(firstSample(bottom.y), m_size.height()) - 1;
    int leftMost = m_size.width();
    int rightMost = -1;
    for (int y = firstY; y <= lastY; ++y) {
        const float centre = float(y) + 0.5F;
        const float longEdge = edgeAt(top.x, top.y, bottom.x, bottom.y, centre);
        const float shortEdge = centre < middle.y ? edgeAt(top.x, top.y, middle.x, middle.y, centre)
                                                  : edgeAt(middle.x, middle.y, bottom.x, bottom.y, centre);
        const int first = std::max(firstSample(std::min(longEdge, shortEdge)), 0);
        const int end = std::min(firstSample(std::max(longEdge, shortEdge)), m_size.width());
        if (first >= end)
            continue;
        leftMost = std::min(leftMost, first);
        rightMost = std::max(rightMost, end - 1);
        fillRow(face, y, first, end);
    }
    if (rightMost >= leftMost)
        m_touched |= QRect(QPoint(leftMost, firstY), QPoint(rightMost, lastY));
}

// The values of a sample follow from the slopes of the whole face.
void Rasteriser::fillRow(const Face& face, int y, int first, int end) {
    const float dx = float(first) + 0.5F - face.corner->x;
    const float dy = float(y) + 0.5F - face.corner->y;
    float nearness = face.nearness.at(face.corner->nearness, dx, dy);
    int us = fixed(face.u.at(face.corner->u, dx, dy));
    int vs = fixed(face.v.at(face.corner->v, dx, dy));
    const int du = fixed(face.u.x);
    const int dv = fixed(face.v.x);
    const size_t offset = size_t(y) * size_t(m_size.width());
    float* depths = m_nearness.data() + offset;
    std::uint32_t* surfaces = m_surfaces.data() + offset;
    for (int x = first; x < end; ++x, nearness += face.nearness.x, us += du, vs += dv) {
        if (nearness <= depths[x])
            continue;
        depths[x] = nearness;
        surfaces[x] = Surface::of(face.material, us >> 16, vs >> 16);
    }
}

} // namespace view
} // namespace pendant
