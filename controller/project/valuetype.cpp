#include "controller/project/valuetype.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariant>

#include <cmath>

namespace controller {

namespace {

const double mostInt = 2147483647;

bool isInt(const QJsonValue& value) {
    const double number = value.toDouble(0.5);
    return std::abs(number) <= mostInt + 1 && number < mostInt + 1 && std::floor(number) >= number;
}

} // namespace

bool fits(const QString& type, const QJsonValue& value) {
    if (type == QLatin1String("int"))
        return isInt(value);
    if (type == QLatin1String("double"))
        return value.isDouble();
    if (type == QLatin1String("bool"))
        return value.isBool();
    return type != QLatin1String("QString") || value.isString();
}

QString whatFits(const QString& type) {
    if (type == QLatin1String("int"))
        return QStringLiteral("a whole number");
    if (type == QLatin1String("double"))
        return QStringLiteral("a number");
    if (type == QLatin1String("bool"))
        return QStringLiteral("true or false");
    return type == QLatin1String("QString") ? QStringLiteral("a text") : QStringLiteral("any value");
}

QString textOf(const QJsonValue& value) {
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    if (value.isDouble() && isInt(value))
        return QString::number(value.toInt());
    return value.toVariant().toString();
}

} // namespace controller
