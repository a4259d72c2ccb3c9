#include "teacher.h"

#include <kite/interfacemanager.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

kite::InterfaceManager* robot() {
    return kite::kiteInterface();
}

// What the operator selected on the pendant; the pendant has none selected at first.
QString selected(const QString& what, const QString& otherwise) {
    const QString name = robot()->getNodeData(QStringLiteral("orca.toolpage.") + what).toString();
    return name.isEmpty() ? otherwise : name;
}

QJsonObject positionOf(const QString& point) {
    const QJsonObject record = robot()->getPointObjDataByName(point);
    return record.value(QLatin1String("value")).toObject().value(QLatin1String("[0][0][0]")).toObject();
}

QString number(double value) {
    return QString::number(value, 'f', 1);
}

} // namespace

Teacher::Teacher(QObject* parent) : QObject(parent) {}

QStringList Teacher::names() const {
    return robot()->getPointNameList();
}

bool Teacher::has(const QString& name, Kind kind) const {
    const QString property = robot()->getPointObjDataByName(name).value(QLatin1String("property")).toString();
    return property == (kind == Kind::Joints ? QLatin1String("joint") : QLatin1String("cart"));
}

QVector<double> Teacher::joints(const QString& name) const {
    QVector<double> angles;
    for (const QJsonValue& angle : positionOf(name).value(QLatin1String("inner_pos")).toArray())
        angles.append(angle.toDouble());
    return angles;
}

QString Teacher::positionText(const QString& name) const {
    if (has(name, Kind::Joints)) {
        QStringList texts;
        for (double angle : joints(name))
            texts << number(angle);
        return tr("joints %1").arg(texts.join(QStringLiteral("  ")));
    }
    const QVector<double> pose = robot()->getPointDataByName(name);
    return pose.isEmpty() ? QString()
                          : tr("x %1  y %2  z %3").arg(number(pose.at(0)), number(pose.at(1)), number(pose.at(2)));
}

QString Teacher::teach(const QString& name, Kind kind) {
    if (name.trimmed().isEmpty())
        return tr("Give the point a name first.");
    const QString tool = selected(QStringLiteral("tool"), QStringLiteral("tool0"));
    const QString wobj = selected(QStringLiteral("wobj"), QStringLiteral("wobj0"));
    if (!robot()->addCurrentPoint(name, kind == Kind::Joints, tool, wobj))
        return tr("“%1” was not taught: the controller is not connected.").arg(name);
    emit changed();
    if (!holdsPosition(name, kind))
        return tr("“%1” holds zeros: the controller gave no position for %2 in %3. Teach it again before you use it.")
            .arg(name, tool, wobj);
    emit taught(name);
    return QString();
}

// Teaching says true also when the controller gave no answer, and stores zeros: no pose has a quaternion of zeros, and
// no robot that works stands with all joints at exactly 0.
bool Teacher::holdsPosition(const QString& name, Kind kind) const {
    if (kind == Kind::Joints) {
        const QVector<double> angles = joints(name);
        return std::any_of(angles.begin(), angles.end(), [](double angle) { return angle != 0; });
    }
    const QJsonObject orientation = positionOf(name)
                                        .value(QLatin1String("pose"))
                                        .toObject()
                                        .value(QLatin1String("frame"))
                                        .toObject()
                                        .value(QLatin1String("ori"))
                                        .toObject();
    const QJsonObject quaternion = orientation.value(QLatin1String("quaternion")).toObject();
    return std::any_of(quaternion.begin(), quaternion.end(), [](const QJsonValue& q) { return q.toDouble() != 0; });
}

QString Teacher::lift(const QString& name, double mm) {
    // A joint point has no pose: changing it would change nothing and say nothing.
    if (has(name, Kind::Joints))
        return tr("“%1” holds joints. Only a pose can be lifted.").arg(name);
    QVector<double> pose = robot()->getPointDataByName(name);
    if (pose.isEmpty())
        return tr("There is no point “%1” any more.").arg(name);
    pose[2] += mm;
    robot()->changeCartPoint(name, pose);
    emit changed();
    return QString();
}

QString Teacher::compare(const QString& first, const QString& second, QString* result) const {
    if (robot()->checkPointSame(first, second))
        return tr("Choose two points: “%1” is one.").arg(first);
    const QVector<double> a = robot()->getPointDataByName(first);
    const QVector<double> b = robot()->getPointDataByName(second);
    if (a.isEmpty() || b.isEmpty() || has(first, Kind::Joints) || has(second, Kind::Joints))
        return tr("Two poses can be compared; “%1” and “%2” are not both poses.").arg(first, second);
    const double distanceMm = std::sqrt(std::pow(a[0] - b[0], 2) + std::pow(a[1] - b[1], 2) + std::pow(a[2] - b[2], 2));
    *result = tr("“%1” and “%2” are %3 mm apart.").arg(first, second, number(distanceMm));
    return QString();
}
