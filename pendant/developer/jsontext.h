#pragma once

#include <QJsonValue>
#include <QString>

namespace pendant {

/// The JSON of any value, also of a single one, on one line.
QString compactJson(const QJsonValue& value);
/// The same with line breaks where it has members.
QString indentedJson(const QJsonValue& value);
/// The value that `text` spells, also a single one; undefined when it is no JSON.
QJsonValue readJson(const QString& text);

} // namespace pendant
