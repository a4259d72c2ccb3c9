#include "valuetext.h"

#include "jsontext.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>

#include <cmath>
#include <limits>

namespace pendant {

namespace {

QString doubleText(double number) {
    const QString text = QString::number(number, 'g', QLocale::FloatingPointShortest);
    const bool looksWhole =
        std::isfinite(number) && !text.contains(QLatin1Char('.')) && !text.contains(QLatin1Char('e'));
    return looksWhole ? text + QLatin1String(".0") : text;
}

bool isWhole(int type) {
    return type == QMetaType::Int || type == QMetaType::UInt || type == QMetaType::LongLong ||
           type == QMetaType::ULongLong;
}

// QVariant's own conversion cuts what is too big.
QVariant wholeNumber(const QString& text, int type) {
    bool ok = false;
    QVariant value;
    if (type == QMetaType::Int)
        value = text.toInt(&ok);
    else if (type == QMetaType::UInt)
        value = text.toUInt(&ok);
    else if (type == QMetaType::LongLong)
        value = text.toLongLong(&ok);
    else
        value = text.toULongLong(&ok);
    return ok ? value : QVariant();
}

bool isJson(int type) {
    switch (type) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
    case QMetaType::QJsonValue:
    case QMetaType::QJsonObject:
    case QMetaType::QJsonArray:
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return true;
    default:
        return false;
    }
}

bool isList(int type) {
    return type == QMetaType::QJsonArray || type == QMetaType::QVariantList || type == QMetaType::QStringList;
}

bool isMap(int type) {
    return type == QMetaType::QJsonObject || type == QMetaType::QVariantMap || type == QMetaType::QVariantHash;
}

// A whole number stays one; JSON itself does not tell.
QVariant leaf(const QJsonValue& json) {
    const double number = json.toDouble();
    const bool fitsInt =
        json.isDouble() && std::trunc(number) == number && std::abs(number) <= std::numeric_limits<int>::max();
    return fitsInt ? QVariant(static_cast<int>(number)) : json.toVariant();
}

QVariant asType(const QJsonValue& json, int type) {
    if (type == QMetaType::QJsonValue)
        return QVariant::fromValue(json);
    if (type == QMetaType::QJsonArray)
        return json.toArray();
    if (type == QMetaType::QJsonObject)
        return json.toObject();
    if (type == QMetaType::QStringList)
        return json.toVariant().toStringList();
    return isList(type) || isMap(type) ? json.toVariant() : leaf(json);
}

} // namespace

QString valueText(const QVariant& value) {
    const int type = value.userType();
    if (!value.isValid())
        return QString();
    if (type == QMetaType::Double || type == QMetaType::Float)
        return doubleText(value.toDouble());
    if (isWhole(type))
        return value.toString();
    return compactJson(QJsonValue::fromVariant(value));
}

QString editText(const QVariant& value) {
    return value.isValid() && !isJson(value.userType()) && value.canConvert<QString>() &&
                   value.userType() != QMetaType::Double
               ? value.toString()
               : valueText(value);
}

ValueReader::Result ValueReader::read(const QString& text, const QVariant& present) {
    const int type = present.userType();
    if (type == QMetaType::QString)
        return {text, QString()};
    if (isWhole(type))
        return readWhole(text.trimmed(), type);
    if (type == QMetaType::Double)
        return readDouble(text.trimmed());
    if (type == QMetaType::Bool)
        return readBool(text.trimmed());
    return isJson(type) ? readJsonAs(text, type) : readOther(text, type);
}

ValueReader::Result ValueReader::readWhole(const QString& text, int type) {
    const QVariant value = wholeNumber(text, type);
    if (value.isValid())
        return {value, QString()};
    return {QVariant(), tr("“%1” is not a whole number, or too big a one.").arg(text)};
}

ValueReader::Result ValueReader::readDouble(const QString& text) {
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (ok && std::isfinite(number))
        return {number, QString()};
    return {QVariant(), tr("“%1” is not a number. It is written with a point, such as 12.5.").arg(text)};
}

ValueReader::Result ValueReader::readBool(const QString& text) {
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return {true, QString()};
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return {false, QString()};
    return {QVariant(), tr("“%1” is neither true nor false.").arg(text)};
}

ValueReader::Result ValueReader::readJsonAs(const QString& text, int type) {
    const QJsonValue json = readJson(text);
    if (json.isUndefined())
        return {QVariant(), tr("“%1” is not JSON. A text stands in quotes.").arg(text)};
    if (isList(type) && !json.isArray())
        return {QVariant(), tr("“%1” is not a JSON array, and an array stands here.").arg(text)};
    if (isMap(type) && !json.isObject())
        return {QVariant(), tr("“%1” is not a JSON object, and an object stands here.").arg(text)};
    return {asType(json, type), QString()};
}

ValueReader::Result ValueReader::readOther(const QString& text, int type) {
    QVariant value(text);
    if (value.convert(type))
        return {value, QString()};
    return {QVariant(), tr("“%1” is no value of the type %2.").arg(text, QLatin1String(QMetaType::typeName(type)))};
}

} // namespace pendant
