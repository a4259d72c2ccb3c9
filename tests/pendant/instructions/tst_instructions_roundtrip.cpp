#include "owngrammars.h"

#include <QRandomGenerator>
#include <QTest>

using namespace pendant;

// Whatever an instruction can hold survives the way into a line and back. The seed of a run is printed; an environment
// variable repeats it.
class TestInstructionRoundTrip : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void moves();
    void waits();
    void outputs();
    void assignments();
    void comments();

private:
    static const int runs = 2000;

    int number(int least, int most) { return m_random.bounded(least, most + 1); }
    QString text(int longest);
    QString name() { return QChar('a' + number(0, 25)) + text(12); }
    QString maybeName() { return number(0, 1) ? name() : QString(); }
    QString value();
    template <typename Read> void check(const QString& text, const LineGrammar& grammar, const Read& read);

    QRandomGenerator m_random;
};

void TestInstructionRoundTrip::initTestCase() {
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("KITE_SEED", &isGiven);
    const quint32 seed = isGiven ? quint32(given) : QRandomGenerator::global()->generate() / 2;
    qInfo("KITE_SEED=%u repeats this run.", seed);
    m_random.seed(seed);
}

// Of characters that mean something in a line, and of many alphabets.
QString TestInstructionRoundTrip::text(int longest) {
    static const QString characters = QString::fromUtf8("ab Z09_\"\\/=%.*+?()[]{}^$|-,;:'\täßé字漢αж");
    QString text;
    for (int i = number(0, longest); i > 0; --i) {
        text += characters.at(number(0, characters.size() - 1));
        if (number(0, 20) == 0)
            text += QString::fromUtf8("🔧");
    }
    return text;
}

QString TestInstructionRoundTrip::value() {
    QStringList words;
    for (int i = number(1, 6); i > 0; --i) {
        QString word = text(6).remove('"').remove("/");
        word = word.simplified().isEmpty() ? QString("b") : word.simplified();
        words << (number(0, 2) ? word : LineGrammar::written(text(8) + ' '));
    }
    return words.join(number(0, 1) ? " " : " / ");
}

template <typename Read>
void TestInstructionRoundTrip::check(const QString& text, const LineGrammar& grammar, const Read& read) {
    const QString indent(number(0, 3), ' ');
    const QString tail = number(0, 1) ? " //" + this->text(10) : QString();
    LineParts parts;
    QVERIFY2(grammar.read(indent + text + tail, &parts), qPrintable(indent + text + tail));
    QCOMPARE(parts.indent, indent);
    read(parts);
    QCOMPARE(parts.tail, tail);
}

void TestInstructionRoundTrip::moves() {
    for (int i = 0; i < runs && !QTest::currentTestFailed(); ++i) {
        const auto kind = MoveLine::Kind(number(0, 1));
        const MoveLine made{kind,           name(),      number(1, kind == MoveLine::Joint ? 100 : 9999),
                            number(0, 999), maybeName(), maybeName()};
        check(made.text(), MoveLine::grammar(kind), [&](const LineParts& parts) {
            const MoveLine read = MoveLine::of(kind, parts);
            QCOMPARE(read.point, made.point);
            QCOMPARE(read.speed, made.speed);
            QCOMPARE(read.zoneMm, made.zoneMm);
            QCOMPARE(read.tool, made.tool);
            QCOMPARE(read.workObject, made.workObject);
        });
    }
}

void TestInstructionRoundTrip::waits() {
    for (int i = 0; i < runs && !QTest::currentTestFailed(); ++i) {
        const WaitLine made{number(0, i % 2 ? 20 : WaitLine::longestMs)};
        check(made.text(), WaitLine::grammar(),
              [&](const LineParts& parts) { QCOMPARE(WaitLine::of(parts).timeMs, made.timeMs); });
    }
}

void TestInstructionRoundTrip::outputs() {
    for (int i = 0; i < runs && !QTest::currentTestFailed(); ++i) {
        const OutputLine made{name(), number(0, 1) == 1};
        check(made.text(), OutputLine::grammar(), [&](const LineParts& parts) {
            QCOMPARE(OutputLine::of(parts).signal, made.signal);
            QCOMPARE(OutputLine::of(parts).isOn, made.isOn);
        });
    }
}

void TestInstructionRoundTrip::assignments() {
    for (int i = 0; i < runs && !QTest::currentTestFailed(); ++i) {
        const AssignLine made{name(), value()};
        check(made.text(), AssignLine::grammar(), [&](const LineParts& parts) {
            QCOMPARE(AssignLine::of(parts).variable, made.variable);
            QCOMPARE(AssignLine::of(parts).value, made.value);
        });
    }
}

// A comment has nothing behind it: all of the line is its own.
void TestInstructionRoundTrip::comments() {
    for (int i = 0; i < runs && !QTest::currentTestFailed(); ++i) {
        const CommentLine made{text(40)};
        LineParts parts;
        QVERIFY(CommentLine::grammar().read(made.text(), &parts));
        QCOMPARE(CommentLine::of(parts).comment, made.comment);
    }
}

QTEST_APPLESS_MAIN(TestInstructionRoundTrip)
#include "tst_instructions_roundtrip.moc"
