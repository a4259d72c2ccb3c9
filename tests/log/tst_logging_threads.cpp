#include "clock.h"
#include "logfolder.h"

#include "kite/log.h"
#include "kite/logtime.h"

#include <QHash>
#include <QTest>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

using kite::FLog;

namespace {

const int threadCount = 8;
const int lineCount = 10000;

void inThreads(const std::function<void(int thread)>& work) {
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back(work, i);
    for (std::thread& thread : threads)
        thread.join();
}

// "3 17 xxxx": thread, number, and a filling that both determine.
QString lineOf(int thread, int number, int filling) {
    const QChar letter(QLatin1Char(static_cast<char>('a' + (thread * 7 + number) % 26)));
    return QString::number(thread) + ' ' + QString::number(number) + ' ' + QString(filling, letter);
}

} // namespace

// Lines of many threads. They read no clock of their own making: the day stands still.
class TestThreads : public QObject {
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<LogFolder>(); }
    void cleanup() { m_folder.reset(); }

    void linesToOneFileAreAllThereAndWholeThroughARotation() {
        const QString path = m_folder->path("one");
        inThreads([&path](int thread) {
            for (int i = 0; i < lineCount; ++i)
                FLog("", "", path, "log") << lineOf(thread, i, 150);
        });
        QVERIFY(m_folder->names().size() >= 2);
        checkLines(lineCount, 150);
    }

    void linesToSeveralFilesAreAllThereAndWhole() {
        const QString path = m_folder->path("several");
        inThreads([&path](int thread) {
            for (int i = 0; i < lineCount; ++i)
                FLog("", "", path + QString::number((thread + i) % 4), "log") << lineOf(thread, i, 20);
        });
        QVERIFY(m_folder->names().size() >= 4);
        checkLines(lineCount, 20);
    }

    void linesOfSixteenKibibytesAreWhole() {
        const QString path = m_folder->path("long");
        const int lines = 200;
        // With thread, number and line break less than 16,384 characters.
        inThreads([&path](int thread) {
            for (int i = 0; i < lines; ++i)
                FLog("", "", path, "log") << lineOf(thread, i, 16300) << "";
        });
        checkLines(lines, 16300);
    }

    void aLineInPiecesOfLanguageIsWhole() {
        const QString path = m_folder->path("pieces");
        inThreads([&path](int) {
            for (int i = 0; i < 500; ++i) {
                FLog log("t", "m", path, "log");
                for (int piece = 0; piece < 20; ++piece)
                    log << QStringLiteral("焊") << piece << ' ';
            }
        });
        const QList<QByteArray> lines = m_folder->lines();
        QCOMPARE(lines.size(), threadCount * 500);
        for (const QByteArray& line : lines)
            QCOMPARE(line, lines.first());
    }

    // The folder is removed again and again. Lines get lost with it, and none after that.
    void aFolderThatIsRemovedMeanwhileIsMadeAgain() {
        const QString below = m_folder->path("below");
        const QString path = below + "/kite";
        inThreads([&](int thread) {
            for (int i = 0; i < 200; ++i) {
                if (thread == 0)
                    QDir(below).removeRecursively();
                FLog("", "", path, "log") << "line";
            }
        });
        QDir(below).removeRecursively();
        FLog("", "", path, "log") << "line";
        QCOMPARE(m_folder->content("below/" + m_folder->names("below").value(0)), QByteArray("line\n"));
    }

    void theTimeIsEachThreadsOwn() {
        inThreads([](int thread) {
            const qint64 moment = QDateTime(QDate(2025, 3, 1 + thread), QTime(12, 0)).toMSecsSinceEpoch();
            const QString wanted = QString("03/0%1 12:00:00.000").arg(1 + thread);
            for (int i = 0; i < 2000; ++i) {
                if (kite::logTime(moment) != wanted)
                    qFatal("Another thread's time.");
            }
        });
    }

private:
    void checkLines(int perThread, int filling) {
        const QList<QByteArray> lines = m_folder->lines();
        QCOMPARE(lines.size(), threadCount * perThread);
        QVector<QVector<bool>> seen(threadCount, QVector<bool>(perThread));
        for (const QByteArray& line : lines) {
            const QList<QByteArray> parts = line.split(' ');
            const int thread = parts.value(0).toInt();
            const int number = parts.value(1).toInt();
            QVERIFY2(thread >= 0 && thread < threadCount && number >= 0 && number < perThread, line.constData());
            QVERIFY2(QString::fromLatin1(line) == lineOf(thread, number, filling), line.constData());
            QVERIFY2(!seen[thread][number], line.constData());
            seen[thread][number] = true;
        }
    }

    Clock m_clock{noon(2025, 3, 14)};
    std::unique_ptr<LogFolder> m_folder;
};

QTEST_APPLESS_MAIN(TestThreads)
#include "tst_logging_threads.moc"
