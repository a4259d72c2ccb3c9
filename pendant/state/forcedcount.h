#pragma once

#include "project/followednode.h"

#include <QObject>
#include <QTimer>

namespace pendant {

/// How many signals of the data tree are forced, live.
class ForcedCount : public QObject {
    Q_OBJECT

public:
    explicit ForcedCount(QObject* parent = nullptr);

    int count() const { return m_count; }

signals:
    void changed();

private:
    void listen(brisk::ModuleObject* node);
    void read();

    FollowedNode m_details;
    QTimer m_soon;
    int m_count = 0;
};

} // namespace pendant
