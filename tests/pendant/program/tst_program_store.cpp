#include "programstorefixture.h"

// Which program is open, and how it gets to its file.
class TestProgramStore : public StoreTest {
    Q_OBJECT

private slots:
    void withoutAProjectNoneIsOpen();
    void theProgramOfTheProjectIsOpened();
    void aProgramThatIsNotThereYetIsEmpty();
    void severalNewNamesOpenOneProgram();
    void whatIsAnnouncedAgainOpensNothing();
    void theFunctionNamesTheProgram();
    void aTreeThatIsMadeAnewIsFollowed();
    void whenTheProjectIsClosedTheProgramIsToo();
    void aNameThatLeadsElsewhereOpensNone();
    void aProgramThatCannotBeReadIsLeftAlone();
    void whatCouldNotBeReadIsTriedAgain();
    void aProgramInAFolderThatIsNotThereIsNotEmpty_data();
    void aProgramInAFolderThatIsNotThereIsNotEmpty();
    void whatAppearsWhereThereWasNothingIsNotWrittenOver();
    void whatSomebodyElseWroteIsNotWrittenOver();
    void whatSomebodyElseWroteTwiceIsToldTwice();
    void theSameWrittenBySomebodyElseIsNoConflict();
    void aProjectThatIsMadeAnewIsAnotherOne();
    void changesDoNotGoIntoAProjectThatIsMadeAnew();
    void savingWritesTheFile();
    void withoutAProgramNothingIsSaved();
    void aSaveThatFailsChangesNothing();
    void aSavedProgramIsOpenedByTheNextStore();
};

void TestProgramStore::withoutAProjectNoneIsOpen() {
    Store store;
    QVERIFY(!store->isOpen());
    QCOMPARE(store->problem(), QString("No project is open."));
    store.settle();
    QVERIFY(!store->isOpen());
    QCOMPARE(store.heard, QStringList());
    QCOMPARE(store->program()->count(), 0);
}

void TestProgramStore::theProgramOfTheProjectIsOpened() {
    write("demo/programs/main.txt", "a\nb\n");
    Store store;
    setProject("demo");
    QVERIFY(!store->isOpen());
    store.settle();
    QVERIFY(store->isOpen());
    QCOMPARE(store->problem(), QString());
    QCOMPARE(store->place().project(), QString("demo"));
    QCOMPARE(store->place().name(), QString("main"));
    QCOMPARE(store.lines(), (QStringList{"a", "b"}));
    QVERIFY(!store->program()->isModified());
    QCOMPARE(store.heard, QStringList{"opened"});
}

void TestProgramStore::aProgramThatIsNotThereYetIsEmpty() {
    makeProject("demo");
    Store store;
    store.settle();
    QVERIFY(store->isOpen());
    QCOMPARE(store.lines(), QStringList());
    QCOMPARE(files(), QStringList());
}

void TestProgramStore::severalNewNamesOpenOneProgram() {
    Store store;
    makeProject("demo");
    makeProject("other");
    m("orca.project.cur_func")->setValue(nullptr, "pick");
    store.settle();
    QCOMPARE(store.heard, QStringList{"opened"});
    QVERIFY(store->place().file().endsWith("/workspace/other/programs/pick.txt"));
}

void TestProgramStore::whatIsAnnouncedAgainOpensNothing() {
    write("demo/programs/main.txt", "a\n");
    setProject("demo");
    Store store;
    store.settle();
    QVERIFY(store->program()->insert(1, "b"));
    m("orca.project.cur_project")->trigger();
    setProject("demo");
    store.settle();
    QCOMPARE(store.lines(), (QStringList{"a", "b"}));
    QVERIFY(store->program()->undoStack()->canUndo());
    QCOMPARE(store.heard, QStringList{"opened"});
}

void TestProgramStore::theFunctionNamesTheProgram() {
    write("demo/programs/main.txt", "a\n");
    write("demo/programs/pick.txt", "b\n");
    setProject("demo");
    Store store;
    store.settle();
    m("orca.project.cur_func")->setValue(nullptr, "pick");
    store.settle();
    QCOMPARE(store.lines(), QStringList{"b"});
    QVERIFY(!store->program()->undoStack()->canUndo());
}

void TestProgramStore::aTreeThatIsMadeAnewIsFollowed() {
    write("demo/programs/main.txt", "a\n");
    setProject("demo");
    Store store;
    store.settle();
    m("orca")->clear(nullptr, true, true);
    store.settle();
    QVERIFY(!store->isOpen());
    setProject("demo");
    store.settle();
    QCOMPARE(store.lines(), QStringList{"a"});
    QCOMPARE(store.heard, (QStringList{"opened", "opened", "opened"}));
}

