#include "pointvalues.h"

#include "recordtext.h"

#include <QStringList>

using brisk::ModuleObject;

namespace pendant {

namespace {

const int robotJoints = 7;
const int externalAxes = 6;

QString inValue(const QString& path) {
    return QStringLiteral("value.[0][0][0].") + path;
}

// "x" -> "X", "q1" -> "q1"
QString captionOf(const QString& leaf) {
    return leaf.size() == 1 ? leaf.toUpper() : leaf;
}

// "inner_pos", 2 -> "value.[0][0][0].inner_pos.#1" for the second
PointValues::Group numbered(ModuleObject* record, const QString& title, const QString& list, int count) {
    PointValues::Group group{title, {}};
    for (int i = 0; i < count; ++i)
        group.values.append(
            {QString::number(i + 1), numberOf(record, inValue(QStringLiteral("%1.#%2").arg(list).arg(i)), 3)});
    return group;
}

PointValues::Group named(ModuleObject* record, const QString& title, const QString& node, const QStringList& leaves,
                         int decimals) {
    PointValues::Group group{title, {}};
    for (const QString& leaf : leaves)
        group.values.append({captionOf(leaf), numberOf(record, inValue(node + QLatin1Char('.') + leaf), decimals)});
    return group;
}

PointValues::Group withElbow(ModuleObject* record, PointValues::Group angles) {
    angles.values.append({QStringLiteral("elb"), numberOf(record, inValue(QStringLiteral("pose.elb")), 3)});
    return angles;
}

QStringList inShort(ModuleObject* record, const QStringList& paths) {
    QStringList texts;
    for (const QString& path : paths)
        texts << numberOf(record, inValue(path), 1);
    return texts;
}

} // namespace

bool PointValues::isJoint(ModuleObject* record) {
    return fieldOf(record, QStringLiteral("property")) == QLatin1String("joint");
}

QString PointValues::kind(ModuleObject* record) {
    return isJoint(record) ? tr("Joint") : tr("Cartesian");
}

QString PointValues::position(ModuleObject* record) {
    const QStringList joints{QStringLiteral("inner_pos.#0"), QStringLiteral("inner_pos.#1"),
                             QStringLiteral("inner_pos.#2"), QStringLiteral("inner_pos.#3"),
                             QStringLiteral("inner_pos.#4"), QStringLiteral("inner_pos.#5")};
    const QStringList place{QStringLiteral("pose.frame.pos.x"), QStringLiteral("pose.frame.pos.y"),
                            QStringLiteral("pose.frame.pos.z")};
    return inShort(record, isJoint(record) ? joints : place).join(QStringLiteral("  "));
}

QString PointValues::tool(ModuleObject* record) {
    return fieldOf(record, inValue(QStringLiteral("coord.tool")));
}

QString PointValues::workObject(ModuleObject* record) {
    return fieldOf(record, inValue(QStringLiteral("coord.wobj")));
}

QString PointValues::title(ModuleObject* record) {
    const QString function = fieldOf(record, QStringLiteral("func"));
    const QString task = fieldOf(record, QStringLiteral("task"));
    QStringList parts{fieldOf(record, QStringLiteral("name")), fieldOf(record, QStringLiteral("description"))};
    if (!function.isEmpty() || !task.isEmpty())
        parts << tr("function %1, task %2").arg(function, task);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" – "));
}

QList<PointValues::Group> PointValues::groups(ModuleObject* record) {
    if (isJoint(record))
        return {numbered(record, tr("Joints, °"), QStringLiteral("inner_pos"), robotJoints),
                numbered(record, tr("External axes"), QStringLiteral("extern_pos"), externalAxes)};
    const QStringList quadrants{QStringLiteral("cf1"), QStringLiteral("cf2"), QStringLiteral("cf3"),
                                QStringLiteral("cf4"), QStringLiteral("cf5"), QStringLiteral("cf6"),
                                QStringLiteral("cf7"), QStringLiteral("cfx")};
    const QStringList place{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")};
    const QStringList angles{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    const QStringList quaternion{QStringLiteral("q1"), QStringLiteral("q2"), QStringLiteral("q3"),
                                 QStringLiteral("q4")};
    return {named(record, tr("Position, mm"), QStringLiteral("pose.frame.pos"), place, 3),
            withElbow(record, named(record, tr("Angles, °"), QStringLiteral("pose.frame.ori.euler"), angles, 3)),
            named(record, tr("Quaternion"), QStringLiteral("pose.frame.ori.quaternion"), quaternion, 6),
            named(record, tr("Configuration"), QStringLiteral("conf"), quadrants, 0),
            numbered(record, tr("External axes"), QStringLiteral("external_joint"), externalAxes)};
}

} // namespace pendant
