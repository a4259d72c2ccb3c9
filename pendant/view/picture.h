#pragma once

#include "armbodies.h"
#include "floor.h"
#include "rasteriser.h"
#include "shading.h"
#include "shadow.h"

#include <QImage>

namespace pendant {
namespace view {

/// The robot in its room as an image. It keeps what does not change from one picture to the next.
class Picture {
public:
    /// Samples a pixel is wide: quick while something moves, fine when it stands.
    static constexpr int quick = 2;
    static constexpr int fine = 3;

    void setArm(const ArmGeometry& arm);
    void setTool(const QString& tool);
    /// The work object that stands out.
    void setWobj(const QString& wobj) { m_wobj = wobj; }
    void setColours(const Colours& colours) { m_colours = colours; }

    const ArmGeometry& arm() const { return m_arm; }
    QString tool() const { return m_tool; }

    /// As large as the camera's viewport.
    const QImage& draw(const ArmChain& chain, const Camera& camera, int samples);
    /// Whether something of the picture drawn before stands between the eye and `position`.
    bool hides(const Vector& position) const;
    /// Where the arm and what belongs to it may be.
    double reachMm() const;

private:
    void drawBody(const Mesh& mesh, const Place& place);
    void drawFrames(const ArmChain& chain);
    void castShadow();
    void resolve();
    QRgb resolved(int x, int y, QRgb behind) const;

    ArmGeometry m_arm;
    QString m_tool;
    QString m_wobj;
    Colours m_colours;
    std::vector<Body> m_bodies;
    std::vector<Body> m_ground;
    Mesh m_toolMesh;
    Mesh m_frameMesh;
    Mesh m_smallFrameMesh;
    Mesh m_tipMesh;

    Camera m_camera;
    int m_samples = quick;
    Floor m_floor;
    Shadow m_shadow;
    Shading m_shading;
    Rasteriser m_rasteriser;
    QImage m_image;
};

} // namespace view
} // namespace pendant