void TestProgramStore::whenTheProjectIsClosedTheProgramIsToo() {
    write("demo/programs/main.txt", "a\n");
    setProject("demo");
    Store store;
    store.settle();
    setProject("");
    store.settle();
    QVERIFY(!store->isOpen());
    QCOMPARE(store->problem(), QString("No project is open."));
    QCOMPARE(store.lines(), QStringList());
}

void TestProgramStore::aNameThatLeadsElsewhereOpensNone() {
    setProject("../demo");
    Store store;
    store.settle();
    QVERIFY(!store->isOpen());
    QCOMPARE(store->problem(), QString("The project's name “../demo” leads out of the workspace."));
    QCOMPARE(store.heard, QStringList{"opened"});
}

void TestProgramStore::aProgramThatCannotBeReadIsLeftAlone() {
    write("demo/programs/main.txt", "\xff");
    write("demo/programs/main.txt.unsaved", "a\n");
    write("other/programs/main.txt", "b\n");
    setProject("demo");
    {
        Store store;
        store.settle();
        QVERIFY(!store->isOpen());
        QVERIFY2(store->problem().endsWith("main.txt was not opened: it is no text in UTF-8."),
                 qPrintable(store->problem()));
        QCOMPARE(store.lines(), QStringList());
        QString error;
        QVERIFY(!store->save(&error));
        QCOMPARE(error, store->problem());
        QVERIFY(store->keepUnsaved(&error));
        setProject("other");
        store.settle();
        QCOMPARE(store.lines(), QStringList{"b"});
    }
    QCOMPARE(read("demo/programs/main.txt"), QByteArray("\xff"));
    QCOMPARE(read("demo/programs/main.txt.unsaved"), QByteArray("a\n"));
}

void TestProgramStore::whatCouldNotBeReadIsTriedAgain() {
    write("demo/programs/main.txt", "\xff");
    setProject("demo");
    Store store;
    store.settle();
    store->follow();
    QCOMPARE(store.heard, QStringList{"opened"});
    write("demo/programs/main.txt", "a\n");
    store->follow();
    QVERIFY(store->isOpen());
    QCOMPARE(store.lines(), QStringList{"a"});
    QCOMPARE(store.heard, (QStringList{"opened", "opened"}));
}

void TestProgramStore::aProgramInAFolderThatIsNotThereIsNotEmpty_data() {
    QTest::addColumn<QString>("away");
    QTest::addColumn<bool>("isFileInPlace");
    QTest::newRow("workspace") << "workspace" << false;
    QTest::newRow("project") << "workspace/demo" << false;
    QTest::newRow("a file in the project's place") << "workspace/demo" << true;
    QTest::newRow("a file in the folder's place") << "workspace/demo/programs" << true;
}

void TestProgramStore::aProgramInAFolderThatIsNotThereIsNotEmpty() {
    QFETCH(QString, away);
    QFETCH(bool, isFileInPlace);
    write("demo/programs/main.txt", "precious\n");
    QVERIFY(QFile::rename(away, "away"));
    QFile inPlace(away);
    QVERIFY(!isFileInPlace || inPlace.open(QIODevice::WriteOnly));
    setProject("demo");
    Store store;
    store.settle();
    QVERIFY(!store->isOpen());
    QVERIFY2(store->problem().contains("main.txt cannot be read: "), qPrintable(store->problem()));
    inPlace.remove();
    QVERIFY(QFile::rename("away", away));
    QString error;
    QVERIFY(!store->save(&error));
    store->follow();
    QCOMPARE(store.lines(), QStringList{"precious"});
}

void TestProgramStore::whatAppearsWhereThereWasNothingIsNotWrittenOver() {
    makeProject("demo");
    Store store;
    store.settle();
    QVERIFY(store->program()->insert(0, "mine"));
    write("demo/programs/main.txt", "theirs\n");
    QString error;
    QVERIFY(!store->save(&error));
    QVERIFY2(error.contains("somebody else has changed"), qPrintable(error));
    QCOMPARE(read("demo/programs/main.txt"), QByteArray("theirs\n"));
}

void TestProgramStore::whatSomebodyElseWroteIsNotWrittenOver() {
    write("demo/programs/main.txt", "a\n");
    write("demo/programs/main.txt.other", "from before\n");
    setProject("demo");
    Store store;
    store.settle();
    QVERIFY(store->program()->insert(1, "mine"));
    write("demo/programs/main.txt", "theirs\n");
    QString error;
    QVERIFY(!store->save(&error));
    QVERIFY2(error.contains("main.txt.other2"), qPrintable(error));
    QVERIFY(store->program()->isModified());
    QCOMPARE(read("demo/programs/main.txt"), QByteArray("theirs\n"));
    QVERIFY2(store->save(&error), qPrintable(error));
    QCOMPARE(read("demo/programs/main.txt"), QByteArray("a\nmine\n"));
    QCOMPARE(read("demo/programs/main.txt.other"), QByteArray("from before\n"));
    QCOMPARE(read("demo/programs/main.txt.other2"), QByteArray("theirs\n"));
    // What was saved is what is there now: the next save is as ever.
    QVERIFY(store->program()->remove(0));
    QVERIFY2(store->save(&error), qPrintable(error));
}

