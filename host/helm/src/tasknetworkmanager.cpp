#include "helm/tasknetworkmanager.h"

#include <QMap>
#include <QPair>

namespace helm {

struct TaskNetworkManager::Private {
    QMap<QPair<int, QString>, Task> tasks;
};

TaskNetworkManager::TaskNetworkManager(QObject* parent) : QObject(parent), d(new Private) {}
TaskNetworkManager::~TaskNetworkManager() = default;

void TaskNetworkManager::registerTask(enTaskType type, QObject* owner, const QString& id, Task task,
                                      const QStringList&) {
    const QPair<int, QString> key(type, id);
    d->tasks.insert(key, task);
    if (owner)
        connect(owner, &QObject::destroyed, this, [this, key] { d->tasks.remove(key); });
}

bool TaskNetworkManager::unRegisterTask(enTaskType type, const QString& id) {
    return d->tasks.remove(QPair<int, QString>(type, id)) > 0;
}

} // namespace helm
