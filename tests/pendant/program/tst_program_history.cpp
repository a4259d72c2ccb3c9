#include "program/program.h"
#include "programtexts.h"

#include "pendanttest/logwatch.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <memory>
#include <random>

using pendant::Program;

namespace {

/// A program as anybody would write it who has memory enough: every state it was in.
struct Oracle {
    explicit Oracle(const QStringList& lines) : states{lines} {}

    const QStringList& now() const { return states.at(index); }
    bool isModified() const { return index != saved; }
    void step(const QStringList& lines) {
        if (saved > index)
            saved = -1;
        states.resize(index + 1);
        states.append(lines);
        ++index;
    }
    void undo() { index = std::max(index - 1, 0); }
    void redo() { index = std::min(index + 1, states.size() - 1); }

    QVector<QStringList> states;
    int index = 0;
    int saved = 0;
};

/// The lines as somebody has them who follows the signals of the model alone.
class Follower : public QObject {
public:
    explicit Follower(Program* program) : m_program(program) {
        connect(program, &Program::modelReset, this, [this] { lines = m_program->lines(); });
        connect(program, &Program::rowsInserted, this, [this](const QModelIndex&, int first, int last) {
            for (int row = first; row <= last; ++row)
                lines.insert(row, textOf(row));
        });
        connect(program, &Program::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
            for (int row = last; row >= first; --row)
                lines.removeAt(row);
        });
        connect(program, &Program::rowsMoved, this,
                [this](const QModelIndex&, int from, int, const QModelIndex&, int before) {
                    lines.move(from, before > from ? before - 1 : before);
                });
        connect(program, &Program::dataChanged, this, [this](const QModelIndex& first, const QModelIndex& last) {
            for (int row = first.row(); row <= last.row(); ++row)
                lines[row] = textOf(row);
        });
    }

    QStringList lines;

private:
    QString textOf(int row) const { return m_program->index(row).data().toString(); }
    Program* m_program;
};

} // namespace

// Any sequence of changes, undone and made again, against a program that remembers every state it was in.
class TestProgramHistory : public QObject {
    Q_OBJECT

private slots:
    void anyChangesAreUndoneAndMadeAgain_data() {
        QTest::addColumn<uint>("seed");
        for (uint seed = 1; seed <= 30; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void anyChangesAreUndoneAndMadeAgain();

private:
    int pick(int count) { return int(m_random() % uint(count)); }
    QString pickLine() { return m_texts.at(pick(m_texts.size())); }
    QStringList pickLines();

    void insert();
    void replace();
    void remove();
    void move();
    void replaceAll();
    void go();

    std::mt19937 m_random;
    QStringList m_texts;
    std::unique_ptr<Program> m_program;
    std::unique_ptr<Oracle> m_oracle;
};

QStringList TestProgramHistory::pickLines() {
    QStringList lines;
    for (int i = pick(6); i > 0; --i)
        lines << pickLine();
    return lines;
}

void TestProgramHistory::insert() {
    QStringList lines = m_oracle->now();
    const int row = pick(lines.size() + 1);
    lines.insert(row, pickLine());
    QVERIFY(m_program->insert(row, lines.at(row)));
    m_oracle->step(lines);
}

void TestProgramHistory::replace() {
    QStringList lines = m_oracle->now();
    const int row = pick(lines.size());
    lines[row] = pickLine();
    QVERIFY(m_program->replace(row, lines.at(row)));
    if (lines != m_oracle->now())
        m_oracle->step(lines);
}

void TestProgramHistory::remove() {
    QStringList lines = m_oracle->now();
    const int row = pick(lines.size());
    lines.removeAt(row);
    QVERIFY(m_program->remove(row));
    m_oracle->step(lines);
}

void TestProgramHistory::move() {
    QStringList lines = m_oracle->now();
    const int from = pick(lines.size());
    const int to = pick(lines.size());
    lines.insert(to, lines.takeAt(from));
    QVERIFY(m_program->move(from, to));
    if (from != to)
        m_oracle->step(lines);
}

void TestProgramHistory::replaceAll() {
    const QStringList lines = pickLines();
    QVERIFY(m_program->replaceAll(lines, "All"));
    if (lines != m_oracle->now())
        m_oracle->step(lines);
}

void TestProgramHistory::go() {
    const int kind = pick(20);
    const bool isEmpty = m_oracle->now().isEmpty();
    if (kind < 5 || (isEmpty && kind < 12))
        return insert();
    if (kind < 8)
        return replace();
    if (kind < 10)
        return remove();
    if (kind < 12)
        return move();
    if (kind == 12)
        return replaceAll();
    if (kind == 13) {
        m_program->setSaved();
        m_oracle->saved = m_oracle->index;
    } else if (kind < 17) {
        m_program->undoStack()->undo();
        m_oracle->undo();
    } else {
        m_program->undoStack()->redo();
        m_oracle->redo();
    }
}

void TestProgramHistory::anyChangesAreUndoneAndMadeAgain() {
    QFETCH(uint, seed);
    m_random.seed(seed);
    for (const auto& odd : oddLines().mid(0, 12))
        m_texts << odd.second;
    m_oracle.reset(new Oracle(pickLines()));
    m_program.reset(new Program);
    const pendanttest::LogWatch log;
    const QAbstractItemModelTester tester(m_program.get());
    const Follower follower(m_program.get());
    QVERIFY(m_program->load(m_oracle->now()));
    QSignalSpy touches(m_program.get(), &Program::touched);
    for (int round = 0; round < 400 && !QTest::currentTestFailed(); ++round) {
        const int before = m_oracle->index;
        touches.clear();
        go();
        QCOMPARE(m_program->lines(), m_oracle->now());
        QCOMPARE(follower.lines, m_oracle->now());
        QCOMPARE(m_program->isModified(), m_oracle->isModified());
        QCOMPARE(touches.count(), m_oracle->index == before ? 0 : 1);
        if (touches.count() == 1)
            QVERIFY(touches.at(0).at(0).toInt() < m_program->count());
    }
    m_program->undoStack()->setIndex(0);
    QCOMPARE(m_program->lines(), m_oracle->states.first());
}

QTEST_GUILESS_MAIN(TestProgramHistory)
#include "tst_program_history.moc"
