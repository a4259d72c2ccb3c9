#pragma once

#include <QJsonValue>
#include <QString>

namespace controller {

/// Whether a variable of that type can hold `value`. Of the types "int", "double", "bool" and "QString" it is known
/// what they can; every other one holds anything.
bool fits(const QString& type, const QJsonValue& value);
/// What a variable can hold, in words.
QString whatFits(const QString& type);
/// The value as a text: a number with all its places, true or false, a list or an object as JSON.
QString textOf(const QJsonValue& value);

} // namespace controller
