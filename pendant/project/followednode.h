#pragma once

#include "brisk/moduleobject.h"

#include <QObject>
#include <QPointer>
#include <QString>

namespace pendant {

/// The node of a key of the data tree, also when it is removed and made again.
class FollowedNode : public QObject {
    Q_OBJECT

public:
    explicit FollowedNode(const QString& key, QObject* parent = nullptr);

    /// Null from the removal of a node until control is back in the event loop.
    brisk::ModuleObject* node() const { return m_node; }

signals:
    /// A new node has taken the place of the one before.
    void renewed(brisk::ModuleObject* node);

private:
    void find();

    QString m_key;
    QPointer<brisk::ModuleObject> m_node;
};

} // namespace pendant
