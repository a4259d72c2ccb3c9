#include "logs/consolecolours.h"

#include <QProcess>
#include <QTest>

#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace {

const QByteArray coloured("\x1b[31m[E|03/14 09:26:53.058]<weld>Arc lost\x1b[0m");
const QByteArray plain("[E|03/14 09:26:53.058]<weld>Arc lost");

void start(QProcess* process, const QStringList& arguments, const QStringList& environment) {
    QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
    all.remove("QT_MESSAGE_PATTERN");
    all.remove("QT_FATAL_WARNINGS");
    for (const QString& entry : environment)
        all.insert(entry.section('=', 0, 0), entry.section('=', 1));
    process->setProcessEnvironment(all);
    process->start(SPEAKER, arguments);
}

struct Outcome {
    QByteArray text;
    bool crashed = false;
};

Outcome throughAPipe(const QStringList& arguments, const QStringList& environment = {}) {
    QProcess process;
    start(&process, arguments, environment);
    process.waitForFinished();
    return {process.readAllStandardError(), process.exitStatus() == QProcess::CrashExit};
}

// What is there to be read; a terminal holds it until somebody does.
QByteArray drain(int terminal) {
    QByteArray text;
    char buffer[4096];
    pollfd ready = {terminal, POLLIN, 0};
    while (::poll(&ready, 1, 0) > 0 && (ready.revents & POLLIN)) {
        const ssize_t got = ::read(terminal, buffer, sizeof buffer);
        if (got <= 0)
            break;
        text.append(buffer, static_cast<int>(got));
    }
    return text;
}

QByteArray onATerminal(const QStringList& arguments) {
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal < 0 || ::grantpt(terminal) != 0 || ::unlockpt(terminal) != 0)
        return "no terminal";
    const QString name = QFile::decodeName(::ptsname(terminal));
    // Kept open, so that what was written does not go when the process ends.
    const int other = ::open(QFile::encodeName(name).constData(), O_RDWR | O_NOCTTY);
    QProcess process;
    process.setStandardErrorFile(name);
    start(&process, arguments, {});
    process.waitForFinished();
    const QByteArray text = drain(terminal);
    ::close(other);
    ::close(terminal);
    return text;
}

} // namespace

class TestConsoleColours : public QObject {
    Q_OBJECT

private slots:
    void onlyColoursAreTakenOut_data();
    void onlyColoursAreTakenOut();
    void aPipeGetsNoColours();
    void aTerminalGetsThem();
    void thePatternIsTheUsersOwn();
    void whatIsFatalStaysFatal();
    void whoMakesWarningsFatalGetsThat();
    void fromManyThreadsEveryLineComesWhole();
};

void TestConsoleColours::onlyColoursAreTakenOut_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("without");
    QTest::newRow("none") << "text"
                          << "text";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("a line") << QString(coloured) << QString(plain);
    QTest::newRow("several numbers") << "\x1b[1;31mx\x1b[m"
                                     << "x";
    QTest::newRow("one after the other") << "\x1b[1m\x1b[31mx"
                                         << "x";
    QTest::newRow("another sequence") << "\x1b[2Jx"
                                      << "\x1b[2Jx";
    QTest::newRow("cut off") << "x\x1b[31"
                             << "x\x1b[31";
    QTest::newRow("cut off sooner") << "x\x1b["
                                    << "x\x1b[";
    QTest::newRow("escape alone") << "x\x1b"
                                  << "x\x1b";
    QTest::newRow("no escape") << "[31mx"
                               << "[31mx";
}

void TestConsoleColours::onlyColoursAreTakenOut() {
    QFETCH(QString, text);
    QTEST(pendant::withoutColours(text), "without");
}

void TestConsoleColours::aPipeGetsNoColours() {
    const Outcome outcome = throughAPipe({coloured, "next"});
    QCOMPARE(outcome.text, plain + "\nnext\n");
    QVERIFY(!outcome.crashed);
}

void TestConsoleColours::aTerminalGetsThem() {
    QCOMPARE(onATerminal({coloured}).trimmed(), coloured);
}

void TestConsoleColours::thePatternIsTheUsersOwn() {
    const Outcome outcome = throughAPipe({coloured}, {"QT_MESSAGE_PATTERN=\x1b[1m%{type}\x1b[0m %{message}"});
    QCOMPARE(outcome.text, "\x1b[1mdebug\x1b[0m " + plain + '\n');
}

void TestConsoleColours::whatIsFatalStaysFatal() {
    const Outcome outcome = throughAPipe({"--fatal", "never said"});
    QVERIFY(outcome.crashed);
    QCOMPARE(outcome.text, QByteArray("the end\n"));
}

void TestConsoleColours::whoMakesWarningsFatalGetsThat() {
    const Outcome outcome = throughAPipe({"--warning"}, {"QT_FATAL_WARNINGS=1"});
    QVERIFY(outcome.crashed);
    QCOMPARE(outcome.text, QByteArray("careful\n"));
}

void TestConsoleColours::fromManyThreadsEveryLineComesWhole() {
    QList<QByteArray> lines = throughAPipe({"--threads"}).text.split('\n');
    QVERIFY(lines.takeLast().isEmpty());
    QCOMPARE(lines.size(), 8 * 500);
    for (int i = 0; i < 500; ++i)
        QCOMPARE(lines.count("red " + QByteArray::number(i)), 8);
}

QTEST_GUILESS_MAIN(TestConsoleColours)
#include "tst_console_colours.moc"
