#include "logfixture.h"
#include "logs/logseek.h"

#include <QDate>
#include <QTime>

using pendant::LogPlace;
using pendant::LogText;

class TestLogSeek : public QObject {
    Q_OBJECT

private slots:
    void theFirstLineFromATimeOnIsFound_data();
    void theFirstLineFromATimeOnIsFound();
    void everyLineOfALongLogIsFoundByItsTime();
    void linesWithoutATimeAreNoHindrance();
    void aLogWithoutTimesHasNone();
    void ofALongLogLittleIsRead();

private:
    static QByteArray at(const QDateTime& time) {
        return "[I|" + time.toString("MM/dd HH:mm:ss.zzz").toLatin1() + "]" + time.toString("dd HH:mm:ss").toLatin1() +
               '\n';
    }
    static pendant::LogMoment moment(const QDateTime& time) { return pendant::logMoment(time.date(), time.time()); }
};

void TestLogSeek::theFirstLineFromATimeOnIsFound_data() {
    QTest::addColumn<QDateTime>("wanted");
    QTest::addColumn<QByteArray>("found");
    const auto day = [](int d, int h, int m) { return QDateTime(QDate(2025, 3, d), QTime(h, m)); };
    QTest::newRow("before all") << QDateTime(QDate(2024, 1, 1), QTime(0, 0)) << QByteArray("12 09:00:00");
    QTest::newRow("exactly") << day(12, 9, 1) << QByteArray("12 09:01:00");
    QTest::newRow("between lines") << day(12, 9, 1).addSecs(1) << QByteArray("12 09:02:00");
    QTest::newRow("between files") << day(12, 23, 0) << QByteArray("14 09:00:00");
    QTest::newRow("in the last") << day(14, 9, 3) << QByteArray("14 09:03:00");
    QTest::newRow("after all") << day(14, 9, 5) << QByteArray();
}

void TestLogSeek::theFirstLineFromATimeOnIsFound() {
    QFETCH(QDateTime, wanted);
    const LogFixture logs;
    for (const int day : {12, 14}) {
        QByteArray lines;
        for (int minute = 0; minute < 5; ++minute)
            lines += at(QDateTime(QDate(2025, 3, day), QTime(9, minute)));
        logs.write(QString("kite_202503%1.log").arg(day), lines);
    }
    LogText text;
    text.setFiles(logs.files());
    const LogPlace place = pendant::seekLogMoment(text, moment(wanted));
    QTEST(text.row(place).mid(22), "found");
    QCOMPARE(place == text.end(), text.row(place).isEmpty());
}

void TestLogSeek::everyLineOfALongLogIsFoundByItsTime() {
    const LogFixture logs;
    const QDateTime start(QDate(2025, 3, 14), QTime(9, 0));
    QByteArray lines;
    for (int i = 0; i < 5000; ++i)
        lines += at(start.addSecs(i));
    logs.write("kite_20250314.log", lines.left(lines.size() / 30 * 10));
    logs.write("kite_20250314_1.log", lines.mid(lines.size() / 30 * 10));
    LogText text;
    text.setFiles(logs.files());
    for (int i = 0; i < 5000; i += 7) {
        const QDateTime time = start.addSecs(i);
        QCOMPARE(text.row(pendant::seekLogMoment(text, moment(time))).right(8), time.toString("HH:mm:ss").toLatin1());
    }
}

void TestLogSeek::linesWithoutATimeAreNoHindrance() {
    const LogFixture logs;
    const QDateTime start(QDate(2025, 3, 14), QTime(9, 0));
    const QByteArray noise = QByteArray("no time here\n").repeated(2000);
    logs.write("kite_20250314.log", noise + at(start) + noise + at(start.addSecs(60)) + noise);
    LogText text;
    text.setFiles(logs.files());
    QCOMPARE(text.row(pendant::seekLogMoment(text, moment(start))).right(8), QByteArray("09:00:00"));
    QCOMPARE(text.row(pendant::seekLogMoment(text, moment(start.addSecs(1)))).right(8), QByteArray("09:01:00"));
    QVERIFY(pendant::seekLogMoment(text, moment(start.addSecs(61))) == text.end());
}

void TestLogSeek::aLogWithoutTimesHasNone() {
    const LogFixture logs;
    LogText text;
    const pendant::LogMoment some = moment(QDateTime(QDate(2025, 3, 14), QTime(9, 0)));
    QVERIFY(pendant::seekLogMoment(text, some) == text.end());
    logs.write("boot.log", QByteArray("no time here\n").repeated(100000));
    text.setFiles(logs.files());
    QVERIFY(pendant::seekLogMoment(text, some) == text.end());
}

void TestLogSeek::ofALongLogLittleIsRead() {
    const LogFixture logs;
    const QDateTime start(QDate(2025, 3, 14), QTime(0, 0));
    QByteArray lines;
    for (int i = 0; i < 80000; ++i)
        lines += at(start.addSecs(i)).chopped(1) + QByteArray(80, ' ') + '\n';
    logs.write("kite_20250314.log", lines);
    LogText text;
    text.setFiles(logs.files());
    const qint64 before = bytesRead();
    const LogPlace place = pendant::seekLogMoment(text, moment(start.addSecs(54321)));
    QVERIFY(text.row(place).contains(start.addSecs(54321).toString("HH:mm:ss.zzz").toLatin1()));
    QVERIFY(text.size() > 8 * 1048576);
    QVERIFY(bytesRead() - before < 3 * 1048576);
}

QTEST_GUILESS_MAIN(TestLogSeek)
#include "tst_log_seek.moc"
