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
inline QString variables() {
    return QStringLiteral("orca.pendant.variables");
}
inline QString points() {
    return QStringLiteral("orca.pendant.points");
}
inline QString messages() {
    return QStringLiteral("orca.pendant.messages");
}
inline QString settings() {
    return QStringLiteral("orca.pendant.settings");
}

inline bool isOwn(const QString& key) {
    return key == start() || key == jog() || key == variables() || key == points() || key == messages() ||
           key == settings();
}

} // namespace pagekeys
} // namespace pendant
