#pragma once

#include "controller/robot/pose.h"

#include <QString>

#include <cmath>

/// Frames as tests compare them.

inline QString text(const controller::Pose& pose) {
    return QStringLiteral("%1 %2 %3 / %4 %5 %6")
        .arg(QString::number(pose.x, 'g', 12), QString::number(pose.y, 'g', 12), QString::number(pose.z, 'g', 12),
             QString::number(pose.a, 'g', 12), QString::number(pose.b, 'g', 12), QString::number(pose.c, 'g', 12));
}

inline QString text(const KDL::Vector& vector) {
    return QStringLiteral("%1 %2 %3")
        .arg(controller::tidy(vector.x()))
        .arg(controller::tidy(vector.y()))
        .arg(controller::tidy(vector.z()));
}

/// How far two orientations are apart in their worst entry.
inline double apart(const KDL::Rotation& one, const KDL::Rotation& other) {
    double most = 0;
    for (int i = 0; i < 9; ++i)
        most = std::fmax(most, std::abs(one.data[i] - other.data[i]));
    return most;
}
