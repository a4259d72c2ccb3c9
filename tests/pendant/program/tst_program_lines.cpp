#include "program/program.h"
#include "programtexts.h"

#include "pendanttest/logwatch.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <memory>

using pendant::Program;

Q_DECLARE_METATYPE(std::function<bool(Program*)>)

// What a program holds, and what one change does to it.
class TestProgramLines : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log.reset(new pendanttest::LogWatch);
        m_program.reset(new Program);
        m_tester.reset(new QAbstractItemModelTester(m_program.get()));
        QVERIFY(m_program->load({"a", "b", "c"}));
    }
    void cleanup() {
        m_tester.reset();
        m_program.reset();
        m_log.reset();
    }

    void aNewProgramIsEmptyAndSaved();
    void aLineIsARow();
    void everyChangeIsAStepThatCanBeUndone_data();
    void everyChangeIsAStepThatCanBeUndone();
    void whatChangesNothingIsNoStep();
    void aRowThatIsNotThereChangesNothing();
    void aLineIsTakenAsItIs_data() { addOddLines(); }
    void aLineIsTakenAsItIs();
    void aLineThatCannotBeKeptIsRefused_data();
    void aLineThatCannotBeKeptIsRefused();
    void aProgramWithSuchALineIsNotLoaded();
    void loadingForgetsTheHistory();
    void savedIsWhereItWasSaved();
    void aSavedStateThatIsNoLongerInTheHistoryIsGone();
    void itIsModifiedAlreadyWhenTheTouchIsTold();
    void aTouchMayChangeTheProgram();
    void theModelIsResetWhenAllIsReplaced();
    void tenThousandLinesAreMovedAndUndone();
    void itGoesWithChangesInItsHistory();

private:
    std::unique_ptr<pendanttest::LogWatch> m_log;
    std::unique_ptr<Program> m_program;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TestProgramLines::aNewProgramIsEmptyAndSaved() {
    const Program program;
    QCOMPARE(program.count(), 0);
    QCOMPARE(program.lines(), QStringList());
    QVERIFY(!program.isModified());
}

void TestProgramLines::aLineIsARow() {
    QCOMPARE(m_program->rowCount(), 3);
    QCOMPARE(m_program->rowCount(m_program->index(0)), 0);
    QCOMPARE(m_program->index(1).data(), QVariant("b"));
    QVERIFY(!m_program->index(1).data(Qt::DecorationRole).isValid());
    QVERIFY(!m_program->data(QModelIndex(), Qt::DisplayRole).isValid());
    QCOMPARE(m_program->line(2), QString("c"));
    QCOMPARE(m_program->line(3), QString());
    QCOMPARE(m_program->line(-1), QString());
}

void TestProgramLines::everyChangeIsAStepThatCanBeUndone_data() {
    QTest::addColumn<std::function<bool(Program*)>>("change");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("touched");
    QTest::addColumn<int>("touchedByUndo");
    const auto row = [](const char* name, const std::function<bool(Program*)>& change, const QStringList& after,
                        const char* step, int touched, int touchedByUndo) {
        QTest::newRow(name) << change << after << step << touched << touchedByUndo;
    };
    const auto insert = [](int at) { return [at](Program* program) { return program->insert(at, "new"); }; };
    row("insert first", insert(0), {"new", "a", "b", "c"}, "Insert line", 0, 0);
    row("insert between", insert(2), {"a", "b", "new", "c"}, "Insert line", 2, 2);
    row("insert last", insert(3), {"a", "b", "c", "new"}, "Insert line", 3, 2);
    const auto replace = [](int at) { return [at](Program* program) { return program->replace(at, "new"); }; };
    row("replace first", replace(0), {"new", "b", "c"}, "Change line", 0, 0);
    row("replace last", replace(2), {"a", "b", "new"}, "Change line", 2, 2);
    const auto remove = [](int at) { return [at](Program* program) { return program->remove(at); }; };
    row("remove first", remove(0), {"b", "c"}, "Delete line", 0, 0);
    row("remove last", remove(2), {"a", "b"}, "Delete line", 1, 2);
    const auto move = [](int from, int to) { return [=](Program* program) { return program->move(from, to); }; };
    row("move down", move(0, 1), {"b", "a", "c"}, "Move line", 1, 0);
    row("move to the end", move(0, 2), {"b", "c", "a"}, "Move line", 2, 0);
    row("move up", move(2, 1), {"a", "c", "b"}, "Move line", 1, 2);
    row("move to the front", move(2, 0), {"c", "a", "b"}, "Move line", 0, 2);
    const auto replaceAll = [](const QStringList& lines) {
        return [=](Program* program) { return program->replaceAll(lines, "All"); };
    };
    row("replace all", replaceAll({"x"}), {"x"}, "All", 0, 0);
    row("replace all by nothing", replaceAll({}), {}, "All", -1, 0);
}

