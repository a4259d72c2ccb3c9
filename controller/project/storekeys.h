#pragma once

#include "controller/content.h"

#include <QObject>
#include <QString>

namespace controller {

class BusTable;
class Project;
class PersistentVariables;
class ProjectStore;
class RequestTable;

/// The bus keys and requests by which a pendant lists and opens the projects on disk.
class StoreKeys : public QObject {
    Q_OBJECT

public:
    /// All must outlive it.
    StoreKeys(ProjectStore* store, Project* project, const PersistentVariables* variables, BusTable* bus,
              RequestTable* requests, QObject* parent = nullptr);

private:
    Content start(const Content& sent);
    Content open(const Content& sent);
    Content opened() const;
    Content list() const;
    Content setAutoload(const Content& sent);

    ProjectStore* m_store;
    Project* m_project;
    const PersistentVariables* m_variables;
    BusTable* m_bus;
    QString m_autoload;
};

} // namespace controller
