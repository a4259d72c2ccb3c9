#include "helm/tasknetworkmanager.h"

#include "brisk/channel.h"
#include "brisk/guarded.h"

#include <QList>

#include <algorithm>

using brisk::standin::Channel;
using brisk::standin::guarded;
using brisk::standin::GuardedCall;

namespace helm {

struct TaskNetworkManager::Private {
    struct Entry {
        enTaskType type;
        QString id;
        Task task;
        QStringList after;
        QMetaObject::Connection ownersEnd;
    };

    int indexOf(enTaskType type, const QString& id) const;
    bool remove(enTaskType type, const QString& id);
    void follow(bool* link, bool up);
    void runAll(enTaskType type);
    void run(enTaskType type, const QString& id);

    QList<Entry> entries; // in the order of registration
    // As they were told: a link that is pulled while it comes up is told of both.
    bool busIsUp = Channel::bus()->isUp();
    bool controllerIsUp = Channel::controller()->isUp();
    int round = 0;
    QStringList waiting; // ids that the present round has not run yet
};

TaskNetworkManager::TaskNetworkManager(QObject* parent) : QObject(parent), d(new Private) {
    connect(Channel::bus(), &Channel::upChanged, this, [this](bool up) { d->follow(&d->busIsUp, up); });
    connect(Channel::controller(), &Channel::upChanged, this, [this](bool up) { d->follow(&d->controllerIsUp, up); });
}

TaskNetworkManager::~TaskNetworkManager() = default;

int TaskNetworkManager::Private::indexOf(enTaskType type, const QString& id) const {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.type == type && entry.id == id; });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

bool TaskNetworkManager::Private::remove(enTaskType type, const QString& id) {
    const int index = indexOf(type, id);
    if (index < 0)
        return false;
    // A copy: with the task may go who takes back another one.
    const Entry gone = entries.takeAt(index);
    QObject::disconnect(gone.ownersEnd);
    return true;
}

void TaskNetworkManager::Private::follow(bool* link, bool up) {
    const bool wereUp = busIsUp && controllerIsUp;
    *link = up;
    const bool areUp = busIsUp && controllerIsUp;
    if (areUp != wereUp)
        runAll(areUp ? TaskOnConnect : TaskOnDisconnect);
}

// A task may take itself or others out, register new ones and pull a link: that begins a round of its own, and what was
// still to run in this one does not.
void TaskNetworkManager::Private::runAll(enTaskType type) {
    const int mine = ++round;
    waiting.clear();
    for (const Entry& entry : qAsConst(entries)) {
        if (entry.type == type)
            waiting << entry.id;
    }
    while (round == mine && !waiting.isEmpty())
        run(type, QString(waiting.first()));
}

void TaskNetworkManager::Private::run(enTaskType type, const QString& id) {
    const int mine = round;
    waiting.removeAll(id);
    const int index = indexOf(type, id);
    const QStringList after = index < 0 ? QStringList() : entries.at(index).after;
    for (const QString& earlier : after) {
        if (round == mine && waiting.contains(earlier))
            run(type, earlier);
    }
    // Those that ran before it may have taken it out.
    const int now = indexOf(type, id);
    if (round != mine || now < 0)
        return;
    const Task task = entries.at(now).task;
    guarded(GuardedCall::NetworkTask, id, [&] { task([](bool, const QVariant&) {}); });
}

void TaskNetworkManager::registerTask(enTaskType type, QObject* owner, const QString& id, Task task,
                                      const QStringList& after) {
    d->remove(type, id);
    QMetaObject::Connection ownersEnd;
    if (owner)
        ownersEnd = connect(owner, &QObject::destroyed, this, [this, type, id] { d->remove(type, id); });
    d->entries.append({type, id, std::move(task), after, ownersEnd});
    if (type == TaskOnConnect && d->busIsUp && d->controllerIsUp)
        d->run(type, id);
}

bool TaskNetworkManager::unRegisterTask(enTaskType type, const QString& id) {
    return d->remove(type, id);
}

} // namespace helm
