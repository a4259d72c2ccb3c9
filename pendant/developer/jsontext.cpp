#include "jsontext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace pendant {

// A document holds an array or an object; anything else travels in an array of one.

QString compactJson(const QJsonValue& value) {
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

QString indentedJson(const QJsonValue& value) {
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson()).trimmed();
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson()).trimmed();
    return compactJson(value);
}

QJsonValue readJson(const QString& text) {
    const QJsonArray wrapped = QJsonDocument::fromJson('[' + text.toUtf8() + ']').array();
    return wrapped.size() == 1 ? wrapped.first() : QJsonValue(QJsonValue::Undefined);
}

} // namespace pendant
