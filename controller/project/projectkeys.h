#pragma once

#include "controller/content.h"

#include <QObject>

namespace controller {

class BusTable;
class PersistentVariables;
class Project;

/// The bus keys by which a pendant mirrors the project and has variables removed.
class ProjectKeys : public QObject {
    Q_OBJECT

public:
    /// All must outlive it.
    ProjectKeys(Project* project, const PersistentVariables* variables, BusTable* bus, QObject* parent = nullptr);

private:
    Content put(const Content& sent);
    Content takeDeleted();
    Content change(const Content& sent);
    Content remove(const QStringList& names);

    Project* m_project;
    BusTable* m_bus;
};

} // namespace controller
