#pragma once

#include "project/followednode.h"

#include <QObject>
#include <QString>

#include <functional>

namespace pendant {

/// Follows the value of one node of the data tree, also when the node is removed and made again.
class LiveValue : public QObject {
    Q_OBJECT

public:
    /// Calls `show` with the node's text ("" when it has none) now and at each change.
    LiveValue(const QString& key, std::function<void(const QString&)> show, QObject* parent);

private:
    void listen(brisk::ModuleObject* node);
    void read();

    FollowedNode m_node;
    std::function<void(const QString&)> m_show;
};

} // namespace pendant