void TestProgramLines::everyChangeIsAStepThatCanBeUndone() {
    QFETCH(std::function<bool(Program*)>, change);
    QFETCH(QStringList, after);
    QFETCH(QString, step);
    QFETCH(int, touched);
    QFETCH(int, touchedByUndo);
    QSignalSpy touches(m_program.get(), &Program::touched);
    QSignalSpy changes(m_program.get(), &Program::linesChanged);
    QVERIFY(change(m_program.get()));
    QCOMPARE(m_program->lines(), after);
    QVERIFY(m_program->isModified());
    QCOMPARE(m_program->undoStack()->undoText(), step);
    m_program->undoStack()->undo();
    QCOMPARE(m_program->lines(), (QStringList{"a", "b", "c"}));
    QVERIFY(!m_program->isModified());
    QCOMPARE(m_program->undoStack()->redoText(), step);
    m_program->undoStack()->redo();
    QCOMPARE(m_program->lines(), after);
    QCOMPARE(touches, (QList<QVariantList>{{touched}, {touchedByUndo}, {touched}}));
    QCOMPARE(changes.count(), 3);
}

void TestProgramLines::whatChangesNothingIsNoStep() {
    QVERIFY(m_program->replace(1, "b"));
    QVERIFY(m_program->move(1, 1));
    QVERIFY(m_program->replaceAll({"a", "b", "c"}, "All"));
    QCOMPARE(m_program->undoStack()->count(), 0);
}

void TestProgramLines::aRowThatIsNotThereChangesNothing() {
    QVERIFY(!m_program->insert(-1, "x"));
    QVERIFY(!m_program->insert(4, "x"));
    QVERIFY(!m_program->replace(-1, "x"));
    QVERIFY(!m_program->replace(3, "x"));
    QVERIFY(!m_program->remove(-1));
    QVERIFY(!m_program->remove(3));
    QVERIFY(!m_program->move(0, 3));
    QVERIFY(!m_program->move(3, 0));
    QVERIFY(!m_program->move(0, -1));
    QVERIFY(!m_program->move(-1, 0));
    QCOMPARE(m_program->lines(), (QStringList{"a", "b", "c"}));
    QCOMPARE(m_program->undoStack()->count(), 0);
}

void TestProgramLines::aLineIsTakenAsItIs() {
    QFETCH(QString, line);
    QCOMPARE(Program::refusalOf(line), QString());
    QVERIFY(m_program->insert(1, line));
    QCOMPARE(m_program->lines(), (QStringList{"a", line, "b", "c"}));
    QVERIFY(m_program->replace(3, line));
    QCOMPARE(m_program->index(3).data().toString(), line);
    QVERIFY(m_program->load({line}));
    QCOMPARE(m_program->lines(), QStringList{line});
}

void TestProgramLines::aLineThatCannotBeKeptIsRefused_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("why");
    const QString lineBreak("A line break cannot stand within a program line.");
    QTest::newRow("line feed") << "a\nb" << lineBreak;
    QTest::newRow("line feed at the end") << "a\n" << lineBreak;
    QTest::newRow("carriage return") << "\ra" << lineBreak;
    QTest::newRow("line separator") << QString("a") + QChar(0x2028) << lineBreak;
    QTest::newRow("paragraph separator") << QString(QChar(0x2029)) + "a" << lineBreak;
    QTest::newRow("null") << QString("a") + QChar(QChar::Null) + "b"
                          << "A null character cannot stand in a program line.";
    const QString half("Half of a character cannot stand in a program line.");
    QTest::newRow("high surrogate before a letter") << QString(QChar(0xd83d)) + "a" << half;
    QTest::newRow("high surrogate at the end") << QString("a") + QChar(0xd83d) << half;
    QTest::newRow("low surrogate") << QString("a") + QChar(0xde00) + "b" << half;
    QTest::newRow("surrogates the wrong way round") << QString(QChar(0xde00)) + QChar(0xd83d) << half;
    QTest::newRow("one too many") << QString(QChar(0xd83d)) + QChar(0xde00) + QChar(0xde00) << half;
}

