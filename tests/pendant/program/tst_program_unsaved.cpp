#include "programstorefixture.h"

// What was not saved is never lost.
class TestProgramUnsaved : public StoreTest {
    Q_OBJECT

private slots:
    void changesAreKeptBesideTheFileAMomentLater();
    void manyChangesInARowAreKept();
    void changesThatDoNotEndAreKeptMeanwhile();
    void whatIsUndoneIsKeptNoLonger();
    void whatIsSavedIsKeptNoLonger();
    void changesAreKeptWhenTheStoreGoes();
    void changesAreKeptWhenTheProgramIsLeft();
    void changesOfACrashAreTakenUpAsOneStep();
    void whatWasTakenUpAndUndoneIsGone();
    void whatWasTakenUpAndSavedIsInTheFile();
    void changesOfAProgramThatWasNeverSavedAreTakenUp();
    void aProgramEmptiedButNotSavedIsTakenUp();
    void whatIsKeptButEqualToTheFileIsNoChange();
    void whatCannotBeTakenUpIsMovedOutOfTheWay();
    void whatCannotBeMovedOutOfTheWayIsNeverWrittenOver();
    void changesOfAnOlderFileAreMovedOutOfTheWay();
    void changesCarryTheTimeOfTheirFile();
    void changesThatAreInTheFileAlreadyGo();
    void aFailureIsToldOnceAndTriedAgain();
    void aProgramThatCannotBeKeptIsNotLeft();
    void aProgramThatIsHeldIsLeftWhenItIsSaved();
    void aProgramThatIsHeldIsLeftWhenItIsUndone();
    void aProgramThatIsHeldStaysWhenTheTreeComesBack();
    void aStoreThatGoesAndCannotKeepTellsIt();

private:
    /// A store that has opened "demo" with the lines "a" and "b".
    struct Opened : Store {
        explicit Opened(int keepDelayMs = 0) : Store(keepDelayMs) {
            settle();
            heard.clear();
        }
    };
    static void prepare() {
        write(file, "a\nb\n");
        write("other/programs/main.txt", "x\n");
        setProject("demo");
    }

    static const QString file;
    static const QString aside;
    static const int never = 1000 * 1000;
};

const QString TestProgramUnsaved::file("demo/programs/main.txt");
const QString TestProgramUnsaved::aside("demo/programs/main.txt.unsaved");

void TestProgramUnsaved::changesAreKeptBesideTheFileAMomentLater() {
    prepare();
    const Opened store(50);
    QVERIFY(store->program()->insert(2, "c"));
    QCOMPARE(read(aside), QByteArray("not there"));
    QTRY_COMPARE(read(aside), QByteArray("a\nb\nc\n"));
    QCOMPARE(read(file), QByteArray("a\nb\n"));
}

void TestProgramUnsaved::manyChangesInARowAreKept() {
    prepare();
    const Opened store;
    for (int i = 0; i < 50; ++i) {
        QVERIFY(store->program()->insert(0, QString::number(i)));
        store.settle();
        QTRY_VERIFY(read(aside).startsWith(QByteArray::number(i) + '\n'));
    }
}

void TestProgramUnsaved::changesThatDoNotEndAreKeptMeanwhile() {
    prepare();
    const Opened store(200);
    for (int i = 0; i < 500 && !files().contains(aside); ++i) {
        QVERIFY(store->program()->insert(0, QString::number(i)));
        QTest::qWait(10);
    }
    QVERIFY(files().contains(aside));
}

void TestProgramUnsaved::whatIsUndoneIsKeptNoLonger() {
    prepare();
    const Opened store;
    QVERIFY(store->program()->remove(0));
    QTRY_COMPARE(read(aside), QByteArray("b\n"));
    store->program()->undoStack()->undo();
    QTRY_COMPARE(read(aside), QByteArray("not there"));
    store->program()->undoStack()->redo();
    QTRY_COMPARE(read(aside), QByteArray("b\n"));
}

