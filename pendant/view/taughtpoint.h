#pragma once

#include "armchain.h"

namespace pendant {
namespace view {

/// A point of the robot project: joints, or a pose of a tool in a work object.
struct TaughtPoint {
    QString node; ///< the name of its record
    QString name;
    bool isJoint = false;
    Stance stance; ///< of a joint point
    Place pose;    ///< of another one
    QString wobj;

    /// Where it is in the world. A joint point is where the tip of `tool` comes to be.
    Vector inWorld(const ArmGeometry& arm, const ArmChain& present, const QString& tool) const;
};

/// Of a record in the data tree, as JSON.
TaughtPoint taughtPointOf(const QString& node, const QJsonObject& record);

} // namespace view
} // namespace pendant
