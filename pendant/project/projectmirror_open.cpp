// How a project comes into the tree: the first one, and others after it.

#include "autoload.h"
#include "earlyrecords.h"
#include "links.h"
#include "projectkeys.h"
#include "projectmirror.h"
#include "workspace.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"
#include "helm/messagelist.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QScopedValueRollback>
#include <QTimer>

#include <algorithm>

using brisk::ModuleObject;
using brisk::standin::Content;
using brisk::standin::contentOf;
using brisk::standin::jsonOf;

namespace pendant {

namespace {

const QString curProject = QStringLiteral("cur_project");

QJsonArray listIn(const QJsonObject& project, const QString& part) {
    return project.value(part).toObject().value(QStringLiteral("_list")).toArray();
}

bool areInOrder(ModuleObject* list) {
    const QList<ModuleObject*> records = list ? list->cmobjs() : QList<ModuleObject*>();
    int next = 0;
    return std::all_of(records.begin(), records.end(), [&](const ModuleObject* record) {
        return record->name() == QLatin1Char('#') + QString::number(next++);
    });
}

void clear(const QString& key, QObject* sender) {
    m(key)->clear(sender, true, false);
}

} // namespace

void ProjectMirror::load() {
    const Content reply = m_autoload ? askForStart() : contentOf(relay()->get(this, QStringLiteral("mirror.project")));
    const QJsonObject project = jsonOf(reply).toObject();
    if (!project.contains(curProject))
        return;
    const bool keepNames =
        areInOrder(reply->r(QStringLiteral("var._list"))) && areInOrder(reply->r(QStringLiteral("point._list")));
    const EarlyRecords variables(m_variables.node(), listIn(project, QStringLiteral("var")));
    const EarlyRecords points(m_points.node(), listIn(project, QStringLiteral("point")));
    take(project);
    variables.putBack(m_variables.node());
    points.putBack(m_points.node());
    // In the tree the records are numbered anew.
    if (!keepNames)
        pushAll();
}

Content ProjectMirror::askForStart() {
    ModuleObject request(QStringLiteral("start"));
    request.set(nullptr, QStringLiteral("workspace"), Workspace::path());
    request.set(nullptr, QStringLiteral("project"), m(projectkeys::name())->getString());
    request.set(nullptr, QStringLiteral("autoload"), m_autoload->path());
    return contentOf(relay()->execCommand(this, QStringLiteral("mirror.start"), &request));
}

void ProjectMirror::take(const QJsonObject& project) {
    if (m_autoload)
        m_open = project.value(curProject).toString(m(projectkeys::name())->getString());
    m_variables.setTold(listIn(project, QStringLiteral("var")).size());
    m_points.setTold(listIn(project, QStringLiteral("point")).size());
    clear(projectkeys::info(), this);
    m(projectkeys::project())->importFromJson(this, project, true, true, false);
    if (m_autoload)
        m_autoload->setPath(this, m_open.section(QLatin1Char('/'), 1) + QLatin1Char('/') +
                                      m(projectkeys::function())->getString());
}

// Somebody may have made a folder of the same name in the place of one that was deleted.
bool ProjectMirror::isAnotherNamed() const {
    const QString named = m(projectkeys::name())->getString();
    if (!m_autoload || m_open.isEmpty() || named.isEmpty())
        return false;
    return named != m_open || Workspace::isBlank(named);
}

void ProjectMirror::open() {
    if (m_isOpening) {
        QTimer::singleShot(0, this, [this] { followName(nullptr); });
        return;
    }
    if (!links::areUp())
        return;
    const QScopedValueRollback<bool> opening(m_isOpening, true);
    const QString reference = m(projectkeys::name())->getString();
    push();
    ModuleObject request(QStringLiteral("open"));
    request.set(nullptr, QStringLiteral("project"), reference);
    const Content reply = contentOf(relay()->execCommand(this, QStringLiteral("mirror.open"), &request));
    const QJsonObject project = jsonOf(reply).toObject();
    if (project.value(curProject).toString() == reference)
        replaceBy(project);
    else
        refuse(reference, project.value(QStringLiteral("error")).toString());
}

void ProjectMirror::replaceBy(QJsonObject project) {
    for (RecordList* list : {&m_variables, &m_points})
        list->node()->clear(this, true, false);
    clear(projectkeys::variableTemplate(), this);
    clear(projectkeys::pointTemplate(), this);
    // It says so already; who listens hears of it once.
    project.remove(curProject);
    take(project);
    m_variables.forgetArrivals();
}

void ProjectMirror::refuse(const QString& reference, const QString& why) {
    const QString text =
        why.isEmpty() ? tr("The project %1 was not opened: the controller does not answer.").arg(reference) : why;
    helm::standin::MessageList::instance()->add(helm::standin::MessageLevel::Error, QStringLiteral("controller"), text);
    // In the event loop: who is told of the new name now would hear of the old one first.
    QTimer::singleShot(0, this, [this, reference] { takeBack(reference); });
    if (!why.isEmpty())
        return;
    // It may have opened it all the same.
    ModuleObject request(QStringLiteral("open"));
    request.set(nullptr, QStringLiteral("project"), m_open);
    relay()->command(this, QStringLiteral("mirror.open"), &request);
    pushAll();
}

void ProjectMirror::takeBack(const QString& reference) {
    ModuleObject* name = m(projectkeys::name());
    if (name->getString() == reference)
        name->setValue(this, m_open);
}

} // namespace pendant