void TestProgramUnsaved::whatIsSavedIsKeptNoLonger() {
    prepare();
    const Opened store;
    QVERIFY(store->program()->remove(0));
    QTRY_COMPARE(read(aside), QByteArray("b\n"));
    QString error;
    QVERIFY(store->save(&error));
    QCOMPARE(read(aside), QByteArray("not there"));
    QCOMPARE(read(file), QByteArray("b\n"));
}

void TestProgramUnsaved::changesAreKeptWhenTheStoreGoes() {
    prepare();
    {
        const Opened store(never);
        QVERIFY(store->program()->remove(0));
    }
    QCOMPARE(read(aside), QByteArray("b\n"));
    QCOMPARE(read(file), QByteArray("a\nb\n"));
}

void TestProgramUnsaved::changesAreKeptWhenTheProgramIsLeft() {
    prepare();
    const Opened store(never);
    QVERIFY(store->program()->remove(0));
    setProject("other");
    store.settle();
    QCOMPARE(store.lines(), QStringList{"x"});
    QVERIFY(!store->program()->isModified());
    QCOMPARE(read(aside), QByteArray("b\n"));
    QVERIFY(!files().contains("other/programs/main.txt.unsaved"));
    setProject("demo");
    store.settle();
    QCOMPARE(store.lines(), QStringList{"b"});
    QVERIFY(store->hasTakenUpUnsaved());
    QCOMPARE(store.heard, (QStringList{"opened", "taken up", "opened"}));
}

void TestProgramUnsaved::changesOfACrashAreTakenUpAsOneStep() {
    prepare();
    write(aside, "a\nb\nc\n");
    const Store store(never);
    store.settle();
    QCOMPARE(store.heard, (QStringList{"taken up", "opened"}));
    QVERIFY(store->hasTakenUpUnsaved());
    QVERIFY(store->program()->isModified());
    QCOMPARE(store.lines(), (QStringList{"a", "b", "c"}));
    QCOMPARE(store->program()->undoStack()->undoText(), QString("Take up unsaved changes"));
    QCOMPARE(read(aside), QByteArray("a\nb\nc\n"));
    store->program()->undoStack()->undo();
    QCOMPARE(store.lines(), (QStringList{"a", "b"}));
}

void TestProgramUnsaved::whatWasTakenUpAndUndoneIsGone() {
    prepare();
    write(aside, "c\n");
    {
        const Opened store;
        store->program()->undoStack()->undo();
        QVERIFY(!store->hasTakenUpUnsaved());
        QCOMPARE(store.heard, QStringList{"not taken up"});
    }
    QCOMPARE(read(aside), QByteArray("not there"));
    QCOMPARE(read(file), QByteArray("a\nb\n"));
}

void TestProgramUnsaved::whatWasTakenUpAndSavedIsInTheFile() {
    prepare();
    write(aside, "c\n");
    const Opened store;
    QString error;
    QVERIFY(store->save(&error));
    QVERIFY(!store->hasTakenUpUnsaved());
    QCOMPARE(read(aside), QByteArray("not there"));
    QCOMPARE(read(file), QByteArray("c\n"));
}

void TestProgramUnsaved::changesOfAProgramThatWasNeverSavedAreTakenUp() {
    makeProject("demo");
    {
        const Opened store(never);
        QVERIFY(store->program()->insert(0, "a"));
    }
    QCOMPARE(files(), QStringList{aside});
    const Opened store(never);
    QCOMPARE(store.lines(), QStringList{"a"});
    QVERIFY(store->hasTakenUpUnsaved());
}

void TestProgramUnsaved::aProgramEmptiedButNotSavedIsTakenUp() {
    prepare();
    {
        const Opened store(never);
        QVERIFY(store->program()->replaceAll({}, "All"));
    }
    QCOMPARE(read(aside), QByteArray());
    const Opened store(never);
    QCOMPARE(store.lines(), QStringList());
    QVERIFY(store->hasTakenUpUnsaved());
}

void TestProgramUnsaved::whatIsKeptButEqualToTheFileIsNoChange() {
    prepare();
    write(aside, "a\nb");
    const Store store(never);
    store.settle();
    QCOMPARE(store.heard, QStringList{"opened"});
    QVERIFY(!store->hasTakenUpUnsaved());
    QVERIFY(!store->program()->isModified());
    QCOMPARE(read(aside), QByteArray("not there"));
}

