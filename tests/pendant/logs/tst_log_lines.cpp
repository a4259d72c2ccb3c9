#include "logs/logentries.h"
#include "logs/logfilter.h"
#include "logs/logline.h"

#include <QTest>
#include <QTime>

using pendant::LogFilter;
using pendant::LogLevel;
using pendant::LogLine;

class TestLogLines : public QObject {
    Q_OBJECT

private slots:
    void aLineIsTakenApart_data();
    void aLineIsTakenApart();
    void whatDoesNotFollowTheConventionIsPlain_data();
    void whatDoesNotFollowTheConventionIsPlain();
    void aCharacterThatIsHalfWrittenIsLeftOut();
    void theYearIsTheOneNearestToTheFile_data();
    void theYearIsTheOneNearestToTheFile();
    void linesWithoutATagBelongToTheOneAbove();
    void anEntryThatNeverEndsIsCut();
    void aFilterLetsPassWhatItNames_data();
    void aFilterLetsPassWhatItNames();
};

void TestLogLines::aLineIsTakenApart_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("level");
    QTest::addColumn<QStringList>("parts");
    const auto row = [](const char* name, const char* line, LogLevel level, const QStringList& parts) {
        QTest::newRow(name) << QByteArray(line) << int(level) << parts;
    };
    const QString time("03/14 09:26:53.058");
    row("error", "[E|03/14 09:26:53.058]<kite interfacemanager>Get IO By Err Signaltype!", LogLevel::Error,
        {"E", time, "kite interfacemanager", "Get IO By Err Signaltype!"});
    row("service", "[S|03/14 09:26:53.058]<kite>x", LogLevel::Service, {"S", time, "kite", "x"});
    row("information", "[I|03/14 09:26:53.058]x", LogLevel::Information, {"I", time, "", "x"});
    row("another tag", "[DBG|03/14 09:26:53.058]<a>x", LogLevel::Other, {"DBG", time, "a", "x"});
    row("no text", "[I|03/14 09:26:53.058]", LogLevel::Information, {"I", time, "", ""});
    row("a module that does not end", "[I|03/14 09:26:53.058]<a", LogLevel::Information, {"I", time, "", "<a"});
    row("a module further on", "[I|03/14 09:26:53.058] <a>", LogLevel::Information, {"I", time, "", " <a>"});
    row("another language", "[I|03/14 09:26:53.058]<焊接>fertig für 焊", LogLevel::Information,
        {"I", time, "焊接", "fertig für 焊"});
}

void TestLogLines::aLineIsTakenApart() {
    QFETCH(QByteArray, line);
    const LogLine parsed = pendant::parseLogLine(line);
    QTEST(int(parsed.level), "level");
    QTEST((QStringList{parsed.tag, parsed.time, parsed.module, parsed.text}), "parts");
    QVERIFY(pendant::isLogHead(line.constData(), line.size()));
}

void TestLogLines::whatDoesNotFollowTheConventionIsPlain_data() {
    QTest::addColumn<QByteArray>("line");
    for (const char* line : {"", "text", "[", "[]", "[E]x", "[E|]x", "[E|03/14 09:26:53]x", "[|03/14 09:26:53.058]x",
                             "[E|03/14 09:26:53.058", " [E|03/14 09:26:53.058]x", "[E|03-14 09:26:53.058]x",
                             "[E|aa/14 09:26:53.058]x", "[ALongerTagThanAny|03/14 09:26:53.058]x"})
        QTest::newRow(line) << QByteArray(line);
}

void TestLogLines::whatDoesNotFollowTheConventionIsPlain() {
    QFETCH(QByteArray, line);
    const LogLine parsed = pendant::parseLogLine(line);
    QVERIFY(!parsed.isHead());
    QCOMPARE(parsed.text, QString::fromUtf8(line));
    QVERIFY(!pendant::isLogHead(line.constData(), line.size()));
}

void TestLogLines::aCharacterThatIsHalfWrittenIsLeftOut() {
    const QByteArray whole = QString("für 焊").toUtf8();
    QCOMPARE(pendant::parseLogLine(whole).text, QString("für 焊"));
    QCOMPARE(pendant::parseLogLine(whole.chopped(1)).text, QString("für "));
    QCOMPARE(pendant::parseLogLine(whole.chopped(2)).text, QString("für "));
    QCOMPARE(pendant::parseLogLine(whole.left(2)).text, QString("f"));
}

