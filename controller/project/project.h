#pragma once

#include "controller/project/projectstart.h"
#include "controller/project/recordlist.h"

#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

namespace controller {

/// The robot project that a pendant mirrors to its controller.
class Project : public QObject {
    Q_OBJECT

public:
    /// What is asked away from the controller and gone there, until the pendant has heard of it.
    struct Deleted {
        QStringList nodes; ///< of variable records
        QStringList names; ///< that no record had
    };

    explicit Project(QObject* parent = nullptr);

    /// Begins as the cell says.
    void start(const ProjectStart& start);
    const ProjectStart& cellsStart() const { return m_cells; }
    /// Becomes another project.
    void open(const ProjectStart& start);
    /// What it began as; its records are those of then.
    const ProjectStart& startedAs() const { return m_start; }

    /// Whose projects these are: the robot's identifier; an empty one is written "LOCALHOST".
    void setRobot(const QString& id);
    const QString& robot() const { return m_robot; }
    /// "ROBOT/NAME", by which the pendant calls a project.
    QString referenceOf(const QString& name) const { return m_robot + QLatin1Char('/') + name; }
    QString reference() const { return referenceOf(m_start.name); }

    /// Variables whose removal is refused.
    void refuseToRemove(const QStringList& names);

    const RecordList& variables() const { return m_variables; }
    const RecordList& points() const { return m_points; }
    /// As it stands in the pendant's tree.
    Content content() const;

    /// Takes the children of `variables` and `points`, either may be null, as records under their names; an empty one
    /// takes the record away.
    /// \param replace what is not named goes
    void put(const Content& variables, const Content& points, bool replace);
    void appendVariable(const Content& record);

    /// The first of `names` that must not be removed; empty when there is none.
    QString refusedOf(const QStringList& names) const;
    /// Removes every variable of these names.
    void removeVariables(const QStringList& names);
    /// What was removed since the call before.
    Deleted takeDeleted();

signals:
    /// A record came, changed or went; null for one that is not there.
    void variableChanged(const brisk::standin::Content& previous, const brisk::standin::Content& present);
    /// After one or many records changed.
    void changed();

private:
    void putVariable(const QString& node, const Content& record);

    QString m_robot;
    ProjectStart m_cells;
    ProjectStart m_start;
    RecordList m_variables;
    RecordList m_points;
    QSet<QString> m_refused;
    Deleted m_deleted;
};

} // namespace controller
