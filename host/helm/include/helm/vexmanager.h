#pragma once

#include "brisk/export.h"
#include "helm/basecontentwidget.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <utility>

namespace helm {

/// Makes the widget of an instruction under a parent; the parent owns it.
using WidgetCreator = std::function<BaseContentWidget*(QWidget*)>;

/// The registry of robot-program instructions. The program editor reads it, the host and plugins write it.
class BRISK_EXPORT VexManager {
public:
    VexManager();
    ~VexManager();

    /// The one registry of the process, for the host and every plugin. The function is inline on purpose: its static is
    /// a process-unique symbol, so that shared objects loaded with local scope meet the same object.
    BRISK_EXPORT static VexManager* getVexManager() {
        static VexManager registry;
        return &registry;
    }

    QStringList typeKeys;
    QList<std::pair<QString, QString>> groups; ///< (group, title)
    QHash<QString, QStringList> groupMembers;
    QHash<QString, QString> descriptions;
    QHash<QString, QString> defaultTexts;
    QSet<QString> hiddenTypes;
    QHash<QString, QString> patterns;  ///< "c_" + type -> regular expression
    QHash<QString, QString> skeletons; ///< "s_" + type -> line
    QHash<QString, WidgetCreator> propertyWidgets;
    QHash<QString, WidgetCreator> insertWidgets;
    QHash<QString, QString> icons;
    QHash<QString, QString> titles;
    QList<QVariant> extras;
};

} // namespace helm
