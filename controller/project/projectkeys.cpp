#include "controller/project/projectkeys.h"

#include "controller/bustable.h"
#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"

#include <QRegularExpression>

using brisk::standin::contentOf;

namespace controller {

namespace {

const int done = 0;
const int refusedByTheCell = 1;

Content childOf(const Content& content, const QString& name) {
    return content ? contentOf(content->c(name)) : nullptr;
}

// The first name that no item of a list has.
QString oddName(const Content& records) {
    static const QRegularExpression item(QStringLiteral("^#(0|[1-9][0-9]*)$"));
    const QList<brisk::ModuleObject*> children = records ? records->cmobjs() : QList<brisk::ModuleObject*>();
    for (const brisk::ModuleObject* child : children) {
        if (!item.match(child->name()).hasMatch())
            return child->name();
    }
    return QString();
}

QStringList namesIn(const Content& list) {
    QStringList names;
    const QList<brisk::ModuleObject*> children = list ? list->cmobjs() : QList<brisk::ModuleObject*>();
    for (const brisk::ModuleObject* child : children)
        names << child->getString();
    return names;
}

void setList(const Content& content, const char* name, const QStringList& texts) {
    content->append(nullptr, QLatin1String(name))->setList(nullptr, QVariant(texts).toList(), false);
}

} // namespace

ProjectKeys::ProjectKeys(Project* project, const PersistentVariables* variables, BusTable* bus, QObject* parent)
    : QObject(parent), m_project(project), m_bus(bus) {
    bus->defineComputed(QStringLiteral("mirror.project"), [=] {
        const Content content = project->content();
        variables->writeInto(content->r(QStringLiteral("var._list")));
        return content;
    });
    bus->onCommand(QStringLiteral("mirror.put"), [this](const Content& sent) { return put(sent); });
    bus->onCommand(QStringLiteral("mirror.deleted"), [this](const Content&) { return takeDeleted(); });
    bus->onCommand(QStringLiteral("project.variable"), [this](const Content& sent) { return change(sent); });
}

Content ProjectKeys::put(const Content& sent) {
    const Content variables = childOf(sent, QStringLiteral("var"));
    const Content points = childOf(sent, QStringLiteral("point"));
    const QString odd = oddName(variables) + oddName(points);
    if (!odd.isEmpty())
        return m_bus->refused(QStringLiteral("The record \"%1\" has no name of a list's item, as \"#0\".").arg(odd));
    const QString project = textAt(sent, QStringLiteral("project"));
    if (!project.isEmpty() && project != m_project->reference())
        return m_bus->refused(
            QStringLiteral("The records of the project %1 were not taken: it is not open.").arg(project));
    const Content replace = childOf(sent, QStringLiteral("replace"));
    m_project->put(variables, points, replace && replace->getBool());
    return nullptr;
}

Content ProjectKeys::takeDeleted() {
    const Project::Deleted deleted = m_project->takeDeleted();
    const Content answer = copied(nullptr);
    setList(answer, "var", deleted.nodes);
    setList(answer, "names", deleted.names);
    return answer;
}

Content ProjectKeys::change(const Content& sent) {
    const QString operation = textAt(sent, QStringLiteral("operator"));
    if (operation == QLatin1String("remove"))
        return remove(namesIn(childOf(sent, QStringLiteral("variables"))));
    return m_bus->refused(
        QStringLiteral("Variables can be changed by the operator \"remove\", not by \"%1\".").arg(operation));
}

Content ProjectKeys::remove(const QStringList& names) {
    const QString refused = m_project->refusedOf(names);
    if (refused.isEmpty()) {
        m_project->removeVariables(names);
        return contentOf(QVariant(done));
    }
    const Content answer =
        m_bus->refused(QStringLiteral("The cell refuses to remove the variable \"%1\".").arg(refused));
    answer->setValue(nullptr, refusedByTheCell, false);
    return answer;
}

} // namespace controller
