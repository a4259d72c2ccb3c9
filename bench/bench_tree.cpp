#include "brisk/moduleobject.h"

#include <QStringList>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <nlohmann/json.hpp>

#include <memory>
#include <vector>

using brisk::ModuleObject;

namespace {

constexpr int pointCount = 10000;

// The leaves of a Cartesian point as it is taught.
const QStringList& poseLeaves() {
    static const QStringList leaves{"pose.frame.pos.x",
                                    "pose.frame.pos.y",
                                    "pose.frame.pos.z",
                                    "pose.elb",
                                    "pose.frame.ori.euler.a",
                                    "pose.frame.ori.euler.b",
                                    "pose.frame.ori.euler.c",
                                    "pose.frame.ori.quaternion.q1",
                                    "pose.frame.ori.quaternion.q2",
                                    "pose.frame.ori.quaternion.q3",
                                    "pose.frame.ori.quaternion.q4",
                                    "conf.cf1",
                                    "conf.cf2",
                                    "conf.cf3",
                                    "conf.cf4",
                                    "conf.cf5",
                                    "conf.cf6",
                                    "conf.cf7",
                                    "conf.cfx",
                                    "external_joint.#0",
                                    "external_joint.#1",
                                    "external_joint.#2",
                                    "external_joint.#3",
                                    "external_joint.#4",
                                    "external_joint.#5"};
    return leaves;
}

ModuleObject* newPoint(ModuleObject* list) {
    auto* point = new ModuleObject(ModuleObject::generateId(list));
    const int number = list->cmobjCount();
    point->set(nullptr, "id", number);
    point->set(nullptr, "name", QString("P%1").arg(number));
    point->set(nullptr, "property", "cart");
    point->set(nullptr, "description", QString("Auto generate at: 2024/05/06 07:08:%1").arg(number % 60));
    point->set(nullptr, "func", "main");
    point->set(nullptr, "task", "task0");
    ModuleObject* position = point->r("value.[0][0][0]", true);
    for (const QString& leaf : poseLeaves())
        position->set(nullptr, leaf, number * 0.25);
    position->set(nullptr, "coord.tool", "tool0");
    position->set(nullptr, "coord.wobj", "wobj0");
    list->insertChild(-1, point);
    return point;
}

std::unique_ptr<ModuleObject> newList(int count) {
    std::unique_ptr<ModuleObject> list(new ModuleObject("_list"));
    for (int i = 0; i < count; ++i)
        newPoint(list.get());
    return list;
}

size_t allocatedBytes() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void bytesPerNode(benchmark::State& state) {
    for (auto _ : state) {
        const size_t before = allocatedBytes();
        const std::unique_ptr<ModuleObject> list = newList(pointCount);
        const size_t bytes = allocatedBytes() - before;
        state.PauseTiming();
        const int nodes = list->cmobjs(true).size();
        state.counters["nodes"] = nodes;
        state.counters["bytes_per_node"] = double(bytes) / nodes;
        state.ResumeTiming();
    }
}
BENCHMARK(bytesPerNode)->Unit(benchmark::kMillisecond)->Iterations(1);

// The same points as copies of a template, which is how the library makes them.
void bytesPerCopiedNode(benchmark::State& state) {
    const std::unique_ptr<ModuleObject> templates = newList(1);
    for (auto _ : state) {
        const size_t before = allocatedBytes();
        ModuleObject list("_list");
        for (int i = 0; i < pointCount; ++i) {
            auto* point = new ModuleObject(ModuleObject::generateId(&list));
            point->copyFrom(templates->c(0));
            point->set(nullptr, "name", QString("P%1").arg(i));
            list.insertChild(-1, point);
        }
        const size_t bytes = allocatedBytes() - before;
        state.PauseTiming();
        state.counters["bytes_per_node"] = double(bytes) / list.cmobjs(true).size();
        state.ResumeTiming();
    }
}
BENCHMARK(bytesPerCopiedNode)->Unit(benchmark::kMillisecond)->Iterations(1);

nlohmann::json toJson(ModuleObject* node) {
    if (node->isList()) {
        nlohmann::json array = nlohmann::json::array();
        for (ModuleObject* child : node->cmobjs())
            array.push_back(toJson(child));
        return array;
    }
    if (node->cmobjCount() == 0)
        return node->value().type() == QVariant::String ? nlohmann::json(node->getString().toStdString())
                                                        : nlohmann::json(node->getDouble());
    nlohmann::json object = nlohmann::json::object();
    for (ModuleObject* child : node->cmobjs())
        object[child->name().toStdString()] = toJson(child);
    return object;
}

// One point in a tree; the whole of it stays in the cache on both sides.
void depth4Tree(benchmark::State& state) {
    const std::unique_ptr<ModuleObject> list = newList(1);
    ModuleObject* position = list->r("#0.value.[0][0][0]");
    const QString key("pose.frame.ori.quaternion");
    for (auto _ : state)
        benchmark::DoNotOptimize(position->r(key));
}
BENCHMARK(depth4Tree);

void depth4JsonPointer(benchmark::State& state) {
    const std::unique_ptr<ModuleObject> list = newList(1);
    const nlohmann::json position = toJson(list->r("#0.value.[0][0][0]"));
    const nlohmann::json::json_pointer key("/pose/frame/ori/quaternion");
    for (auto _ : state)
        benchmark::DoNotOptimize(&position.at(key));
}
BENCHMARK(depth4JsonPointer);

// Another point with every look-up, through a list of thousands: "#123.value.[0][0][0].coord".
void depth4AmongManyTree(benchmark::State& state) {
    const std::unique_ptr<ModuleObject> list = newList(pointCount);
    QStringList keys;
    for (int i = 0; i < pointCount; ++i)
        keys << QString("#%1.value.[0][0][0].coord").arg((i * 7919) % pointCount);
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(list->r(keys.at(i)));
        i = (i + 1) % pointCount;
    }
}
BENCHMARK(depth4AmongManyTree);