void TestProgramUnsaved::whatCannotBeTakenUpIsMovedOutOfTheWay() {
    prepare();
    write(aside, "\xff");
    write(aside + ".unreadable", "older");
    const Store store(never);
    store.settle();
    QCOMPARE(store.heard.size(), 2);
    const QString end("main.txt.unsaved was not opened: it is no text in UTF-8. It was renamed to " +
                      store->place().unsavedFile() + ".unreadable2.");
    QCOMPARE(store.heard.at(0), QString("opened"));
    QVERIFY2(store.heard.at(1).startsWith("failed: ") && store.heard.at(1).endsWith(end),
             qPrintable(store.heard.at(1)));
    QVERIFY(!store->hasTakenUpUnsaved());
    QCOMPARE(store.lines(), (QStringList{"a", "b"}));
    QCOMPARE(read(aside + ".unreadable"), QByteArray("older"));
    QCOMPARE(read(aside + ".unreadable2"), QByteArray("\xff"));
    QVERIFY(store->program()->remove(0));
    QString error;
    QVERIFY(store->keepUnsaved(&error));
    QCOMPARE(read(aside), QByteArray("b\n"));
}

// A name so long that there is room for ".unsaved" and none for what is renamed.
void TestProgramUnsaved::whatCannotBeMovedOutOfTheWayIsNeverWrittenOver() {
    const QString name(236, 'f');
    const QString unsaved = "demo/programs/" + name + ".txt.unsaved";
    write("demo/programs/" + name + ".txt", "a\n");
    write(unsaved, "\xff");
    m("orca.project.cur_func")->setValue(nullptr, name);
    setProject("demo");
    // When it is opened and when changes are to be kept.
    for (int i = 0; i < 2; ++i)
        expect(".txt.unsaved.unreadable");
    const Opened store(never);
    QString error;
    QVERIFY(store->program()->insert(1, "b"));
    QVERIFY(!store->keepUnsaved(&error));
    QVERIFY2(error.contains("in the way"), qPrintable(error));
    QCOMPARE(read(unsaved), QByteArray("\xff"));
    QVERIFY2(store->save(&error), qPrintable(error));
    QVERIFY(store->keepUnsaved(&error));
    QCOMPARE(read(unsaved), QByteArray("\xff"));
    QVERIFY(QFile::remove(pathOf(unsaved)));
    QVERIFY(store->program()->remove(0));
    QVERIFY2(store->keepUnsaved(&error), qPrintable(error));
    QCOMPARE(read(unsaved), QByteArray("b\n"));
}

void TestProgramUnsaved::changesOfAnOlderFileAreMovedOutOfTheWay() {
    makeProject("demo");
    write(aside, "A\n");
    QTest::qWait(20);
    write(file, "A\nB\n");
    const Store store(never);
    store.settle();
    QCOMPARE(store.lines(), (QStringList{"A", "B"}));
    QVERIFY(!store->program()->isModified());
    QCOMPARE(store.heard.size(), 2);
    QVERIFY2(store.heard.at(1).endsWith("main.txt.unsaved.older."), qPrintable(store.heard.at(1)));
    QCOMPARE(read(aside + ".older"), QByteArray("A\n"));
    QCOMPARE(read(aside), QByteArray("not there"));
}

// They are written after somebody else has written the file, and belong to the one before all the same.
void TestProgramUnsaved::changesCarryTheTimeOfTheirFile() {
    prepare();
    {
        const Opened store(never);
        QVERIFY(store->program()->remove(0));
        QTest::qWait(20);
        write(file, "theirs\n");
    }
    const Opened store(never);
    QCOMPARE(store.lines(), QStringList{"theirs"});
    QCOMPARE(read(aside + ".older"), QByteArray("b\n"));
}

