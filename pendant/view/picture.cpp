#include "picture.h"

#include <algorithm>

namespace pendant {
namespace view {

namespace {

const float slackMm = 25; // a position on a surface is not behind it

QRgb darker(QRgb colour, QRgb shade, int strength) {
    const auto mix = [strength](int from, int to) { return from + (to - from) * strength / 255; };
    return qRgb(mix(qRed(colour), qRed(shade)), mix(qGreen(colour), qGreen(shade)), mix(qBlue(colour), qBlue(shade)));
}

// The middle of what the mask says around a pixel.
int softValue(const QImage& mask, int x, int y) {
    const int left = x / 2;
    const int right = std::min(left + (x & 1), mask.width() - 1);
    const uchar* upper = mask.constScanLine(y / 2);
    const uchar* lower = mask.constScanLine(std::min(y / 2 + (y & 1), mask.height() - 1));
    return (upper[left] + upper[right] + lower[left] + lower[right]) / 4;
}

} // namespace

void Picture::setArm(const ArmGeometry& arm) {
    m_arm = arm;
    m_bodies = armBodies(arm);
    m_ground = groundBodies(arm);
    m_frameMesh = frameMesh(arm.size() * 0.075);
    m_smallFrameMesh = frameMesh(arm.size() * 0.05);
    m_tipMesh = frameMesh(arm.size() * 0.036);
    setTool(m_tool);
}

void Picture::setTool(const QString& tool) {
    m_tool = tool;
    m_toolMesh = toolMesh(m_arm, m_arm.tools.value(tool));
}

double Picture::reachMm() const {
    return std::max(m_arm.size(), 100.0);
}

const QImage& Picture::draw(const ArmChain& chain, const Camera& camera, int samples) {
    m_camera = camera;
    m_samples = samples;
    m_shading.prepare(m_colours, camera);
    const QImage& floor = m_floor.picture(camera, m_colours, reachMm() * 1.35);
    if (m_image.size() != floor.size())
        m_image = QImage(floor.size(), QImage::Format_RGB32);
    std::copy(floor.constBits(), floor.constBits() + floor.sizeInBytes(), m_image.bits());
    m_rasteriser.begin(floor.size() * samples);
    m_shadow.begin(floor.size());
    for (const Body& body : m_ground)
        drawBody(body.mesh, body.anchor.inWorld(m_arm, chain));
    for (const Body& body : m_bodies)
        drawBody(body.mesh, body.anchor.inWorld(m_arm, chain));
    drawBody(m_toolMesh, chain.flange());
    drawFrames(chain);
    castShadow();
    resolve();
    return m_image;
}

void Picture::drawBody(const Mesh& mesh, const Place& place) {
    m_rasteriser.draw(mesh, place, m_camera, m_samples);
    m_shadow.draw(mesh, place, m_camera);
}

void Picture::drawFrames(const ArmChain& chain) {
    for (auto wobj = m_arm.wobjs.constBegin(); wobj != m_arm.wobjs.constEnd(); ++wobj) {
        const Mesh& mesh = wobj.key() == m_wobj ? m_frameMesh : m_smallFrameMesh;
        m_rasteriser.draw(mesh, chain.inWorld(wobj.value()), m_camera, m_samples);
    }
    m_rasteriser.draw(m_tipMesh, chain.tip(m_tool), m_camera, m_samples);
}

void Picture::castShadow() {
    const QImage& mask = m_shadow.finish();
    const QRect touched = m_shadow.touched();
    const QRect area =
        QRect(touched.topLeft() * Shadow::coarseness, touched.size() * Shadow::coarseness) & m_image.rect();
    const QRgb shade = m_colours.shadow.rgb();
    const int strength = m_colours.shadow.alpha();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            const int dark = softValue(mask, x, y);
            if (dark > 0)
                row[x] = darker(row[x], shade, dark * strength / 255);
        }
    }
}

void Picture::resolve() {
    const QRect touched = m_rasteriser.touched();
    if (touched.isEmpty())
        return;
    for (int y = touched.top() / m_samples; y <= touched.bottom() / m_samples; ++y) {
        auto* row = reinterpret_cast<QRgb*>(m_image.scanLine(y));
        for (int x = touched.left() / m_samples; x <= touched.right() / m_samples; ++x)
            row[x] = resolved(x, y, row[x]);
    }
}

// The samples of a pixel in one colour, upon what is behind them.
QRgb Picture::resolved(int x, int y, QRgb behind) const {
    const QRgb* table = m_shading.table();
    int red = 0;
    int green = 0;
    int blue = 0;
    int covered = 0;
    for (int i = 0; i < m_samples * m_samples; ++i) {
        const std::uint32_t sample = m_rasteriser.row(y * m_samples + i / m_samples)[x * m_samples + i % m_samples];
        if (!Surface::isCovered(sample))
            continue;
        const QRgb colour = table[Surface::index(sample)];
        red += qRed(colour);
        green += qGreen(colour);
        blue += qBlue(colour);
        ++covered;
    }
    const int all = m_samples * m_samples;
    const int rest = all - covered;
    if (covered == 0)
        return behind;
    return qRgb((red + qRed(behind) * rest) / all, (green + qGreen(behind) * rest) / all,
                (blue + qBlue(behind) * rest) / all);
}

bool Picture::hides(const Vector& position) const {
    if (!m_camera.sees(position))
        return false;
    const QPointF sample = m_camera.pixel(position) * m_samples;
    const QPoint at(int(sample.x()), int(sample.y()));
    if (!QRect(QPoint(), m_rasteriser.size()).contains(at))
        return false;
    const float nearness = m_rasteriser.nearness(at.x(), at.y());
    return nearness > 0 && 1 / nearness < float(m_camera.depthMm(position)) - slackMm;
}

} // namespace view
} // namespace pendant
