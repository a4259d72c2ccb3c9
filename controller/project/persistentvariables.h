#pragma once

#include "controller/content.h"

#include <QHash>
#include <QJsonValue>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace controller {

class Project;

/// A variable whose value outlives the controller.
struct PersistentVariable {
    QString name;
    QString type;
    QJsonValue value;
};

/// The present values of the persistent variables: those that a cell lists, and those of the project, which have "pers"
/// true in their record.
class PersistentVariables : public QObject {
    Q_OBJECT

public:
    /// Follows `project`, which must outlive it.
    explicit PersistentVariables(Project* project, QObject* parent = nullptr);

    /// The ones that belong to the cell.
    void list(const QVector<PersistentVariable>& variables);
    bool isListed(const QString& name) const { return m_listed.contains(name); }

    bool contains(const QString& name) const { return m_variables.contains(name); }
    PersistentVariable variable(const QString& name) const { return m_variables.value(name); }
    QStringList names() const { return m_variables.keys(); }

    /// Sets all of `values`, by name.
    /// \return what is wrong, a sentence, and nothing is set then; empty when all is well
    QString modify(const QMap<QString, QJsonValue>& values);

    /// Puts the present values into the records of `list`, a list of variables. Null does nothing.
    void writeInto(brisk::ModuleObject* list) const;

signals:
    /// Values changed, variables came or went.
    void changed();

private:
    void follow(const Content& previous, const Content& present);
    void tell();
    void letGo(const QString& name);

    QMap<QString, PersistentVariable> m_variables;
    QStringList m_listed;
    QHash<QString, int> m_records; // of the project, by name
    bool m_hasChanged = false;
};

/// Whether the record of a variable says that it is persistent.
bool isPersistent(const Content& record);
/// What the record of a variable says.
PersistentVariable variableIn(const Content& record);
/// Its value as JSON goes there.
void writeValue(brisk::ModuleObject* record, const QJsonValue& value);

} // namespace controller
