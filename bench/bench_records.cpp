#include "brisk/channel.h"
#include "brisk/log.h"
#include "brisk/modulemanager.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"
#include "kite/interfacemanager.h"

#include <QDateTime>
#include <QDir>
#include <QJsonObject>
#include <QStringList>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

using brisk::ModuleObject;
using brisk::standin::Answer;
using brisk::standin::Channel;
using brisk::standin::Content;
using brisk::standin::Message;
using kite::kiteInterface;

namespace {

const QString variableValue("value.[0][0][0]");
const QString missing("no such name");
const QString nameKey("name");
const QString typeKey("type");

// A far side that answers at once with the same content.
class PromptLink : public brisk::standin::Link {
public:
    PromptLink(Channel* channel, Content content) : m_channel(channel), m_content(std::move(content)) {
        m_channel->setLink(this);
    }
    ~PromptLink() override { m_channel->setLink(nullptr); }

    bool isUp() const override { return true; }
    void setUp(bool) override {}
    void send(const Message& message) override { m_asked = message.id; }
    bool receive(Answer* answer, int) override {
        *answer = {m_asked, m_content};
        return true;
    }

private:
    Channel* m_channel;
    Content m_content;
    quint64 m_asked = 0;
};

QStringList numbered(const QString& prefix, int first, int count) {
    QStringList keys;
    for (int i = first; i < first + count; ++i)
        keys << prefix + QString::number(i);
    return keys;
}

const QStringList& cartesianKeys() {
    static const QStringList keys =
        QStringList{"pose.frame.pos.x",       "pose.frame.pos.y",       "pose.frame.pos.z",      "pose.elb",
                    "pose.frame.ori.euler.a", "pose.frame.ori.euler.b", "pose.frame.ori.euler.c"} +
        numbered("pose.frame.ori.quaternion.q", 1, 4) + numbered("conf.cf", 1, 7) + QStringList{"conf.cfx"};
    return keys;
}

const QStringList& externalKeys() {
    static const QStringList keys = numbered("extern_pos.#", 0, 6);
    return keys;
}

Content robotPosition() {
    const Content content = brisk::standin::contentOf(QVariant());
    for (const QString& key : numbered("inner_pos.#", 0, 7) + externalKeys())
        content->set(nullptr, "joint." + key, 12.5);
    for (const QString& key : cartesianKeys())
        content->set(nullptr, "cartesian." + key, 12.5);
    return content;
}

/// A project of as many variables and points, made as the library makes them.
class Project {
public:
    explicit Project(int count) : m_count(count) {
        for (const char* part : {"orca.project.var", "orca.project.point"}) {
            ModuleObject* pattern = m(mName(part, "default"));
            pattern->set(nullptr, "name", "");
            pattern->set(nullptr, "description", "");
            m(mName(part, "_list"));
        }
        kiteInterface()->addCurrentPoint(nameOf(0), false, "tool0", "wobj0");
        for (int i = 1; i < count; ++i) {
            auto* point = new ModuleObject(ModuleObject::generateId(points()));
            point->copyFrom(points()->c(0));
            point->set(nullptr, "name", nameOf(i));
            points()->insertChild(-1, point);
        }
        for (int i = 0; i < count; ++i)
            kiteInterface()->addVarData(nameOf(i), i, false);
    }
    ~Project() { m("orca")->clear(nullptr, false, true); }

    static ModuleObject* variables() { return m("orca.project.var._list"); }
    static ModuleObject* points() { return m("orca.project.point._list"); }
    QString lastName() const { return nameOf(m_count - 1); }

private:
    Q_DISABLE_COPY(Project)
    static QString nameOf(int i) { return QString("name%1").arg(i, 6, 10, QLatin1Char('0')); }

    PromptLink m_bus{Channel::bus(), brisk::standin::contentOf(QVariant(0))};
    PromptLink m_controller{Channel::controller(), robotPosition()};
    int m_count;
};

int countOf(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

void measured(benchmark::State& state) {
    state.SetComplexityN(state.range(0));
}

void sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(10)->Arg(1000)->Arg(10000)->Complexity(benchmark::oN);
}

ModuleObject* findByHand(ModuleObject* list, const QString& name) {
    for (ModuleObject* record : list->cmobjs()) {
        if (record->c(nameKey)->getString() == name)
            return record;
    }
    return nullptr;
}

void deleteLast(ModuleObject* list) {
    delete list->c(list->cmobjCount() - 1);
}

// Adding, and deleting the node again, so that the list stays as long as it is.
void addVariable(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state) {
        kiteInterface()->addVarData("new", 5, false);
        deleteLast(Project::variables());
    }
    measured(state);
}
BENCHMARK(addVariable)->Apply(sizes);

