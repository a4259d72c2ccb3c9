#pragma once

#include "brisk/moduleobject.h"

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>

namespace pendant {

/// What a point record holds, in words for people.
class PointValues {
    Q_DECLARE_TR_FUNCTIONS(pendant::PointValues)

public:
    struct Group {
        QString title;
        QList<QPair<QString, QString>> values; ///< caption and value
    };

    static bool isJoint(brisk::ModuleObject* record);
    /// "Joint" or "Cartesian".
    static QString kind(brisk::ModuleObject* record);
    /// The joints, or x, y and z, in short.
    static QString position(brisk::ModuleObject* record);
    static QString tool(brisk::ModuleObject* record);
    static QString workObject(brisk::ModuleObject* record);
    /// In a line: name, description, function and task.
    static QString title(brisk::ModuleObject* record);
    /// All values.
    static QList<Group> groups(brisk::ModuleObject* record);
};

} // namespace pendant
