#pragma once

#include "brisk/moduleobject.h"
#include "helm/tasknetworkmanager.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

/// Stands in for operations of the host and keeps what they were called with. The operations are defined in hostspy.cpp
/// and come before those of the host's libraries, because a program's own symbols do.
struct HostSpy {
    /// Calls as "operation(arguments)"; a sender is "null" or "object".
    QStringList calls;
    /// What every operation that gives a node gives.
    brisk::ModuleObject* node = nullptr;
    /// What Relay::mobj() gives.
    brisk::ModuleObject* busNode = nullptr;
    /// What every operation that says true or false says.
    bool says = true;

    helm::TaskNetworkManager::Task task;
    QObject* taskOwner = nullptr;

    /// The request nodes that were handed over, null once they are gone.
    QList<QPointer<brisk::ModuleObject>> requests;
    bool requestHasParent = false;
    /// Gives the request node itself as the reply.
    bool echoes = false;

    static HostSpy& instance();
};
