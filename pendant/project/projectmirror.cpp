#include "projectmirror.h"

#include "autoload.h"
#include "links.h"
#include "projectkeys.h"
#include "workspace.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"

#include <QTimer>

using brisk::ModuleObject;

namespace pendant {

namespace {

const QString taskId = QStringLiteral("pendant.project");

// Plugins ask for it before they call what is new.
void sayHostVersion() {
    if (m(projectkeys::hostVersion())->getString().isEmpty())
        m(projectkeys::hostVersion())->setValue(nullptr, QStringLiteral("3.1.0"));
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
    if (!Workspace::path().isEmpty())
        m_autoload = std::make_unique<Autoload>();
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
            [this](const QVariant&, const QVariant&, const QObject* sender) { followName(sender); });
}

void ProjectMirror::followLinks() {
    const bool up = links::areUp();
    if (up == m_wereUp)
        return;
    m_wereUp = up;
    if (!up)
        return;
    const bool isLoaded = !m_autoload || !m_open.isEmpty();
    if (m(projectkeys::name())->getString().isEmpty() || !isLoaded)
        return load();
    if (m_variables.hasChanges() || m_points.hasChanges())
        pushAll();
    if (isAnotherNamed())
        open();
}

void ProjectMirror::followName(const QObject* sender) {
    if (sender == this)
        return;
    if (isAnotherNamed())
        open();
    else
        askForReload();
}

void ProjectMirror::close() {
    if (!m_autoload)
        return;
    if (!m_open.isEmpty() && links::areUp()) {
        push();
        relay()->execCommand(this, QStringLiteral("mirror.close"));
    }
    m_autoload.reset();
    m_open.clear();
}

std::unique_ptr<ModuleObject> ProjectMirror::unsent() {
    const bool isLoaded = !m_autoload || !m_open.isEmpty();
    if (!isLoaded || (!m_variables.hasChanges() && !m_points.hasChanges()))
        return nullptr;
    auto all = std::make_unique<ModuleObject>(QStringLiteral("all"));
    m_variables.takeAll(all->c(QStringLiteral("var"), true));
    m_points.takeAll(all->c(QStringLiteral("point"), true));
    all->set(nullptr, QStringLiteral("replace"), true);
    return all;
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
    if (m_autoload)
        changes->set(nullptr, QStringLiteral("project"), m_open);
    relay()->command(this, QStringLiteral("mirror.put"), changes);
}

void ProjectMirror::askForReload() {
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