void TestLogLines::theYearIsTheOneNearestToTheFile_data() {
    QTest::addColumn<QString>("time");
    QTest::addColumn<QDate>("file");
    QTest::addColumn<qint64>("moment");
    QTest::newRow("same day") << "03/14 09:26:53.058" << QDate(2025, 3, 14) << Q_INT64_C(20250314092653058);
    QTest::newRow("line of the old year") << "12/31 23:59:59.999" << QDate(2025, 1, 1) << Q_INT64_C(20241231235959999);
    QTest::newRow("line of the new year")
        << "01/01 00:00:00.001" << QDate(2024, 12, 31) << Q_INT64_C(20250101000000001);
    QTest::newRow("leap day") << "02/29 12:00:00.000" << QDate(2024, 3, 1) << Q_INT64_C(20240229120000000);
    QTest::newRow("no such day") << "02/30 12:00:00.000" << QDate(2024, 3, 1) << Q_INT64_C(-1);
}

void TestLogLines::theYearIsTheOneNearestToTheFile() {
    QFETCH(QString, time);
    QFETCH(QDate, file);
    QTEST(pendant::momentOf(pendant::parseLogLine("[I|" + time.toLatin1() + "]x"), file), "moment");
    QCOMPARE(pendant::momentOf(pendant::parseLogLine("plain"), file), qint64(-1));
}

void TestLogLines::linesWithoutATagBelongToTheOneAbove() {
    const QByteArray head("[E|03/14 09:26:53.058]a\n");
    const QByteArray text = "x\ny\n" + head + "  at\n  by\n" + head + head + "half";
    QStringList parts;
    for (const pendant::LogEntry& entry : pendant::logEntries(text))
        parts << text.mid(entry.offset, entry.length);
    QCOMPARE(parts, QStringList({"x\n", "y\n", head + "  at\n  by\n", head, head + "half"}));
}

void TestLogLines::anEntryThatNeverEndsIsCut() {
    QByteArray text("[E|03/14 09:26:53.058]a\n");
    const QByteArray line(99, 'x');
    for (int i = 0; i < 1000; ++i)
        text += line + '\n';
    const QVector<pendant::LogEntry> entries = pendant::logEntries(text);
    QVERIFY(entries.first().length >= pendant::longestLogEntry);
    QVERIFY(entries.first().length <= pendant::longestLogEntry + 100);
    QCOMPARE(entries.at(1).length, 100);
    int covered = 0;
    for (const pendant::LogEntry& entry : entries)
        covered += entry.length;
    QCOMPARE(covered, text.size());
}

void TestLogLines::aFilterLetsPassWhatItNames_data() {
    QTest::addColumn<int>("levels");
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<bool>("passes");
    const QByteArray error("[E|03/14 09:26:53.058]<weld>Arc LOST\n  at Seam ÄÖ\n");
    const QByteArray plain("weld plain\n");
    const int all = LogFilter::AllLevels;
    QTest::newRow("everything") << all << ""
                                << "" << error << true;
    QTest::newRow("its level") << int(LogFilter::Error) << ""
                               << "" << error << true;
    QTest::newRow("another level") << int(all & ~LogFilter::Error) << ""
                                   << "" << error << false;
    QTest::newRow("part of its module") << all << "WEL"
                                        << "" << error << true;
    QTest::newRow("another module") << all << "feed"
                                    << "" << error << false;
    QTest::newRow("text in another case") << all << ""
                                          << "arc lost" << error << true;
    QTest::newRow("text of a line that belongs to it") << all << ""
                                                       << "seam äö" << error << true;
    QTest::newRow("text that is not there") << all << ""
                                            << "seams" << error << false;
    QTest::newRow("level and text") << int(LogFilter::Error) << "weld"
                                    << "seam" << error << true;
    QTest::newRow("plain among others") << int(LogFilter::Other) << ""
                                        << "" << plain << true;
    QTest::newRow("plain among errors") << int(LogFilter::Error) << ""
                                        << "" << plain << false;
    QTest::newRow("plain has no module") << all << "weld"
                                         << "" << plain << false;
    QTest::newRow("text across lines") << all << ""
                                       << "lost at" << error << false;
}

void TestLogLines::aFilterLetsPassWhatItNames() {
    QFETCH(int, levels);
    QFETCH(QString, module);
    QFETCH(QString, text);
    QFETCH(QByteArray, entry);
    LogFilter filter;
    filter.levels = levels;
    filter.module = module;
    filter.text = text;
    QTEST(pendant::LogMatcher(filter).matches(entry), "passes");
}

QTEST_GUILESS_MAIN(TestLogLines)
#include "tst_log_lines.moc"
