#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"

#include <QJsonValue>
#include <QObject>
#include <QString>

#include <memory>

namespace helm {

/// The channel of requests to the robot controller. User-interface thread only.
///
/// A full command is group and request joined by ".". Reply nodes belong to the manager, one per command, and are used
/// again by the next call of that command; with the link down or after a time-out a reply is an empty node.
class BRISK_EXPORT ControllerManager : public QObject {
    Q_OBJECT

public:
    explicit ControllerManager(QObject* parent = nullptr);
    ~ControllerManager() override;

    /// True while the link to the controller is up.
    bool controllerConnected() const;

    /// Sends a request and does not wait. True when it was sent.
    bool request(const QString& group, const QString& request, const QJsonValue& params, int timeoutMs);
    bool request(const QString& command, brisk::ModuleObject* request, int timeoutMs);

    /// Sends a request and, with `wait`, holds the calling thread for the reply up to `timeoutMs`.
    brisk::ModuleObject* execRequest(const QString& group, const QString& request, const QJsonValue& params, bool wait,
                                     int timeoutMs);
    brisk::ModuleObject* execRequest(const QString& command, brisk::ModuleObject* request, bool wait, int timeoutMs);

    /// The node kept for `item` ("request" or "response") of `command`; the item comes first.
    brisk::ModuleObject* cmdItemMobj(const QString& item, const QString& command);

signals:
    void rcConnected();
    void rcDisconnected(bool status);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace helm
