#include "controller/project/project.h"

using brisk::standin::contentOf;

namespace controller {

namespace {

Content recordOf(const QJsonObject& json) {
    return contentOf(QVariant(json));
}

void appendAll(const QVector<QJsonObject>& records, RecordList* list) {
    list->clear();
    for (const QJsonObject& record : records)
        list->append(recordOf(record));
}

void set(const Content& content, const char* path, const QVariant& value) {
    content->set(nullptr, QLatin1String(path), value, false);
}

void copyTo(const Content& content, const char* name, const Content& copied) {
    content->append(nullptr, QLatin1String(name))->copyFrom(copied.get());
}

Content variablesOf(const QJsonObject& recordTemplate, const RecordList& list) {
    const Content content = copied(nullptr);
    set(content, "built", true);
    copyTo(content, "default", recordOf(recordTemplate));
    copyTo(content, "_list", list.content());
    return content;
}

Content pointsOf(const QJsonObject& recordTemplate, const RecordList& list) {
    const Content content = copied(nullptr);
    copyTo(content, "default", recordOf(recordTemplate));
    copyTo(content, "_list", list.content());
    set(content, "hot_update.operate", QString());
    content->r(QStringLiteral("hot_update.points"), true)->setList(nullptr, {}, false);
    return content;
}

// Under their names; null for one that is empty.
QVector<QPair<QString, Content>> recordsIn(const Content& sent) {
    QVector<QPair<QString, Content>> records;
    const QList<brisk::ModuleObject*> children = sent ? sent->cmobjs() : QList<brisk::ModuleObject*>();
    for (const brisk::ModuleObject* child : children)
        records.append({child->name(), child->isEmpty() ? nullptr : contentOf(child)});
    return records;
}

QStringList nodesWithout(const RecordList& list, const Content& sent) {
    QStringList nodes;
    for (const QString& node : list.nodes()) {
        if (!sent || !sent->hasCmobj(node))
            nodes << node;
    }
    return nodes;
}

} // namespace

Project::Project(QObject* parent) : QObject(parent), m_cells(emptyProject()), m_start(m_cells) {
    setRobot(QString());
}

void Project::setRobot(const QString& id) {
    m_robot = id.isEmpty() ? QStringLiteral("LOCALHOST") : id;
}

void Project::start(const ProjectStart& start) {
    m_cells = start;
    open(start);
}

// What was deleted of another one is no matter of this.
void Project::open(const ProjectStart& start) {
    m_start = start;
    m_deleted = Deleted();
    put(nullptr, nullptr, true);
    appendAll(start.points, &m_points);
    for (const QJsonObject& record : start.variables)
        appendVariable(recordOf(record));
}

void Project::refuseToRemove(const QStringList& names) {
    m_refused = QSet<QString>(names.begin(), names.end());
}

Content Project::content() const {
    const Content content = copied(nullptr);
    set(content, "cur_project", reference());
    set(content, "cur_func", m_start.function);
    set(content, "cur_task", m_start.task);
    copyTo(content, "var", variablesOf(m_start.variableTemplate, m_variables));
    copyTo(content, "point", pointsOf(m_start.pointTemplate, m_points));
    return content;
}

void Project::put(const Content& variables, const Content& points, bool replace) {
    if (replace) {
        for (const QString& node : nodesWithout(m_variables, variables))
            putVariable(node, nullptr);
        for (const QString& node : nodesWithout(m_points, points))
            m_points.put(node, nullptr);
    }
    for (const auto& [node, record] : recordsIn(variables))
        putVariable(node, record);
    for (const auto& [node, record] : recordsIn(points))
        m_points.put(node, record);
    emit changed();
}

void Project::appendVariable(const Content& record) {
    m_variables.append(record);
    emit variableChanged(nullptr, record);
    emit changed();
}

void Project::putVariable(const QString& node, const Content& record) {
    const Content previous = m_variables.record(node);
    m_variables.put(node, record);
    if (previous || record)
        emit variableChanged(previous, record);
}

QString Project::refusedOf(const QStringList& names) const {
    for (const QString& name : names) {
        if (m_refused.contains(name))
            return name;
    }
    return QString();
}

void Project::removeVariables(const QStringList& names) {
    QSet<QString> notThere(names.begin(), names.end());
    const QSet<QString> wanted = notThere;
    const QStringList nodes = m_variables.nodes();
    for (const QString& node : nodes) {
        const QString name = textAt(m_variables.record(node), QStringLiteral("name"));
        if (!wanted.contains(name))
            continue;
        notThere.remove(name);
        m_deleted.nodes << node;
        putVariable(node, nullptr);
    }
    for (const QString& name : notThere)
        m_deleted.names << name;
    emit changed();
}

Project::Deleted Project::takeDeleted() {
    Deleted deleted;
    std::swap(deleted, m_deleted);
    return deleted;
}

} // namespace controller