void TestProgramStore::whatSomebodyElseWroteTwiceIsToldTwice() {
    write("demo/programs/main.txt", "a\n");
    setProject("demo");
    Store store;
    store.settle();
    QVERIFY(store->program()->insert(1, "mine"));
    QString error;
    for (const char* theirs : {"first\n", "second\n"}) {
        write("demo/programs/main.txt", theirs);
        QVERIFY(!store->save(&error));
        QCOMPARE(read("demo/programs/main.txt"), QByteArray(theirs));
    }
}

void TestProgramStore::theSameWrittenBySomebodyElseIsNoConflict() {
    write("demo/programs/main.txt", "a\n");
    setProject("demo");
    Store store;
    store.settle();
    QVERIFY(store->program()->insert(1, "b"));
    write("demo/programs/main.txt", "a\nb\n");
    QString error;
    QVERIFY2(store->save(&error), qPrintable(error));
    QCOMPARE(files(), QStringList{"demo/programs/main.txt"});
}

void TestProgramStore::aProjectThatIsMadeAnewIsAnotherOne() {
    write("demo/programs/main.txt", "old\n");
    setProject("demo");
    Store store;
    store.settle();
    QVERIFY(QDir(pathOf("demo")).removeRecursively());
    makeProject("demo");
    store.settle();
    QVERIFY(store->isOpen());
    QCOMPARE(store.lines(), QStringList());
    QCOMPARE(store.heard, (QStringList{"opened", "opened"}));
}

void TestProgramStore::changesDoNotGoIntoAProjectThatIsMadeAnew() {
    write("demo/programs/main.txt", "old\n");
    setProject("demo");
    Store store(1000 * 1000);
    store.settle();
    QVERIFY(store->program()->insert(0, "changed"));
    QVERIFY(QDir(pathOf("demo")).removeRecursively());
    QVERIFY(QDir().mkpath(pathOf("demo")));
    QString error;
    QVERIFY(!store->save(&error));
    setProject("demo");
    store.settle();
    QCOMPARE(store.lines(), QStringList());
    QCOMPARE(files(), QStringList());
    QCOMPARE(store.heard, (QStringList{"opened", "opened", "failed: " + error}));
}

void TestProgramStore::savingWritesTheFile() {
    makeProject("demo");
    Store store;
    store.settle();
    QVERIFY(store->program()->insert(0, "a"));
    QString error;
    QVERIFY2(store->save(&error), qPrintable(error));
    QCOMPARE(read("demo/programs/main.txt"), QByteArray("a\n"));
    QVERIFY(!store->program()->isModified());
    QVERIFY(store->program()->undoStack()->canUndo());
    QCOMPARE(files(), QStringList{"demo/programs/main.txt"});
}

void TestProgramStore::withoutAProgramNothingIsSaved() {
    Store store;
    store.settle();
    QString error;
    QVERIFY(!store->save(&error));
    QCOMPARE(error, QString("No project is open."));
    QCOMPARE(files(), QStringList());
}

void TestProgramStore::aSaveThatFailsChangesNothing() {
    write("demo/programs/main.txt", "a\n");
    setProject("demo");
    Store store;
    store.settle();
    QVERIFY(store->program()->insert(1, "b"));
    block("demo/programs/main.txt");
    QString error;
    QVERIFY(!store->save(&error));
    QVERIFY2(error.contains("main.txt: "), qPrintable(error));
    QVERIFY(store->program()->isModified());
    QCOMPARE(store.lines(), (QStringList{"a", "b"}));
    unblock("demo/programs/main.txt");
    QVERIFY2(store->save(&error), qPrintable(error));
    QCOMPARE(read("demo/programs/main.txt"), QByteArray("a\nb\n"));
}

void TestProgramStore::aSavedProgramIsOpenedByTheNextStore() {
    makeProject("demo");
    {
        Store store;
        store.settle();
        QVERIFY(store->program()->replaceAll({"a", "", "b // c"}, "All"));
        QString error;
        QVERIFY2(store->save(&error), qPrintable(error));
    }
    Store store;
    store.settle();
    QCOMPARE(store.lines(), (QStringList{"a", "", "b // c"}));
    QVERIFY(!store->program()->isModified());
    QVERIFY(!store->hasTakenUpUnsaved());
}

QTEST_GUILESS_MAIN(TestProgramStore)
#include "tst_program_store.moc"
