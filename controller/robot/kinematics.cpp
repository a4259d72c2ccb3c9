#include "controller/robot/kinematics.h"

#include "controller/robot/armpostures.h"

using KDL::Frame;
using KDL::Rotation;
using KDL::Vector;

namespace controller {

namespace {

Vector unitVector(int direction) {
    Vector unit;
    unit(direction) = 1;
    return unit;
}

QString notThere(const char* what, const QString& name, const QStringList& known) {
    return QStringLiteral("The controller knows no %1 \"%2\". There are \"%3\".")
        .arg(QLatin1String(what), name, known.join(QStringLiteral("\", \"")));
}

} // namespace

Kinematics::Kinematics(const RobotModel& model) : m_model(model), m_arm(model.lengths, model.joints.size()) {}

QString Kinematics::unknown(const QString& tool, const QString& wobj) const {
    if (!m_model.tools.contains(tool))
        return notThere("tool", tool, m_model.tools.keys());
    if (!m_model.wobjs.contains(wobj))
        return notThere("work object", wobj, m_model.wobjs.keys());
    return QString();
}

Frame Kinematics::pose(const Posture& posture, const QString& tool, const QString& wobj) const {
    const Frame tip =
        inWorld(m_model.foot, posture) * m_arm.flange(posture.joints) * frameOf(m_model.tools.value(tool));
    return inWorld(m_model.wobjs.value(wobj), posture).Inverse() * tip;
}

bool Kinematics::reach(const Frame& pose, const QString& tool, const QString& wobj, Posture* posture) const {
    return m_arm.reach(flangeAt(pose, tool, wobj, *posture), &posture->joints);
}

std::vector<Posture> Kinematics::postures(const Frame& pose, const QString& tool, const QString& wobj,
                                          const Posture& present) const {
    const Frame flange = flangeAt(pose, tool, wobj, present);
    std::vector<Posture> postures;
    for (const Joints& near : posturesNear(m_arm, flange, present.joints)) {
        Posture posture{near, present.externals};
        if (m_arm.reach(flange, &posture.joints))
            postures.push_back(posture);
    }
    return postures;
}

// Seen from the foot.
Frame Kinematics::flangeAt(const Frame& pose, const QString& tool, const QString& wobj, const Posture& posture) const {
    const Frame tip = inWorld(m_model.foot, posture).Inverse() * inWorld(m_model.wobjs.value(wobj), posture) * pose;
    return tip * frameOf(m_model.tools.value(tool)).Inverse();
}

Frame Kinematics::inWorld(const Mount& mount, const Posture& posture) const {
    const Frame frame = frameOf(mount.pose);
    return mount.on == Mount::world ? frame : moved(mount.on, posture) * frame;
}

Frame Kinematics::moved(int external, const Posture& posture) const {
    const ExternalAxis& it = m_model.externals.at(external);
    const double value = posture.externals.at(size_t(external));
    const Vector direction = unitVector(it.direction);
    const Frame motion = it.axis.isLinear ? Frame(direction * value) : Frame(Rotation::Rot(direction, radOf(value)));
    return inWorld(it.mount, posture) * motion;
}

} // namespace controller
