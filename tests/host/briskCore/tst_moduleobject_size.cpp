#include "brisk/moduleobject.h"

#include <QTest>

#include <cstdlib>
#include <malloc.h>

using brisk::ModuleObject;

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define COUNTS_ALLOCATIONS

static int allocations = 0;
static size_t allocatedBytes = 0;

// Takes the place of the C library's for the whole program, Qt included.
extern "C" void* __libc_malloc(size_t size);

extern "C" void* malloc(size_t size) {
    ++allocations;
    allocatedBytes += size;
    return __libc_malloc(size);
}
#endif

class Size : public QObject {
    Q_OBJECT

private slots:
    void aNodeIsSmall();
    void lookingUpAllocatesNothing();
    void writingANumberAllocatesNothing();
    void aLongListGrowsInProportion();
    void aLongListIsEmptiedFromEitherEnd_data();
    void aLongListIsEmptiedFromEitherEnd();
    void passingNamesLeaveNothingBehind();
};

void Size::aNodeIsSmall() {
    // Hundreds of thousands of nodes stand in the tree of a full cell.
    QVERIFY(sizeof(ModuleObject) <= 72);
}

void Size::lookingUpAllocatesNothing() {
#ifndef COUNTS_ALLOCATIONS
    QSKIP("a sanitizer has its own malloc");
#else
    ModuleObject root("root");
    for (int i = 0; i < 1000; ++i)
        root.set(nullptr, QString("robot.io.signal%1.value").arg(i), i);
    const QString present("robot.io.signal777.value");
    const QString missing("robot.io.signal777.missing.further");
    const QString name("robot");
    const int before = allocations;
    bool right = true;
    for (int i = 0; i < 100; ++i) {
        right = right && root.r(present) && root.r(present, true) && root.rmobj(present) && !root.r(missing);
        right = right && root.c(name) && root.cmobj(0) && root.child(name) && root.hasCmobj(name);
    }
    const int after = allocations;
    QVERIFY(right);
    QVERIFY(before > 1000);
    QCOMPARE(after, before);
#endif
}

void Size::writingANumberAllocatesNothing() {
#ifndef COUNTS_ALLOCATIONS
    QSKIP("a sanitizer has its own malloc");
#else
    ModuleObject root("root");
    const QString key("robot.joint");
    root.set(nullptr, key, 0.0);
    const QVariant value(1.5);
    const int before = allocations;
    for (int i = 0; i < 100; ++i)
        root.set(nullptr, key, value);
    const int after = allocations;
    QCOMPARE(after, before);
#endif
}

void Size::aLongListGrowsInProportion() {
#ifndef COUNTS_ALLOCATIONS
    QSKIP("a sanitizer has its own malloc");
#else
    const auto bytesFor = [](int count) {
        const size_t before = allocatedBytes;
        ModuleObject list("list");
        for (int i = 0; i < count; ++i)
            list.append(nullptr, ModuleObject::generateId(&list));
        return allocatedBytes - before;
    };
    const size_t few = bytesFor(2000);
    const size_t many = bytesFor(20000);
    QVERIFY2(many < 20 * few, qPrintable(QString("%1 -> %2 bytes").arg(few).arg(many)));
#endif
}

void Size::aLongListIsEmptiedFromEitherEnd_data() {
    QTest::addColumn<bool>("fromEnd");
    QTest::newRow("from the end") << true;
    QTest::newRow("from the front") << false;
}

void Size::aLongListIsEmptiedFromEitherEnd() {
    QFETCH(bool, fromEnd);
    ModuleObject list("list");
    for (int i = 0; i < 10000; ++i)
        QVERIFY(list.insertChild(-1, new ModuleObject(ModuleObject::generateId(&list))));
    while (list.cmobjCount() > 0) {
        ModuleObject* item = list.c(fromEnd ? list.cmobjCount() - 1 : 0);
        const QString name = item->name();
        QCOMPARE(list.c(name), item);
        QVERIFY(list.removeChild(item));
        QVERIFY(!list.c(name));
    }
    QVERIFY(list.isEmpty());
}

void Size::passingNamesLeaveNothingBehind() {
#ifndef COUNTS_ALLOCATIONS
    QSKIP("a sanitizer has its own malloc");
#else
    const auto passBy = [](int from, int count) {
        for (int i = from; i < from + count; ++i)
            const ModuleObject passing(QString("passing%1").arg(i));
    };
    passBy(0, 20000);
    const size_t before = mallinfo2().uordblks;
    passBy(20000, 200000);
    const size_t after = mallinfo2().uordblks;
    // A name takes some 80 bytes, and the last few thousand may still be there.
    QVERIFY2(after < before + 2000000, qPrintable(QString("%1 -> %2 bytes").arg(before).arg(after)));
#endif
}

QTEST_APPLESS_MAIN(Size)
#include "tst_moduleobject_size.moc"
