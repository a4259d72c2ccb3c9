#include "hostspy.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"
#include "helm/controllermanager.h"

#include <QJsonArray>
#include <QJsonDocument>

using brisk::ModuleObject;

namespace {

QString text(const QString& value) {
    return value;
}
QString text(const QVariant& value) {
    return QString("%1 %2").arg(value.typeName(), value.toString());
}
QString text(const QJsonValue& value) {
    const QString json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return json.mid(1, json.size() - 2);
}
QString text(const QObject* sender) {
    return sender ? "object" : "null";
}
QString text(const QStringList& list) {
    return "[" + list.join(",") + "]";
}
QString text(bool value) {
    return value ? "true" : "false";
}
QString text(int value) {
    return QString::number(value);
}

template <typename... Arguments> HostSpy& called(const char* operation, const Arguments&... arguments) {
    HostSpy& spy = HostSpy::instance();
    spy.calls << QString("%1(%2)").arg(operation, QStringList{text(arguments)...}.join("; "));
    return spy;
}

QString contentOf(ModuleObject* request) {
    HostSpy& spy = HostSpy::instance();
    spy.requests << request;
    spy.requestHasParent |= request->pmobj() || request->parent();
    return request->name() + " " + text(request->exportToJson(true));
}

} // namespace

HostSpy& HostSpy::instance() {
    static HostSpy spy;
    return spy;
}

ModuleObject* Relay::mobj() const {
    return HostSpy::instance().busNode;
}
ModuleObject* Relay::get(QObject* sender, const QString& key) {
    return called("get", sender, key).node;
}
ModuleObject* Relay::get(QObject* sender, const QString& key, const QString& subKey) {
    return called("get", sender, key, subKey).node;
}
void Relay::set(QObject* sender, const QString& key, const QString& subKey, const QVariant& value) {
    called("set", sender, key, subKey.isNull() ? "null" : subKey, value);
}
void Relay::command(QObject* sender, const QString& key, const QVariant& value) {
    called("command", sender, key, value);
}
ModuleObject* Relay::execCommand(QObject* sender, const QString& key, const QVariant& value) {
    return called("execCommand", sender, key, value).node;
}
ModuleObject* Relay::execPluginCommand(QObject* sender, const QString& name, const QString& endpoint,
                                       const QVariant& value) {
    return called("execPluginCommand", sender, name, endpoint, value).node;
}
void Relay::watch(QObject* sender, const QString& key, bool on) {
    called("watch", sender, key, on);
}
ModuleObject* Relay::watchNode(const QString& key) {
    return called("watchNode", key).node;
}

namespace helm {

bool ControllerManager::request(const QString& group, const QString& request, const QJsonValue& params, int timeoutMs) {
    return called("request", group, request, params, timeoutMs).says;
}
bool ControllerManager::request(const QString& command, ModuleObject* request, int timeoutMs) {
    return called("request", command, contentOf(request), timeoutMs).says;
}
ModuleObject* ControllerManager::execRequest(const QString& group, const QString& request, const QJsonValue& params,
                                             bool wait, int timeoutMs) {
    return called("execRequest", group, request, params, wait, timeoutMs).node;
}
ModuleObject* ControllerManager::execRequest(const QString& command, ModuleObject* request, bool wait, int timeoutMs) {
    const HostSpy& spy = called("execRequest", command, contentOf(request), wait, timeoutMs);
    return spy.echoes ? request : spy.node;
}

void TaskNetworkManager::registerTask(enTaskType type, QObject* owner, const QString& id, Task task,
                                      const QStringList& after) {
    HostSpy& spy = called("registerTask", int(type), owner, id, after);
    spy.task = std::move(task);
    spy.taskOwner = owner;
}
bool TaskNetworkManager::unRegisterTask(enTaskType type, const QString& id) {
    return called("unRegisterTask", int(type), id).says;
}

} // namespace helm

ModuleObject* m(const QString& key, ModuleObject* parent) {
    HostSpy& spy = called("m", key, static_cast<QObject*>(parent));
    return spy.node;
}
