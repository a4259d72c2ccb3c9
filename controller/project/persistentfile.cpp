#include "controller/project/persistentfile.h"

#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/project/wholefile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

using brisk::standin::contentOf;
using brisk::standin::jsonOf;

namespace controller {

namespace {

QString recordsMember() {
    return QStringLiteral("records");
}

QString projectMember() {
    return QStringLiteral("project");
}

QString listedMember() {
    return QStringLiteral("listed");
}

bool readObject(const QString& path, QJsonObject* json, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("The persistent variables in %1 cannot be read: %2.").arg(path, file.errorString());
        return false;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    *json = document.object();
    const bool isGood = json->value(recordsMember()).isArray() && json->value(listedMember()).isObject();
    if (!isGood)
        *error = QStringLiteral("The file %1 holds no persistent variables. Remove it, and they begin anew.").arg(path);
    return isGood;
}

// Empty when no variable has that name.
QString nodeOf(const RecordList& list, const QString& name) {
    for (const QString& node : list.nodes()) {
        if (textAt(list.record(node), QStringLiteral("name")) == name)
            return node;
    }
    return QString();
}

} // namespace

PersistentFile::PersistentFile(Project* project, PersistentVariables* variables, QObject* parent)
    : QObject(parent), m_project(project), m_variables(variables) {
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &PersistentFile::save);
    connect(variables, &PersistentVariables::changed, this, [this] {
        if (!m_path.isEmpty())
            m_soon.start(0);
    });
}

PersistentFile::~PersistentFile() {
    if (m_soon.isActive())
        save();
}

bool PersistentFile::keepIn(const QString& path, QString* error) {
    m_soon.stop();
    m_path.clear();
    QJsonObject json;
    if (QFile::exists(path) && !readObject(path, &json, error))
        return false;
    restore(json);
    m_path = path;
    return true;
}

void PersistentFile::restore(const QJsonObject& json) {
    const QString project = json.value(projectMember()).toString(m_project->reference());
    const bool areOfThis = project == m_project->reference();
    for (const QJsonValue& record : areOfThis ? json.value(recordsMember()).toArray() : QJsonArray())
        restoreRecord(record.toObject());
    const QJsonObject listed = json.value(listedMember()).toObject();
    for (auto entry = listed.constBegin(); entry != listed.constEnd(); ++entry) {
        const QJsonObject kept = entry.value().toObject();
        const bool isSame = m_variables->variable(entry.key()).type == kept.value("type").toString();
        if (isSame && m_variables->isListed(entry.key()))
            m_variables->modify({{entry.key(), kept.value("value")}});
    }
}

void PersistentFile::restoreRecord(const QJsonObject& json) {
    const Content kept = contentOf(QVariant(json));
    const PersistentVariable variable = variableIn(kept);
    const QString node = nodeOf(m_project->variables(), variable.name);
    if (node.isEmpty())
        return m_project->appendVariable(kept);
    const Content record = copied(m_project->variables().record(node));
    if (!isPersistent(record) || variableIn(record).type != variable.type)
        return;
    writeValue(record.get(), variable.value);
    const Content records = copied(nullptr);
    records->append(nullptr, node)->copyFrom(record.get());
    m_project->put(records, nullptr, false);
}

QJsonObject PersistentFile::present() const {
    QJsonArray records;
    const RecordList& variables = m_project->variables();
    for (const QString& node : variables.nodes()) {
        if (!isPersistent(variables.record(node)))
            continue;
        const Content record = copied(variables.record(node));
        writeValue(record.get(), m_variables->variable(variableIn(record).name).value);
        records << jsonOf(record);
    }
    QJsonObject listed;
    for (const QString& name : m_variables->names()) {
        const PersistentVariable variable = m_variables->variable(name);
        if (m_variables->isListed(name))
            listed.insert(name, QJsonObject{{"type", variable.type}, {"value", variable.value}});
    }
    return {{projectMember(), m_project->reference()}, {recordsMember(), records}, {listedMember(), listed}};
}

void PersistentFile::save() {
    const QString why = writeWhole(m_path, QJsonDocument(present()).toJson());
    if (!why.isEmpty())
        emit failed(QStringLiteral("The persistent variables cannot be written to %1: %2.").arg(m_path, why));
}

} // namespace controller
