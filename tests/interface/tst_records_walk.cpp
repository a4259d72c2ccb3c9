#include "project.h"

#include <cstdlib>
#include <functional>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define COUNTS_ALLOCATIONS

static int allocations = 0;

// Takes the place of the C library's for the whole program, Qt included.
extern "C" void* __libc_malloc(size_t size);

extern "C" void* malloc(size_t size) {
    ++allocations;
    return __libc_malloc(size);
}
#endif

using Walk = std::function<void()>;
Q_DECLARE_METATYPE(Walk)

class TestRecordsWalk : public ProjectTest {
    Q_OBJECT

private slots:
    void recordsThatArePassedByAllocateNothing_data() {
        QTest::addColumn<Walk>("walk");
        const auto row = [](const char* name, const Walk& walk) { QTest::newRow(name) << walk; };
        row("update a variable", [] { kiteInterface()->updateVarData("none", 1); });
        row("a variable's object", [] { kiteInterface()->getVarObjDataByName("none"); });
        row("list a type", [] { kiteInterface()->getVarDataList("none"); });
        row("delete a variable", [] { kiteInterface()->delVarData("none"); });
        row("a point's pose", [] { kiteInterface()->getPointDataByName("none"); });
        row("a point's object", [] { kiteInterface()->getPointObjDataByName("none"); });
        row("change a point", [] { kiteInterface()->changeCartPoint("none", QVector<double>(6, 1.0)); });
    }
    void recordsThatArePassedByAllocateNothing() {
#ifndef COUNTS_ALLOCATIONS
        QSKIP("a sanitizer has its own malloc");
#else
        QFETCH(Walk, walk);
        const int few = allocationsOf(10, walk);
        const int many = allocationsOf(1000, walk);
        QCOMPARE(many, few);
#endif
    }

    // What else teaching does is the same for every list.
    void teachingAllocatesNothingForPointsOfOtherNames() {
#ifndef COUNTS_ALLOCATIONS
        QSKIP("a sanitizer has its own malloc");
#else
        const Walk teach = [] { kiteInterface()->addCurrentPoint("none", true, "gun", "table"); };
        const int few = allocationsOf(100, teach);
        const int many = allocationsOf(1100, teach);
        QVERIFY2(many < few + 50, qPrintable(QString("%1 -> %2").arg(few).arg(many)));
#endif
    }

private:
#ifdef COUNTS_ALLOCATIONS
    int allocationsOf(int count, const Walk& walk) {
        for (int i = variables()->cmobjCount(); i < count; ++i) {
            const QJsonObject record{{"name", QString("a name of some length %1").arg(i)}, { "type", "QString" }};
            add(variables(), record);
            add(points(), record);
        }
        walk();
        const int before = allocations;
        walk();
        return allocations - before;
    }
#endif
};

QTEST_GUILESS_MAIN(TestRecordsWalk)
#include "tst_records_walk.moc"
