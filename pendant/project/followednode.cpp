#include "followednode.h"

#include "brisk/modulemanager.h"

#include <QTimer>

namespace pendant {

FollowedNode::FollowedNode(const QString& key, QObject* parent) : QObject(parent), m_key(key) {
    find();
}

void FollowedNode::find() {
    m_node = m(m_key);
    // The tree is in the middle of its removal when a node dies.
    connect(m_node, &QObject::destroyed, this, [this] {
        QTimer::singleShot(0, this, [this] {
            find();
            emit renewed(m_node);
        });
    });
}

} // namespace pendant
