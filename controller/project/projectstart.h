#pragma once

#include <QJsonObject>
#include <QString>
#include <QVector>

namespace controller {

/// A robot project as it is at the start, its records as they stand in the pendant's tree.
struct ProjectStart {
    QString name;
    QString function;
    QString task;
    QJsonObject variableTemplate;
    QJsonObject pointTemplate;
    QVector<QJsonObject> variables;
    QVector<QJsonObject> points;
};

/// No variables and no points.
ProjectStart emptyProject();

/// The element of a variable's or point's "value" that holds it.
QString onlyElement();

} // namespace controller
