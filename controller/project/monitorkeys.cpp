#include "controller/project/monitorkeys.h"

#include "controller/bustable.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/valuetype.h"

#include <QJsonArray>
#include <QJsonObject>

using brisk::standin::contentOf;
using brisk::standin::jsonOf;

namespace controller {

namespace {

QString selectKey() {
    return QStringLiteral("monitor.select");
}

QString listKey() {
    return QStringLiteral("monitor.pers");
}

QStringList namesIn(const Content& sent) {
    QStringList names;
    const QList<brisk::ModuleObject*> children = sent ? sent->cmobjs() : QList<brisk::ModuleObject*>();
    for (const brisk::ModuleObject* child : children)
        names << child->getString();
    return names;
}

} // namespace

MonitorKeys::MonitorKeys(PersistentVariables* variables, BusTable* bus, QObject* parent)
    : QObject(parent), m_variables(variables), m_bus(bus) {
    bus->defineComputed(
        selectKey(), [this] { return contentOf(QVariant(QJsonArray::fromStringList(m_selected))); },
        [this](const QString& subKey, const Content& sent) {
            if (!subKey.isEmpty())
                return QStringLiteral("Set the bus key \"monitor.select\" as a whole: a list of names.");
            select(namesIn(sent));
            return QString();
        });
    bus->defineComputed(listKey(), [this] { return selected(); });
    bus->onCommand(QStringLiteral("monitor.pers.read"), [this](const Content& sent) { return read(namesIn(sent)); });
    bus->onCommand(QStringLiteral("monitor.pers.modify"), [this](const Content& sent) { return modify(sent); });
    connect(variables, &PersistentVariables::changed, this, [this] { m_bus->tell(listKey()); });
}

void MonitorKeys::select(const QStringList& names) {
    m_selected = names;
    noticeUnknown(names);
    m_bus->tell(listKey());
}

Content MonitorKeys::selected() const {
    QJsonArray list;
    for (const QString& name : m_selected) {
        const PersistentVariable variable = m_variables->variable(name);
        if (m_variables->contains(name))
            list << QJsonObject{{"name", name}, {"type", variable.type}, {"value", variable.value}};
    }
    return contentOf(QVariant(list));
}

Content MonitorKeys::read(const QStringList& names) {
    noticeUnknown(names);
    QJsonArray values;
    for (const QString& name : names)
        values << textOf(m_variables->variable(name).value);
    return contentOf(QVariant(QJsonObject{{"data", values}}));
}

Content MonitorKeys::modify(const Content& sent) {
    QMap<QString, QJsonValue> values;
    const QList<brisk::ModuleObject*> children = sent ? sent->cmobjs() : QList<brisk::ModuleObject*>();
    for (const brisk::ModuleObject* child : children)
        values.insert(child->name(), jsonOf(contentOf(child)));
    const QString refusal = m_variables->modify(values);
    return refusal.isEmpty() ? nullptr : m_bus->refused(refusal);
}

void MonitorKeys::noticeUnknown(const QStringList& names) {
    for (const QString& name : names) {
        if (!m_variables->contains(name))
            emit m_bus->noticed(QStringLiteral("The controller knows no persistent variable \"%1\".").arg(name));
    }
}

} // namespace controller