void depth4AmongManyJsonPointer(benchmark::State& state) {
    const nlohmann::json list = toJson(newList(pointCount).get());
    std::vector<nlohmann::json::json_pointer> keys;
    for (int i = 0; i < pointCount; ++i)
        keys.emplace_back("/" + std::to_string((i * 7919) % pointCount) + "/value/[0][0][0]/coord");
    size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(&list.at(keys[i]));
        i = (i + 1) % keys.size();
    }
}
BENCHMARK(depth4AmongManyJsonPointer);

void childAmongSiblingsTree(benchmark::State& state) {
    ModuleObject parent("parent");
    for (int i = 0; i < state.range(0); ++i)
        parent.append(nullptr, QString("signal%1").arg(i));
    const QString name = QString("signal%1").arg(state.range(0) - 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(parent.c(name));
}
BENCHMARK(childAmongSiblingsTree)->Arg(10)->Arg(16)->Arg(1000)->Arg(10000);

void childAmongSiblingsFindChild(benchmark::State& state) {
    QObject parent;
    for (int i = 0; i < state.range(0); ++i)
        (new QObject(&parent))->setObjectName(QString("signal%1").arg(i));
    const QString name = QString("signal%1").arg(state.range(0) - 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(parent.findChild<QObject*>(name, Qt::FindDirectChildrenOnly));
}
BENCHMARK(childAmongSiblingsFindChild)->Arg(10)->Arg(1000)->Arg(10000);

void writeWithoutListener(benchmark::State& state) {
    ModuleObject root("root");
    ModuleObject* leaf = root.r("robot.position.joint.j1", true);
    const QVariant value(1.5);
    for (auto _ : state)
        leaf->setValue(nullptr, value);
}
BENCHMARK(writeWithoutListener);

void writeWithListener(benchmark::State& state) {
    ModuleObject root("root");
    ModuleObject* leaf = root.r("robot.position.joint.j1", true);
    const QVariant value(1.5);
    int heard = 0;
    QObject::connect(leaf, &ModuleObject::changed, [&heard] { ++heard; });
    for (auto _ : state)
        leaf->setValue(nullptr, value);
    benchmark::DoNotOptimize(heard);
}
BENCHMARK(writeWithListener);

void writeWithTouchedListenerAtTheRoot(benchmark::State& state) {
    ModuleObject root("root");
    ModuleObject* leaf = root.r("robot.position.joint.j1", true);
    const QVariant value(1.5);
    int heard = 0;
    QObject::connect(&root, &ModuleObject::touched, [&heard] { ++heard; });
    for (auto _ : state)
        leaf->setValue(nullptr, value);
    benchmark::DoNotOptimize(heard);
}
BENCHMARK(writeWithTouchedListenerAtTheRoot);

void generateId(benchmark::State& state) {
    ModuleObject list("list");
    for (int i = 0; i < state.range(0); ++i)
        list.append(nullptr, QString("#%1").arg(i));
    for (auto _ : state)
        benchmark::DoNotOptimize(ModuleObject::generateId(&list));
}
BENCHMARK(generateId)->Arg(0)->Arg(10000);

void appendItem(benchmark::State& state) {
    ModuleObject list("list");
    for (auto _ : state)
        list.insertChild(-1, new ModuleObject(ModuleObject::generateId(&list)));
}
BENCHMARK(appendItem)->Iterations(100000);

void deleteLongList(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto* list = new ModuleObject("list");
        for (int i = 0; i < state.range(0); ++i)
            list->append(nullptr, QString("#%1").arg(i));
        state.ResumeTiming();
        delete list;
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(deleteLongList)->Arg(1000)->Arg(10000)->Arg(100000)->Complexity()->Unit(benchmark::kMicrosecond);

void exportPoints(benchmark::State& state) {
    const std::unique_ptr<ModuleObject> list = newList(1000);
    for (auto _ : state)
        benchmark::DoNotOptimize(list->exportToJson(true));
}
BENCHMARK(exportPoints)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