void TestProgramLines::aLineThatCannotBeKeptIsRefused() {
    QFETCH(QString, line);
    QFETCH(QString, why);
    QCOMPARE(Program::refusalOf(line), why);
    QVERIFY(!m_program->insert(0, line));
    QVERIFY(!m_program->replace(0, line));
    QVERIFY(!m_program->replaceAll({"x", line}, "All"));
    QCOMPARE(m_program->lines(), (QStringList{"a", "b", "c"}));
    QCOMPARE(m_program->undoStack()->count(), 0);
}

void TestProgramLines::aProgramWithSuchALineIsNotLoaded() {
    QVERIFY(m_program->remove(0));
    QVERIFY(!m_program->load({"x", "y\nz"}));
    QCOMPARE(m_program->lines(), (QStringList{"b", "c"}));
    QVERIFY(m_program->undoStack()->canUndo());
}

void TestProgramLines::loadingForgetsTheHistory() {
    QVERIFY(m_program->insert(0, "x"));
    QSignalSpy touches(m_program.get(), &Program::touched);
    QSignalSpy changes(m_program.get(), &Program::linesChanged);
    QSignalSpy modified(m_program.get(), &Program::modifiedChanged);
    QVERIFY(m_program->load({"y"}));
    QCOMPARE(m_program->lines(), QStringList{"y"});
    QCOMPARE(m_program->undoStack()->count(), 0);
    QVERIFY(!m_program->isModified());
    QCOMPARE(touches.count(), 0);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(modified, QList<QVariantList>{{false}});
}

void TestProgramLines::savedIsWhereItWasSaved() {
    QSignalSpy modified(m_program.get(), &Program::modifiedChanged);
    QVERIFY(m_program->remove(0));
    m_program->setSaved();
    QVERIFY(!m_program->isModified());
    m_program->undoStack()->undo();
    QVERIFY(m_program->isModified());
    m_program->undoStack()->redo();
    QVERIFY(!m_program->isModified());
    QCOMPARE(modified, (QList<QVariantList>{{true}, {false}, {true}, {false}}));
}

void TestProgramLines::aSavedStateThatIsNoLongerInTheHistoryIsGone() {
    QVERIFY(m_program->remove(0));
    m_program->setSaved();
    m_program->undoStack()->undo();
    QVERIFY(m_program->remove(1));
    QVERIFY(m_program->isModified());
    m_program->undoStack()->undo();
    QVERIFY(m_program->isModified());
}

void TestProgramLines::itIsModifiedAlreadyWhenTheTouchIsTold() {
    QVector<bool> heard;
    connect(m_program.get(), &Program::touched, this, [&] { heard << m_program->isModified(); });
    QVERIFY(m_program->remove(0));
    m_program->undoStack()->undo();
    QCOMPARE(heard, (QVector<bool>{true, false}));
}

void TestProgramLines::aTouchMayChangeTheProgram() {
    connect(m_program.get(), &Program::touched, this, [&] {
        if (m_program->line(0) != "first")
            m_program->insert(0, "first");
    });
    QVERIFY(m_program->remove(2));
    QCOMPARE(m_program->lines(), (QStringList{"first", "a", "b"}));
    QCOMPARE(m_program->undoStack()->count(), 2);
    QVERIFY(m_program->isModified());
}

void TestProgramLines::theModelIsResetWhenAllIsReplaced() {
    QSignalSpy resets(m_program.get(), &Program::modelReset);
    QVERIFY(m_program->replaceAll(numberedLines(10), "All"));
    m_program->undoStack()->undo();
    QCOMPARE(resets.count(), 2);
}

void TestProgramLines::tenThousandLinesAreMovedAndUndone() {
    m_tester.reset();
    const int count = 10000;
    const QStringList lines = numberedLines(count);
    QVERIFY(m_program->load(lines));
    for (int i = 0; i < count; ++i)
        QVERIFY(m_program->move(0, count - 1 - i));
    QStringList reversed = lines;
    std::reverse(reversed.begin(), reversed.end());
    QCOMPARE(m_program->lines(), reversed);
    m_program->undoStack()->setIndex(0);
    QCOMPARE(m_program->lines(), lines);
    QVERIFY(!m_program->isModified());
}

void TestProgramLines::itGoesWithChangesInItsHistory() {
    auto* program = new Program;
    QVERIFY(program->insert(0, "x"));
    QSignalSpy modified(program, &Program::modifiedChanged);
    QSignalSpy touches(program, &Program::touched);
    delete program;
    QCOMPARE(modified.count() + touches.count(), 0);
}

QTEST_GUILESS_MAIN(TestProgramLines)
#include "tst_program_lines.moc"
