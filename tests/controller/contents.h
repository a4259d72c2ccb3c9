#pragma once

#include "controller/content.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <QString>
#include <QVariant>

/// Contents and their JSON in the short form in which tests compare them.

inline controller::Content content(const char* json) {
    const QByteArray wrapped = QByteArray("[") + json + ']';
    const QJsonDocument document = QJsonDocument::fromJson(wrapped);
    if (!document.isArray())
        qFatal("no JSON: %s", json);
    return brisk::standin::contentOf(QVariant(document.array().first()));
}

/// "null" for null and for an empty content.
inline QString text(const controller::Content& content) {
    const QJsonDocument wrapped(QJsonArray{brisk::standin::jsonOf(content)});
    const QString json = QString::fromUtf8(wrapped.toJson(QJsonDocument::Compact));
    return json.mid(1, json.size() - 2);
}

/// What a refusal says; empty for any other content.
inline QString refusalOf(const controller::Content& content) {
    const bool isRefusal = content && content->getInt(0) == -1 && content->hasCmobj("error");
    return isRefusal ? content->c("error")->getString() : QString();
}

/// The names of the children in their order.
inline QString childNames(const controller::Content& content) {
    QStringList names;
    for (const brisk::ModuleObject* child : content->cmobjs())
        names << child->name();
    return names.join(' ');
}
