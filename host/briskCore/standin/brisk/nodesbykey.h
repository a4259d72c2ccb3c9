#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"

#include <QHash>
#include <QPointer>
#include <QString>

namespace brisk {
namespace standin {

/// Nodes in no tree, one per key, kept until the end. A node that someone deleted is made anew.
class BRISK_EXPORT NodesByKey {
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

} // namespace standin
} // namespace brisk
