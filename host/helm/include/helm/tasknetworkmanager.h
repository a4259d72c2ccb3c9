#pragma once

#include "brisk/export.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

namespace helm {

/// When a network-status task runs: 0 when the links come up (at once if they are), 1 when they go down.
enum enTaskType { TaskOnConnect = 0, TaskOnDisconnect = 1 };

/// Runs tasks when the state of the network changes.
class BRISK_EXPORT TaskNetworkManager : public QObject {
    Q_OBJECT

public:
    /// Tells the host that the task is finished: whether it succeeded, and a result.
    using Done = std::function<void(bool, const QVariant&)>;
    using Task = std::function<void(const Done& done)>;

    explicit TaskNetworkManager(QObject* parent = nullptr);
    ~TaskNetworkManager() override;

    /// Keeps `task` under `id` until it is taken back or `owner` is destroyed. `after` names tasks to run first.
    void registerTask(enTaskType type, QObject* owner, const QString& id, Task task, const QStringList& after);
    /// True when there was such a task.
    bool unRegisterTask(enTaskType type, const QString& id);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace helm