void TestProgramUnsaved::changesThatAreInTheFileAlreadyGo() {
    makeProject("demo");
    write(aside, "a\n");
    QTest::qWait(20);
    write(file, "a\n");
    const Store store(never);
    store.settle();
    QCOMPARE(store.heard, QStringList{"opened"});
    QCOMPARE(files(), QStringList{file});
}

void TestProgramUnsaved::aFailureIsToldOnceAndTriedAgain() {
    prepare();
    Opened store;
    block(aside);
    QVERIFY(store->program()->remove(0));
    QTRY_COMPARE(store.heard.size(), 1);
    QVERIFY2(store.heard.at(0).contains("main.txt.unsaved: "), qPrintable(store.heard.at(0)));
    QVERIFY(store->program()->remove(0));
    QTest::qWait(20);
    QCOMPARE(store.heard.size(), 1);
    unblock(aside);
    QTRY_COMPARE(read(aside), QByteArray());
    QCOMPARE(store.heard.mid(1), QStringList{"recovered"});
    block(aside);
    QVERIFY(store->program()->insert(0, "c"));
    QTRY_COMPARE(store.heard.size(), 3);
    unblock(aside);
    QTRY_COMPARE(read(aside), QByteArray("c\n"));
}

void TestProgramUnsaved::aProgramThatCannotBeKeptIsNotLeft() {
    prepare();
    const Opened store;
    block(aside);
    QVERIFY(store->program()->remove(0));
    setProject("other");
    QTRY_COMPARE(store.heard.size(), 1);
    QVERIFY(store.heard.at(0).startsWith("failed: "));
    QCOMPARE(store->place().project(), QString("demo"));
    QCOMPARE(store.lines(), QStringList{"b"});
    QTest::qWait(20);
    QCOMPARE(store.heard.size(), 1);
    unblock(aside);
    QTRY_COMPARE(store.lines(), QStringList{"x"});
    QCOMPARE(read(aside), QByteArray("b\n"));
    QCOMPARE(store.heard.mid(1), (QStringList{"recovered", "opened"}));
}

void TestProgramUnsaved::aProgramThatIsHeldIsLeftWhenItIsSaved() {
    prepare();
    const Opened store(never);
    block(aside);
    QVERIFY(store->program()->remove(0));
    setProject("other");
    store.settle();
    QCOMPARE(store.lines(), QStringList{"b"});
    QString error;
    QVERIFY(store->save(&error));
    store.settle();
    QCOMPARE(store.lines(), QStringList{"x"});
    QCOMPARE(read(file), QByteArray("b\n"));
}

void TestProgramUnsaved::aProgramThatIsHeldIsLeftWhenItIsUndone() {
    prepare();
    const Opened store;
    block(aside);
    QVERIFY(store->program()->remove(0));
    setProject("other");
    QTRY_COMPARE(store.heard.size(), 1);
    store->program()->undoStack()->undo();
    QTRY_COMPARE(store.lines(), QStringList{"x"});
    QCOMPARE(read(file), QByteArray("a\nb\n"));
}

void TestProgramUnsaved::aProgramThatIsHeldStaysWhenTheTreeComesBack() {
    prepare();
    const Opened store;
    block(aside);
    QVERIFY(store->program()->remove(0));
    setProject("other");
    QTRY_COMPARE(store.heard.size(), 1);
    setProject("demo");
    store.settle();
    unblock(aside);
    QTRY_COMPARE(read(aside), QByteArray("b\n"));
    QTest::qWait(20);
    QCOMPARE(store.lines(), QStringList{"b"});
    QVERIFY(store->program()->undoStack()->canUndo());
    QVERIFY(!store.heard.contains("opened"));
}

void TestProgramUnsaved::aStoreThatGoesAndCannotKeepTellsIt() {
    prepare();
    Opened store(never);
    block(aside);
    QVERIFY(store->program()->remove(0));
    QString error;
    QVERIFY(!store->keepUnsaved(&error));
    QVERIFY2(error.contains("main.txt.unsaved: "), qPrintable(error));
    store.store.reset();
    QCOMPARE(store.heard, QStringList{"failed: " + error});
}

QTEST_GUILESS_MAIN(TestProgramUnsaved)
#include "tst_program_unsaved.moc"