void addVariableByHand(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state) {
        ModuleObject* list = Project::variables();
        auto* record = new ModuleObject(ModuleObject::generateId(list));
        record->copyFrom(list->pmobj()->c("default"));
        record->set(nullptr, "name", "new");
        record->set(nullptr, "type", "int");
        record->set(nullptr, "id", list->cmobjCount());
        record->set(nullptr, variableValue, 5);
        record->set(nullptr, "pers", false);
        list->insertChild(-1, record);
        record->setValue(nullptr, QVariant());
        list->pmobj()->set(nullptr, "built", false);
        deleteLast(list);
    }
    measured(state);
}
BENCHMARK(addVariableByHand)->Apply(sizes);

void updateVariable(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state)
        kiteInterface()->updateVarData(name, 5);
    measured(state);
}
BENCHMARK(updateVariable)->Apply(sizes);

void updateVariableByHand(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state) {
        for (ModuleObject* record : Project::variables()->cmobjs()) {
            if (record->c(nameKey)->getString() == name)
                record->set(nullptr, variableValue, 5);
        }
    }
    measured(state);
}
BENCHMARK(updateVariableByHand)->Apply(sizes);

void listVariables(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getVarDataList(QString()));
    measured(state);
}
BENCHMARK(listVariables)->Apply(sizes);

QStringList namesByHand(ModuleObject* list) {
    QStringList names;
    for (ModuleObject* record : list->cmobjs())
        names << record->c(nameKey)->getString();
    return names;
}

void listVariablesByHand(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(namesByHand(Project::variables()));
    measured(state);
}
BENCHMARK(listVariablesByHand)->Apply(sizes);

void listVariablesOfType(benchmark::State& state) {
    const Project project(countOf(state));
    const QString type("int");
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getVarDataList(type));
    measured(state);
}
BENCHMARK(listVariablesOfType)->Apply(sizes);

void listVariablesOfTypeByHand(benchmark::State& state) {
    const Project project(countOf(state));
    const QString type("int");
    for (auto _ : state) {
        QStringList names;
        for (ModuleObject* record : Project::variables()->cmobjs()) {
            if (record->c(typeKey)->getString() == type)
                names << record->c(nameKey)->getString();
        }
        benchmark::DoNotOptimize(names);
    }
    measured(state);
}
BENCHMARK(listVariablesOfTypeByHand)->Apply(sizes);

void listPoints(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getPointNameList());
    measured(state);
}
BENCHMARK(listPoints)->Apply(sizes);

void listPointsByHand(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(namesByHand(Project::points()));
    measured(state);
}
BENCHMARK(listPointsByHand)->Apply(sizes);

// Looked for in vain, so that all records are passed by.
void missVariableObject(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getVarObjDataByName(missing));
    measured(state);
}
BENCHMARK(missVariableObject)->Apply(sizes);

void missPointObject(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getPointObjDataByName(missing));
    measured(state);
}
BENCHMARK(missPointObject)->Apply(sizes);

void missPointPose(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getPointDataByName(missing));
    measured(state);
}
BENCHMARK(missPointPose)->Apply(sizes);

void missPointByHand(benchmark::State& state) {
    const Project project(countOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(findByHand(Project::points(), missing));
    measured(state);
}
BENCHMARK(missPointByHand)->Apply(sizes);

void lookUpPointObject(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getPointObjDataByName(name));
    measured(state);
}
BENCHMARK(lookUpPointObject)->Apply(sizes);

void lookUpPointObjectByHand(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state)
        benchmark::DoNotOptimize(findByHand(Project::points(), name)->exportToJson(true).toObject());
    measured(state);
}
BENCHMARK(lookUpPointObjectByHand)->Apply(sizes);

void lookUpPointPose(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state)
        benchmark::DoNotOptimize(kiteInterface()->getPointDataByName(name));
    measured(state);
}
BENCHMARK(lookUpPointPose)->Apply(sizes);

void lookUpPointPoseByHand(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state) {
        ModuleObject* frame = findByHand(Project::points(), name)->r("value.[0][0][0].pose.frame");
        QVector<double> pose;
        for (const char* leaf : {"pos.x", "pos.y", "pos.z", "ori.euler.a", "ori.euler.b", "ori.euler.c"})
            pose << frame->r(leaf)->getDouble();
        benchmark::DoNotOptimize(pose);
    }
    measured(state);
}
BENCHMARK(lookUpPointPoseByHand)->Apply(sizes);

