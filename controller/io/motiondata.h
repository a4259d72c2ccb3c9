#pragma once

#include "controller/content.h"
#include "controller/robot/robotmodel.h"

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVector>

namespace controller {

class Robot;

/// Whose a tool or work object is.
enum class Scope { System, Project, Global };

/// What a cell says of the names that a motion instruction can refer to, beside the robot's own.
struct MotionNames {
    QMap<QString, Scope> toolScopes; ///< of those that are not the project's
    QMap<QString, Scope> wobjScopes;
    QVector<QJsonObject> variables; ///< of the system: speeds and zones, records as in the pendant's tree
};

/// The tools, work objects, speeds and zones that a motion instruction can refer to.
class MotionData : public QObject {
    Q_OBJECT

public:
    /// \param robot whose tools and work objects they are; must outlive it
    explicit MotionData(const Robot* robot, QObject* parent = nullptr);

    void start(const MotionNames& names);

    /// "tools" and "wobjs", each with the lists "system", "project" and "global" of records with "name" and "frame";
    /// and the list "variables".
    Content content() const;

signals:
    void changed();

private:
    const Robot* m_robot;
    MotionNames m_names;
};

} // namespace controller
