#include "clock.h"
#include "logfolder.h"

#include "kite/log.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <memory>

namespace {

const int lineCount = 5000;
const QString first = "kite_20250314.log";
const int full = 10485760;
const int almostFull = full - 1000000; // a quarter of what both write

// "1 17 xxxx": process, number, and a filling that both determine.
QByteArray lineOf(int process, int number) {
    const int filling = number % 50 == 0 ? 16000 : 100;
    return QByteArray::number(process) + ' ' + QByteArray::number(number) + ' ' +
           QByteArray(filling, static_cast<char>('a' + (process * 7 + number) % 26));
}

void write(int process, const QString& path) {
    const Clock clock(noon(2025, 3, 14));
    for (int i = 0; i < lineCount; ++i)
        kite::FLog("", "", path, "log") << lineOf(process, i);
}

QList<QByteArray> linesOf(const QByteArray& content) {
    QList<QByteArray> lines = content.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

// Two pendants in one folder: this program is both of them.
class TestProcesses : public QObject {
    Q_OBJECT

private slots:
    void linesOfTwoProcessesAreAllThereAndWhole() {
        const LogFolder folder;
        writeInTwoProcesses(folder);
        QCOMPARE(folder.names(), QStringList(first));
        check(folder.lines());
    }

    void linesOfTwoProcessesAreAllThereThroughARotation() {
        const LogFolder folder;
        QVERIFY(folder.make(first, almostFull));
        writeInTwoProcesses(folder);
        QCOMPARE(folder.names(), QStringList({first, "kite_20250314_1.log"}));
        QVERIFY(QFileInfo(folder.path(first)).size() >= full);
        check(linesOf(folder.content(first).mid(almostFull)) + linesOf(folder.content("kite_20250314_1.log")));
    }

private:
    static void writeInTwoProcesses(const LogFolder& folder) {
        QProcess processes[2];
        for (int i = 0; i < 2; ++i) {
            processes[i].setProcessChannelMode(QProcess::ForwardedChannels);
            processes[i].start(QCoreApplication::applicationFilePath(),
                               {"write", QString::number(i), folder.path("kite")});
        }
        for (QProcess& process : processes) {
            QVERIFY(process.waitForFinished(60000));
            QCOMPARE(process.exitCode(), 0);
        }
    }

    static void check(const QList<QByteArray>& lines) {
        QCOMPARE(lines.size(), 2 * lineCount);
        QVector<QVector<bool>> seen(2, QVector<bool>(lineCount));
        for (const QByteArray& line : lines) {
            const QList<QByteArray> parts = line.split(' ');
            const int process = parts.value(0).toInt();
            const int number = parts.value(1).toInt();
            QVERIFY(process >= 0 && process < 2 && number >= 0 && number < lineCount);
            QVERIFY2(line == lineOf(process, number), line.left(200).constData());
            QVERIFY2(!seen[process][number], line.left(200).constData());
            seen[process][number] = true;
        }
    }
};

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "write") {
        write(arguments.value(2).toInt(), arguments.value(3));
        return 0;
    }
    TestProcesses test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logging_processes.moc"
