#include "helm/tasknetworkmanager.h"

#include "brisk/channel.h"
#include "brisk/guarded.h"

#include <QList>

#include <algorithm>

using brisk::standin::Channel;
using brisk::standin::guarded;
using brisk::standin::GuardedCall;

namespace helm {

namespace {

bool linksAreUp() {
    return Channel::bus()->isUp() && Channel::controller()->isUp();
}

} // namespace

struct TaskNetworkManager::Private {
    struct Entry {
        enTaskType type;
        const QObject* owner; // to be compared, it may be gone
        QString id;
        Task task;
        QStringList after;
    };

    int indexOf(enTaskType type, const QString& id) const;
    bool remove(enTaskType type, const QString& id);
    void followLinks();
    void runAll(enTaskType type);
    void run(enTaskType type, const QString& id, QStringList* waiting);

    QList<Entry> entries; // in the order of registration
    bool wereUp = linksAreUp();
};

TaskNetworkManager::TaskNetworkManager(QObject* parent) : QObject(parent), d(new Private) {
    for (Channel* channel : {Channel::bus(), Channel::controller()})
        connect(channel, &Channel::upChanged, this, [this] { d->followLinks(); });
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
    entries.removeAt(index);
    return true;
}

void TaskNetworkManager::Private::followLinks() {
    const bool up = linksAreUp();
    if (up == wereUp)
        return;
    wereUp = up;
    runAll(up ? TaskOnConnect : TaskOnDisconnect);
}

// A task may take itself or others out, register new ones and pull a link.
void TaskNetworkManager::Private::runAll(enTaskType type) {
    QStringList waiting;
    for (const Entry& entry : entries) {
        if (entry.type == type)
            waiting << entry.id;
    }
    while (!waiting.isEmpty())
        run(type, QString(waiting.first()), &waiting);
}

void TaskNetworkManager::Private::run(enTaskType type, const QString& id, QStringList* waiting) {
    waiting->removeAll(id);
    const int index = indexOf(type, id);
    if (index < 0)
        return;
    const Entry entry = entries.at(index);
    for (const QString& earlier : entry.after) {
        if (waiting->contains(earlier))
            run(type, earlier, waiting);
    }
    guarded(GuardedCall::NetworkTask, id, [&] { entry.task([](bool, const QVariant&) {}); });
}

void TaskNetworkManager::registerTask(enTaskType type, QObject* owner, const QString& id, Task task,
                                      const QStringList& after) {
    d->remove(type, id);
    d->entries.append({type, owner, id, std::move(task), after});
    if (owner)
        connect(owner, &QObject::destroyed, this, [this, type, id](const QObject* gone) {
            const int index = d->indexOf(type, id);
            if (index >= 0 && d->entries.at(index).owner == gone)
                d->entries.removeAt(index);
        });
    QStringList none;
    if (type == TaskOnConnect && linksAreUp())
        d->run(type, id, &none);
}

bool TaskNetworkManager::unRegisterTask(enTaskType type, const QString& id) {
    return d->remove(type, id);
}

} // namespace helm
