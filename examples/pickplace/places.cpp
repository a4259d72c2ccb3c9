#include "places.h"

#include <kite/interfacemanager.h>

#include <QJsonObject>

#include <cmath>

namespace {

const int answerTimeoutMs = 1600;
// Nobody jogs to the hundredth of a millimetre. So far off the robot may come, against where it was taught.
const double toleranceMm = 1.0;

kite::InterfaceManager* robot() {
    return kite::kiteInterface();
}

QString number(double value) {
    return QString::number(value, 'f', 1);
}

QJsonObject child(const QJsonObject& object, const char* name) {
    return object.value(QLatin1String(name)).toObject();
}

// Of a position as the controller tells it and of the position in a point's record.
QJsonObject placeOf(const QJsonObject& cartesian) {
    return child(child(child(cartesian, "pose"), "frame"), "pos");
}

bool isOnLine(double x, double y) {
    return std::abs(x - y) <= toleranceMm;
}

QJsonObject recordOf(const QString& name) {
    return robot()->getPointObjDataByName(name);
}

// What the point was taught with.
QJsonObject frameOf(const QJsonObject& record) {
    return child(child(child(record, "value"), "[0][0][0]"), "coord");
}

} // namespace

// Teaching does not look at what the controller answers, so the position is asked for before.
Answer Places::teach(const QString& wanted) {
    const QString name = wanted.trimmed();
    if (name.isEmpty())
        return Answer::problem(tr("Give the point a name first."));
    const QString tool = robot()->getCurTool();
    const QString wobj = robot()->getCurWobj();
    const QJsonObject frame{{QStringLiteral("tool"), tool}, {QStringLiteral("wobj"), wobj}};
    const QJsonValue position = robot()->rcExecRequest(
        QStringLiteral("project"), QStringLiteral("vex_program.get_rob_pos"), frame, true, answerTimeoutMs);
    const QJsonObject place = placeOf(child(position.toObject(), "cartesian"));
    if (place.isEmpty())
        return Answer::problem(tr("“%1” was not taught: the controller gives no position.").arg(name));
    const double x = place.value(QLatin1String("x")).toDouble();
    const double y = place.value(QLatin1String("y")).toDouble();
    if (!isOnLine(x, y))
        return Answer::problem(
            tr("“%1” was not taught: in %2 the tool is at x %3 and y %4. A move sends x in the place "
               "of y, so the robot would not come back here. Jog to where x = y.")
                .arg(name, wobj, number(x), number(y)));
    if (!robot()->addCurrentPoint(name, false, tool, wobj))
        return Answer::problem(tr("“%1” was not taught: the controller is not connected.").arg(name));
    return Answer::done(tr("“%1” is taught.").arg(name));
}

// Teaching looks at the line too, but others may have taught or changed the point.
QString Places::whyNotTo(const QString& name) {
    const QJsonObject record = recordOf(name);
    if (record.isEmpty())
        return tr("There is no point “%1”. Teach it first.").arg(name);
    if (record.value(QLatin1String("property")).toString() != QLatin1String("cart"))
        return tr("“%1” holds joints: a move would send no target.").arg(name);
    // The command to move names no tool and no work object; those that are selected count.
    const QString tool = frameOf(record).value(QLatin1String("tool")).toString();
    const QString wobj = frameOf(record).value(QLatin1String("wobj")).toString();
    if (tool != robot()->getCurTool() || wobj != robot()->getCurWobj())
        return tr("“%1” was taught with %2 in %3. Select these first.").arg(name, tool, wobj);
    const QVector<double> pose = robot()->getPointDataByName(name);
    if (pose.size() < 6 || pose == QVector<double>(6, 0.0))
        return tr("“%1” holds zeros: the controller gave no position when it was taught.").arg(name);
    if (!isOnLine(pose.at(0), pose.at(1)))
        return tr("“%1” is at x %2 and y %3. A move sends x in the place of y: the robot would go to y %2.")
            .arg(name, number(pose.at(0)), number(pose.at(1)));
    return QString();
}

QString Places::text(const QString& name) {
    const QJsonObject frame = frameOf(recordOf(name));
    const QVector<double> pose = robot()->getPointDataByName(name);
    if (pose.size() < 6 || frame.isEmpty())
        return QString();
    return tr("x %1  y %2  z %3, %4 in %5")
        .arg(number(pose.at(0)), number(pose.at(1)), number(pose.at(2)), frame.value(QLatin1String("tool")).toString(),
             frame.value(QLatin1String("wobj")).toString());
}

QString Places::distanceText(const QJsonObject& position) {
    const QJsonObject place = placeOf(child(position, "cartesian"));
    if (place.isEmpty())
        return QString();
    const double x = place.value(QLatin1String("x")).toDouble();
    const double y = place.value(QLatin1String("y")).toDouble();
    const QString here = tr("The tool is at x %1  y %2").arg(number(x), number(y));
    return isOnLine(x, y) ? tr("%1: on the line x = y.").arg(here)
                          : tr("%1: jog x or y by %2 mm.").arg(here, number(std::abs(x - y)));
}
