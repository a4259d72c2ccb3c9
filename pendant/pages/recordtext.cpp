#include "recordtext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

using brisk::ModuleObject;

namespace pendant {

namespace {

// A table cell shows no more.
const int elementsAtMost = 20;

QString elementText(const ModuleObject* element) {
    const QJsonValue json = element->exportToJson(true);
    if (json.isObject())
        return QString::fromUtf8(QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact));
    if (json.isArray())
        return QString::fromUtf8(QJsonDocument(json.toArray()).toJson(QJsonDocument::Compact));
    return element->getString();
}

} // namespace

QString fieldOf(ModuleObject* record, const QString& path) {
    const ModuleObject* field = record->r(path);
    return field ? field->getString() : QString();
}

QString numberOf(ModuleObject* record, const QString& path, int decimals) {
    const ModuleObject* field = record->r(path);
    const QString text = QString::number(field ? field->getDouble() : 0, 'f', decimals);
    // What rounds to nothing has no sign.
    return text.toDouble() < 0 || !text.startsWith(QLatin1Char('-')) ? text : text.mid(1);
}

QString valueOfVariable(ModuleObject* record) {
    ModuleObject* value = record->c(QStringLiteral("value"));
    const int count = value ? value->cmobjCount() : 0;
    if (count == 1)
        return elementText(value->c(0));
    QStringList texts;
    for (int i = 0; i < count && i < elementsAtMost; ++i)
        texts << elementText(value->c(i));
    if (count > elementsAtMost)
        texts << QStringLiteral("…");
    return count == 0 ? QString() : QStringLiteral("[%1]").arg(texts.join(QStringLiteral(", ")));
}

} // namespace pendant
