#pragma once

#include <QString>

namespace pendant {

/// The keys of the pendant's own pages in the centre.
namespace pagekeys {

inline QString start() {
    return QStringLiteral("orca.pendant.start");
}
inline QString jog() {
    return QStringLiteral("orca.pendant.jog");
}
inline QString robot() {
    return QStringLiteral("orca.pendant.robot");
}
inline QString projects() {
    return QStringLiteral("orca.pendant.projects");
}
inline QString program() {
    return QStringLiteral("orca.pendant.program");
}
inline QString variables() {
    return QStringLiteral("orca.pendant.variables");
}
inline QString points() {
    return QStringLiteral("orca.pendant.points");
}
inline QString io() {
    return QStringLiteral("orca.pendant.io");
}
inline QString messages() {
    return QStringLiteral("orca.pendant.messages");
}
inline QString log() {
    return QStringLiteral("orca.pendant.log");
}
inline QString settings() {
    return QStringLiteral("orca.pendant.settings");
}

inline bool isOwn(const QString& key) {
    return key == start() || key == jog() || key == robot() || key == projects() || key == program() ||
           key == variables() || key == points() || key == io() || key == messages() || key == log() ||
           key == settings();
}

} // namespace pagekeys
} // namespace pendant
