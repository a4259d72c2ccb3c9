#include "brisk/link.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace brisk {
namespace standin {

namespace {

bool hasChildren(const QVariant& value) {
    switch (value.userType()) {
    case QMetaType::QJsonValue:
    case QMetaType::QJsonObject:
    case QMetaType::QJsonArray:
    case QMetaType::QJsonDocument:
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return true;
    default:
        return false;
    }
}

QJsonValue jsonIn(const QVariant& value) {
    if (value.userType() != QMetaType::QJsonDocument)
        return QJsonValue::fromVariant(value);
    const QJsonDocument document = value.toJsonDocument();
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

Content emptyContent() {
    return std::make_shared<ModuleObject>(QStringLiteral("content"));
}

} // namespace

Content contentOf(const QVariant& value) {
    const Content content = emptyContent();
    if (hasChildren(value))
        content->importFromJson(nullptr, jsonIn(value), false, true, true);
    else
        content->setValue(nullptr, value, false);
    return content;
}

Content contentOf(const ModuleObject* node) {
    if (!node)
        return nullptr;
    const Content content = emptyContent();
    content->copyFrom(node);
    return content;
}

Content refusal(const QString& text) {
    const Content content = emptyContent();
    content->setValue(nullptr, -1, false);
    content->set(nullptr, QStringLiteral("error"), text, false);
    return content;
}

QJsonValue jsonOf(const Content& content) {
    if (!content)
        return QJsonValue();
    QJsonValue json = content->exportToJson(true);
    if (!json.isObject() || !content->value().isValid())
        return json;
    QJsonObject both = json.toObject();
    both.insert(QString(), content->exportToJson(false));
    return both;
}

Link::Link(QObject* parent) : QObject(parent) {}
Link::~Link() = default;

} // namespace standin
} // namespace brisk
