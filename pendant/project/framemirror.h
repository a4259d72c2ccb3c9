#pragma once

#include "followednode.h"

#include <QObject>
#include <QString>

class QJsonObject;

namespace pendant {

/// Keeps the tool and the work object that are selected in the data tree and in the controller alike. The tree leads;
/// what it does not say, and what the controller refuses, it takes from there.
class FrameMirror : public QObject {
    Q_OBJECT

public:
    explicit FrameMirror(QObject* parent = nullptr);

private:
    void listen(brisk::ModuleObject* node);
    void followLink();
    void sendSoon();
    void send();
    void take(const QJsonObject& frame, bool onlyMissing);

    FollowedNode m_tool;
    FollowedNode m_workObject;
    bool m_wasUp = false;
    bool m_isQueued = false;
};

} // namespace pendant
