#include "projectmirror.h"

#include "earlyrecords.h"
#include "links.h"
#include "projectkeys.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTimer>

#include <algorithm>

using brisk::ModuleObject;

namespace pendant {

namespace {

const QString taskId = QStringLiteral("pendant.project");

// Plugins ask for it before they call what is new.
void sayHostVersion() {
    if (m(projectkeys::hostVersion())->getString().isEmpty())
        m(projectkeys::hostVersion())->setValue(nullptr, QStringLiteral("3.1.0"));
}

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

QStringList textsBelow(ModuleObject* node, const QString& child) {
    QStringList texts;
    const ModuleObject* list = node ? node->c(child) : nullptr;
    for (const ModuleObject* item : list ? list->cmobjs() : QList<ModuleObject*>())
        texts << item->getString();
    return texts;
}

} // namespace

ProjectMirror::ProjectMirror(QObject* parent)
    : QObject(parent), m_variables(projectkeys::variables(), this), m_points(projectkeys::points(), this),
      m_name(projectkeys::name()) {
    setObjectName(QStringLiteral("project"));
    sayHostVersion();
    connect(&m_variables, &RecordList::changed, this, &ProjectMirror::pushSoon);
    connect(&m_points, &RecordList::changed, this, &ProjectMirror::pushSoon);
    connect(&m_name, &FollowedNode::renewed, this, &ProjectMirror::listen);
    listen(m_name.node());
    links::follow(this, [this] { followLinks(); });
    // The tasks and the slots of plugins come after these, whichever the host begins with: they find the project there.
    helm::ManagerHelper::instance()->taskNetworkManager()->registerTask(
        helm::TaskOnConnect, this, taskId, [this](const helm::TaskNetworkManager::Done&) { followLinks(); }, {});
}

ProjectMirror::~ProjectMirror() {
    helm::ManagerHelper::instance()->taskNetworkManager()->unRegisterTask(helm::TaskOnConnect, taskId);
}

void ProjectMirror::listen(ModuleObject* name) {
    connect(name, &ModuleObject::changed, this,
            [this](const QVariant&, const QVariant&, const QObject* sender) { askForReload(sender); });
}

void ProjectMirror::followLinks() {
    const bool up = links::areUp();
    if (up == m_wereUp)
        return;
    m_wereUp = up;
    if (!up)
        return;
    if (m(projectkeys::name())->getString().isEmpty())
        load();
    else if (m_variables.hasChanges() || m_points.hasChanges())
        pushAll();
}

void ProjectMirror::load() {
    ModuleObject* reply = relay()->get(this, QStringLiteral("mirror.project"));
    const QJsonObject project = reply ? reply->exportToJson(true).toObject() : QJsonObject();
    if (!reply || !project.contains(QStringLiteral("cur_project")))
        return;
    const bool keepNames =
        areInOrder(reply->r(QStringLiteral("var._list"))) && areInOrder(reply->r(QStringLiteral("point._list")));
    const EarlyRecords variables(m_variables.node(), listIn(project, QStringLiteral("var")));
    const EarlyRecords points(m_points.node(), listIn(project, QStringLiteral("point")));
    m_variables.setTold(listIn(project, QStringLiteral("var")).size());
    m_points.setTold(listIn(project, QStringLiteral("point")).size());
    m(projectkeys::project())->importFromJson(this, project, true, true, false);
    variables.putBack(m_variables.node());
    points.putBack(m_points.node());
    // In the tree the records are numbered anew.
    if (!keepNames)
        pushAll();
}

void ProjectMirror::pushSoon() {
    if (m_pushQueued)
        return;
    m_pushQueued = true;
    QTimer::singleShot(0, this, &ProjectMirror::push);
}

// Before the project is loaded there is nothing to keep alike; with a link down it waits.
void ProjectMirror::push() {
    m_pushQueued = false;
    if (!links::areUp() || m(projectkeys::name())->getString().isEmpty())
        return;
    if (m_variables.isUnsure() || m_points.isUnsure())
        return pushAll();
    ModuleObject changes(QStringLiteral("changes"));
    m_variables.takeChanges(changes.c(QStringLiteral("var"), true));
    m_points.takeChanges(changes.c(QStringLiteral("point"), true));
    send(&changes, false);
}

void ProjectMirror::pushAll() {
    ModuleObject all(QStringLiteral("all"));
    m_variables.takeAll(all.c(QStringLiteral("var"), true));
    m_points.takeAll(all.c(QStringLiteral("point"), true));
    send(&all, true);
}

void ProjectMirror::send(ModuleObject* changes, bool replace) {
    const int records = changes->c(0)->cmobjCount() + changes->c(1)->cmobjCount();
    if (records == 0 && !replace)
        return;
    changes->set(nullptr, QStringLiteral("replace"), replace);
    relay()->command(this, QStringLiteral("mirror.put"), changes);
}

void ProjectMirror::askForReload(const QObject* sender) {
    if (sender == this)
        return;
    m_variables.forgetArrivals();
    if (m_reloadQueued)
        return;
    m_reloadQueued = true;
    QTimer::singleShot(0, this, &ProjectMirror::reload);
}

void ProjectMirror::reload() {
    m_reloadQueued = false;
    if (!links::areUp())
        return;
    push();
    ModuleObject* deleted = relay()->execCommand(this, QStringLiteral("mirror.deleted"));
    // The answer is used again by the next call, which somebody who hears of a removal may make.
    const QStringList nodes = textsBelow(deleted, QStringLiteral("var"));
    const QStringList names = textsBelow(deleted, QStringLiteral("names"));
    for (const QString& node : nodes)
        m_variables.removeTold(node);
    for (const QString& name : names)
        m_variables.removeCalled(name);
}

} // namespace pendant
