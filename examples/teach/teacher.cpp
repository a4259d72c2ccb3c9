#include "teacher.h"

#include <kite/interfacemanager.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>

namespace {

const int answerTimeoutMs = 1600;

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

QRegularExpression sameName(const QString& name) {
    return QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(name)),
                              QRegularExpression::CaseInsensitiveOption);
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

QString Teacher::teach(const QString& wanted, Kind kind) {
    const QString name = wanted.trimmed();
    if (name.isEmpty())
        return tr("Give the point a name first.");
    const QString tool = selected(QStringLiteral("tool"), QStringLiteral("tool0"));
    const QString wobj = selected(QStringLiteral("wobj"), QStringLiteral("wobj0"));
    if (!canTeach(tool, wobj))
        return tr("“%1” was not taught: the controller gives no position for %2 in %3.").arg(name, tool, wobj);
    if (!robot()->addCurrentPoint(name, kind == Kind::Joints, tool, wobj))
        return tr("“%1” was not taught: the controller is not connected.").arg(name);
    emit changed();
    emit taught(name);
    return QString();
}

// Teaching does not look at what the controller answers: without a position it would put zeros in place of the old
// point, and say true.
bool Teacher::canTeach(const QString& tool, const QString& wobj) {
    const QJsonObject frame{{QStringLiteral("tool"), tool}, {QStringLiteral("wobj"), wobj}};
    const QJsonValue answer = robot()->rcExecRequest(
        QStringLiteral("project"), QStringLiteral("vex_program.get_rob_pos"), frame, true, answerTimeoutMs);
    return answer.toObject().contains(QLatin1String("joint"));
}

QString Teacher::lift(const QString& name, double mm) {
    // A joint point has no pose: changing it would change nothing and say nothing.
    if (has(name, Kind::Joints))
        return tr("“%1” holds joints. Only a pose can be lifted.").arg(name);
    QVector<double> pose = robot()->getPointDataByName(name);
    if (pose.isEmpty())
        return tr("There is no point “%1” any more.").arg(name);
    // The pose was read by the exact name; it is written to the first name that is equal without its case.
    const QString first = names().filter(sameName(name)).value(0);
    if (first != name)
        return tr("“%1” would be changed in place of “%2”. Give one of them another name.").arg(first, name);
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
