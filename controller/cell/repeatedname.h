#pragma once

#include <QByteArray>
#include <QString>

namespace controller {

/// A name that two members of one object have. Of such members a reader of JSON sees the last alone.
struct RepeatedName {
    QString name;
    int offset; ///< of the second one, in bytes; -1 when there is none

    /// The first in `json`, which must be JSON.
    static RepeatedName in(const QByteArray& json);
};

} // namespace controller
