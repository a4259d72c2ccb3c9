#include "controller/project/persistentvariables.h"

#include "controller/project/project.h"
#include "controller/project/valuetype.h"

using brisk::standin::contentOf;
using brisk::standin::jsonOf;

namespace controller {

namespace {

QString valuePath() {
    return QStringLiteral("value.") + onlyElement();
}

bool sayTheSame(const PersistentVariable& one, const PersistentVariable& other) {
    return one.name == other.name && one.type == other.type && one.value == other.value;
}

} // namespace

bool isPersistent(const Content& record) {
    const brisk::ModuleObject* node = record ? record->c(QStringLiteral("pers")) : nullptr;
    return node && node->getBool();
}

PersistentVariable variableIn(const Content& record) {
    return {textAt(record, QStringLiteral("name")), textAt(record, QStringLiteral("type")),
            jsonOf(contentOf(record->r(valuePath())))};
}

void writeValue(brisk::ModuleObject* record, const QJsonValue& value) {
    record->r(valuePath(), true)->copyFrom(contentOf(QVariant(value)).get());
}

PersistentVariables::PersistentVariables(Project* project, QObject* parent) : QObject(parent) {
    connect(project, &Project::variableChanged, this, &PersistentVariables::follow);
    connect(project, &Project::changed, this, &PersistentVariables::tell);
}

void PersistentVariables::list(const QVector<PersistentVariable>& variables) {
    const QStringList before = m_listed;
    m_listed.clear();
    for (const QString& name : before) {
        if (!m_records.contains(name))
            m_variables.remove(name);
    }
    for (const PersistentVariable& variable : variables) {
        m_listed << variable.name;
        m_variables.insert(variable.name, variable);
    }
    emit changed();
}

QString PersistentVariables::modify(const QMap<QString, QJsonValue>& values) {
    for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
        if (!contains(value.key()))
            return QStringLiteral("The controller knows no persistent variable \"%1\".").arg(value.key());
        const QString type = variable(value.key()).type;
        if (!fits(type, value.value()))
            return QStringLiteral("The persistent variable \"%1\" takes %2, not %3.")
                .arg(value.key(), whatFits(type), textOf(value.value()));
    }
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        m_variables[value.key()].value = value.value();
    emit changed();
    return QString();
}

void PersistentVariables::writeInto(brisk::ModuleObject* list) const {
    const QList<brisk::ModuleObject*> records = list ? list->cmobjs() : QList<brisk::ModuleObject*>();
    for (brisk::ModuleObject* node : records) {
        const Content record = contentOf(node);
        const QString name = textAt(record, QStringLiteral("name"));
        if (isPersistent(record) && contains(name))
            writeValue(node, variable(name).value);
    }
}

// The value in a record counts when it is new there: the controller's own may have gone on since.
void PersistentVariables::follow(const Content& previous, const Content& present) {
    const PersistentVariable before = isPersistent(previous) ? variableIn(previous) : PersistentVariable();
    const PersistentVariable now = isPersistent(present) ? variableIn(present) : PersistentVariable();
    if (isPersistent(present))
        ++m_records[now.name];
    if (isPersistent(previous))
        letGo(before.name);
    if (sayTheSame(before, now))
        return;
    m_hasChanged = true;
    if (isPersistent(present))
        m_variables.insert(now.name, now);
}

// The last record of a name takes the variable along.
void PersistentVariables::letGo(const QString& name) {
    if (--m_records[name] > 0)
        return;
    m_records.remove(name);
    if (!isListed(name))
        m_variables.remove(name);
}

void PersistentVariables::tell() {
    if (!m_hasChanged)
        return;
    m_hasChanged = false;
    emit changed();
}

} // namespace controller
