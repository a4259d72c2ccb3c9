#include "movepoints.h"
#include "workspace.h"

#include "brisk/modulemanager.h"

namespace {

QStringList calls;

void note(const char* operation, const QStringList& arguments) {
    calls << QString("%1(%2)").arg(operation, arguments.join("; "));
}
QString shown(const QObject* sender) {
    return !sender ? "null" : sender == kiteInterface() ? "kite" : "other";
}
QString shown(bool value) {
    return value ? "true" : "false";
}
QString shown(const QVariantList& values) {
    QStringList texts;
    for (const QVariant& value : values)
        texts << value.toString();
    return "[" + texts.join(",") + "]";
}
QString shown(const QVariant& value) {
    return QString("%1 %2").arg(value.typeName(), value.toString());
}
QString shown(const ModuleObject* node) {
    return !node ? "null"
                 : "\"" + node->name() + "\" " + compact(node->exportToJson(true)) + (node->pmobj() ? "!" : "");
}

ModuleObject* nothing = nullptr;

} // namespace

// What follows comes before the host's own, because a program's symbols do.

ModuleObject* Relay::get(QObject* sender, const QString& key) {
    note("get", {shown(sender), key});
    return nothing;
}
void Relay::command(QObject* sender, const QString& key) {
    note("command", {shown(sender), key});
}
void Relay::command(QObject* sender, const QString& key, ModuleObject* node) {
    note("command", {shown(sender), key, shown(node)});
}
ModuleObject* Relay::execCommand(QObject* sender, const QString& key) {
    note("execCommand", {shown(sender), key});
    return nothing;
}
ModuleObject* Relay::execCommand(QObject* sender, const QString& key, ModuleObject* node) {
    note("execCommand", {shown(sender), key, shown(node)});
    return nothing;
}
void Relay::watch(QObject* sender, const QString& key, bool on) {
    note("watch", {shown(sender), key, shown(on)});
}
ModuleObject* ModuleObject::append(QObject* sender, const QString& childName) {
    note("append", {name(), shown(sender), childName});
    return child(childName);
}
void ModuleObject::set(QObject* sender, const QString& key, const QVariant& value, bool notify) {
    note("set", {name(), shown(sender), key, shown(value), shown(notify)});
    r(key, true)->setValue(sender, value, notify);
}
void ModuleObject::setList(QObject* sender, const QVariantList& values, bool notify) {
    note("setList", {name(), shown(sender), shown(values), shown(notify)});
}
ModuleObject* helm::ControllerManager::execRequest(const QString& command, ModuleObject* request, bool wait,
                                                   int timeoutMs) {
    note("execRequest", {command, shown(request), shown(wait), QString::number(timeoutMs)});
    return nothing;
}
bool brisk::ModuleManager::writeToJson(const QString& filePath, const QJsonValue& json, bool indented) {
    const QStringList children = json.toObject().keys();
    note("writeToJson", {filePath.section('/', -2), "{" + children.join(",") + "}", shown(indented)});
    return false;
}

/// What moves and projects hand to the host, to the argument.
class TestRobotHostCalls : public WorkspaceTest {
    Q_OBJECT

private slots:
    void initTestCase() { HostSettings::begin(); }
    void init() {
        beginWorkspace();
        calls.clear();
    }

    void aStart() {
        ModuleObject* list = m("orca.project.point._list");
        list->importFromJson(nullptr, QJsonArray{MovePoints::cartesian("P1", 100, 200, 300)}, false, true, true);
        int result = 0;
        log().expect(" moveToStart : ");
        kiteInterface()->moveToStart(result, "P1", 250, true, true);
        QCOMPARE(calls, QStringList({"execCommand(kite; move.reset)", "watch(kite; move.last_error_with_setting; true)",
                                     "append(tmp; kite; point)", "setList(conf; kite; [1,2,3,4,5,6,7,8.5]; true)",
                                     "setList(rot; kite; [0.01,0.0205,-0.09]; true)",
                                     "setList(trans; kite; [0.1,0.1,0.3]; true)",
                                     "set(tmp; kite; traj.speed; double 0.25; true)",
                                     R"(command(kite; move.j; "tmp" {"point":{},"traj":{"speed":0.25}}))",
                                     "command(kite; move.opr.enough)"}));
    }

    void aStartByTheFirstForm() {
        ModuleObject* list = m("orca.project.point._list");
        list->importFromJson(nullptr, QJsonArray{MovePoints::cartesian("P1", 100, 200, 300)}, false, true, true);
        int result = 0;
        log().expect(" moveToStart : ");
        kiteInterface()->moveToStart(result, "P1", 250, true);
        QCOMPARE(calls, QStringList({"execCommand(kite; move.reset)", "watch(kite; move.last_error_with_setting; true)",
                                     "append(tmp; kite; point)", "set(tmp; kite; traj.speed; double 0.25; true)",
                                     R"(command(kite; move.j; "tmp" {"traj":{"speed":0.25}}))",
                                     "command(kite; move.opr.enough)"}));
    }

    void aStop() {
        kiteInterface()->moveToStop();
        m("helm.r.version")->setValue(nullptr, "3.0");
        kiteInterface()->moveToStop();
        QCOMPARE(calls, QStringList({"watch(kite; move.last_error_with_setting; false)", "command(kite; move.stop)",
                                     "watch(kite; move.last_error_with_setting; false)",
                                     "set(tmp; kite; task_space; int 1; true)",
                                     R"(command(kite; move.stop; "tmp" {"task_space":1}))"}));
    }

    void aCheck() {
        QCOMPARE(kiteInterface()->checkPointMoveTo("a", "b"), 0);
        QCOMPARE(calls, QStringList({"append(; kite; a)", "append(; kite; b)",
                                     R"(execCommand(kite; move.path.check; "" {}))"}));
    }

    void projects() {
        QCOMPARE(kiteInterface()->getProjectList(), QStringList());
        QCOMPARE(kiteInterface()->createProject("demo", "d", false), 0);
        m("orca.project.projetc_info.author")->setValue(nullptr, "host");
        QCOMPARE(kiteInterface()->createProject("demo2", "d", true), 0);
        write("orca.project.autoload_prj_path", "demo");
        write("orca.project.autoload_pri_path", "before");
        QCOMPARE(workspace().remove("demo"), 0);
        QCOMPARE(calls, QStringList({"get(null; backup.backup_list)",
                                     "writeToJson(demo/projectinfo.json; {create_time,description}; true)",
                                     "writeToJson(demo2/projectinfo.json; {author,create_time,description}; true)",
                                     "set(tmp; null; name; QString demo; true)",
                                     R"(execCommand(null; project.remove_task; "tmp" {"name":"demo"}))",
                                     "execRequest(proiect.overview.set_autoload; null; true; 1600)"}));
        QCOMPARE(text("orca.project.autoload_pri_path"), QString("before"));
    }
};

QTEST_GUILESS_MAIN(TestRobotHostCalls)
#include "tst_robot_hostcalls.moc"