void changePoint(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    const QVector<double> pose(6, 1.5);
    for (auto _ : state)
        kiteInterface()->changeCartPoint(name, pose);
    measured(state);
}
BENCHMARK(changePoint)->Apply(sizes);

void deleteVariable(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state)
        kiteInterface()->delVarData(name);
    measured(state);
}
BENCHMARK(deleteVariable)->Apply(sizes);

// With its log line, and without taking the record out of the list, as the library does it.
void deleteVariableByHand(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state) {
        ModuleObject* list = Project::variables();
        ModuleObject* record = findByHand(list, name);
        ModuleObject command("temp");
        command.set(nullptr, "operator", "remove");
        command.set(nullptr, "variables.#0", name);
        const QString tag = "[S|" + QDateTime::currentDateTime().toString("MM/dd hh:mm:ss.zzz") + "]";
        brisk::QFLog("\x1b[35m", tag, "<bench>", "./log/kite", "log") << "hotUpdateVar:" << command.exportToJson(true);
        if (relay()->execCommand(nullptr, "project.variable", &command)->getInt() == 0)
            list->removeChild(record->c(nameKey), true);
        m("orca.project.cur_project")->trigger();
    }
    measured(state);
}
BENCHMARK(deleteVariableByHand)->Apply(sizes);

// Replaces the last point, so that the list stays as long as it is.
void teachPoint(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state)
        kiteInterface()->addCurrentPoint(name, false, "tool0", "wobj0");
    measured(state);
}
BENCHMARK(teachPoint)->Apply(sizes);

ModuleObject* taughtByHand(ModuleObject* list, const QString& name) {
    auto* point = new ModuleObject(ModuleObject::generateId(list));
    point->copyFrom(list->pmobj()->c("default"));
    point->set(nullptr, "id", list->cmobjCount());
    point->set(nullptr, "name", name);
    point->set(nullptr, "property", "cart");
    const QString now = QDateTime::currentDateTime().toString("yyyy/MM/dd hh:mm:ss");
    point->set(nullptr, "description", "Auto generate at: " + now);
    point->set(nullptr, "func", m("orca.project.cur_func")->getString());
    point->set(nullptr, "task", m("orca.project.cur_task")->getString());
    point->set(nullptr, variableValue, QVariant());
    return point;
}

void teachPointByHand(benchmark::State& state) {
    const Project project(countOf(state));
    const QString name = project.lastName();
    for (auto _ : state) {
        ModuleObject* list = Project::points();
        for (ModuleObject* record : list->cmobjs()) {
            if (record->c(nameKey)->getString().compare(name, Qt::CaseInsensitive) == 0)
                list->removeChild(record);
        }
        ModuleObject* point = taughtByHand(list, name);
        ModuleObject* position = point->r(variableValue);
        ModuleObject* reply = helm::ManagerHelper::instance()->controllerManager()->execRequest(
            "project", "vex_program.get_rob_pos", QJsonObject{{"tool", "tool0"}, {"wobj", "wobj0"}}, true, 1600);
        for (const QString& key : cartesianKeys())
            position->set(nullptr, key, reply->c("cartesian")->r(key)->getDouble());
        for (int i = 0; i < externalKeys().size(); ++i)
            position->set(nullptr, QString("external_joint.#%1").arg(i),
                          reply->c("joint")->r(externalKeys().at(i))->getDouble());
        position->set(nullptr, "coord.tool", "tool0");
        position->set(nullptr, "coord.wobj", "wobj0");
        list->insertChild(-1, point);
        point->setValue(nullptr, QVariant());
        m("orca.project.point.hot_update.points")->clear(nullptr, true, false);
        m("orca.project.point.hot_update.points")->set(nullptr, "#0", list->cmobjCount() - 1);
        m("orca.project.point.hot_update.operate")->setValue(nullptr, "add");
    }
    measured(state);
}
BENCHMARK(teachPointByHand)->Apply(sizes);

void dropLine(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

// Deleting writes log lines: to a folder of its own, and not to the console.
int main(int argc, char** argv) {
    const QTemporaryDir folder;
    if (!folder.isValid() || !QDir::setCurrent(folder.path()))
        return 1;
    qInstallMessageHandler(dropLine);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QDir::rootPath());
    return 0;
}
