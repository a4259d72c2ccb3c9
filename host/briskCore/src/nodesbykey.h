#pragma once

#include "brisk/moduleobject.h"

#include <QHash>
#include <QPointer>
#include <QString>

namespace brisk {

/// Nodes in no tree, one per key, kept until the end. A node that someone deleted is made anew.
class NodesByKey {
public:
    NodesByKey() = default;
    ~NodesByKey();
    ModuleObject* node(const QString& key);
    /// The node without value, children and list mark.
    ModuleObject* emptied(const QString& key);

private:
    Q_DISABLE_COPY(NodesByKey)
    QHash<QString, QPointer<ModuleObject>> m_nodes;
};

} // namespace brisk
