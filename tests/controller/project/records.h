#pragma once

#include "controller/content.h"
#include "controller/project/projectstart.h"

#include <QJsonObject>

/// Records of variables as tests write them.

inline QJsonObject variableRecord(const QString& name, const QString& type, const QJsonValue& value, bool pers = true) {
    return {{"name", name}, {"type", type}, {"pers", pers}, {"value", QJsonObject{{controller::onlyElement(), value}}}};
}

/// The record under the name of a node, to be put.
inline controller::Content underNode(const QString& node, const QJsonObject& record) {
    return brisk::standin::contentOf(QVariant(QJsonObject{{node, record}}));
}
