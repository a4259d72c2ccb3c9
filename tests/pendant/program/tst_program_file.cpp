#include "program/programfile.h"
#include "programtexts.h"

#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include <QDir>
#include <QFile>

#include <memory>
#include <random>

using pendant::ProgramFile;

// A program on its way to the disk and back.
class TestProgramFile : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log.reset(new pendanttest::LogWatch);
        m_folder.reset(new pendanttest::WorkingFolder);
    }
    void cleanup() {
        m_folder.reset();
        m_log.reset();
    }

    void aFileIsReadLineByLine_data();
    void aFileIsReadLineByLine();
    void whatIsWrittenIsOneLineEach_data();
    void whatIsWrittenIsOneLineEach();
    void anyLineComesBackAsItWas_data() { addOddLines(); }
    void anyLineComesBackAsItWas();
    void allOddLinesComeBackTogether();
    void tenThousandLinesComeBack();
    void whatIsNoUtf8IsRefused_data();
    void whatIsNoUtf8IsRefused();
    void anyBytesAreReadWithoutLossOrRefused_data();
    void anyBytesAreReadWithoutLossOrRefused();
    void aLineThatNoProgramTakesIsRefusedWithItsNumber();
    void aFileOfTheGreatestSizeIsReadAndALongerOneIsNot();
    void whatCouldNotBeReadAgainIsNotWritten();
    void whatIsNotThereOrNoFileIsRefused();

private:
    static void write(const QByteArray& bytes) {
        QFile file("main.txt");
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    static QByteArray written() {
        QFile file("main.txt");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }
    static void roundTrip(const QStringList& lines) {
        QString error;
        QStringList read;
        QVERIFY2(ProgramFile::save("main.txt", lines, &error), qPrintable(error));
        QVERIFY2(ProgramFile::load("main.txt", &read, &error), qPrintable(error));
        QCOMPARE(read, lines);
    }
    /// The reason why "main.txt" is not read; empty when it is.
    static QString refusal() {
        QStringList lines{"as it was"};
        QString error;
        if (ProgramFile::load("main.txt", &lines, &error))
            return QString();
        return lines == QStringList{"as it was"} ? error : "the lines were changed";
    }

    std::unique_ptr<pendanttest::LogWatch> m_log;
    std::unique_ptr<pendanttest::WorkingFolder> m_folder;
};

void TestProgramFile::aFileIsReadLineByLine_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char* name, const QByteArray& bytes, const QStringList& lines) {
        QTest::newRow(name) << bytes << lines;
    };
    row("empty", "", {});
    row("one empty line", "\n", {""});
    row("two empty lines", "\n\n", {"", ""});
    row("lines", "a\nb\n", {"a", "b"});
    row("no last line feed", "a\nb", {"a", "b"});
    row("carriage returns", "a\r\nb\r\n", {"a", "b"});
    row("carriage returns, no last line feed", "a\r\nb", {"a", "b"});
    row("carriage return at the very end", "a\r\nb\r", {"a", "b"});
    row("an empty line with a carriage return", "\r\n", {""});
    row("mixed", "a\r\n\nb\n \n", {"a", "", "b", " "});
    row("byte order mark",
        "\xef\xbb\xbf"
        "a\n",
        {"a"});
    row("nothing but a byte order mark", "\xef\xbb\xbf", {});
    row("two byte order marks",
        "\xef\xbb\xbf\xef\xbb\xbf"
        "a",
        {QString(QChar(QChar::ByteOrderMark)) + "a"});
    row("UTF-8", "\xe7\xa7\xbb\xe5\x8a\xa8\n\xf0\x9f\x98\x80\n", {QString::fromUtf8("移动"), QString::fromUtf8("😀")});
}

void TestProgramFile::aFileIsReadLineByLine() {
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    write(bytes);
    QStringList read{"before"};
    QString error("untouched");
    QVERIFY(ProgramFile::load("main.txt", &read, &error));
    QCOMPARE(read, lines);
    QCOMPARE(error, QString("untouched"));
    QCOMPARE(written(), bytes);
}

void TestProgramFile::whatIsWrittenIsOneLineEach_data() {
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("none") << QStringList() << QByteArray("");
    QTest::newRow("one empty") << QStringList{""} << QByteArray("\n");
    QTest::newRow("some") << QStringList{"a", "", " b"} << QByteArray("a\n\n b\n");
    QTest::newRow("Chinese") << QStringList{QString::fromUtf8("移")} << QByteArray("\xe7\xa7\xbb\n");
}

void TestProgramFile::whatIsWrittenIsOneLineEach() {
    QFETCH(QStringList, lines);
    QFETCH(QByteArray, bytes);
    QString error("untouched");
    QVERIFY(ProgramFile::save("main.txt", lines, &error));
    QCOMPARE(written(), bytes);
    QCOMPARE(error, QString("untouched"));
    roundTrip(lines);
}

void TestProgramFile::anyLineComesBackAsItWas() {
    QFETCH(QString, line);
    roundTrip({line});
    roundTrip({line, "a", line, line});
}

void TestProgramFile::allOddLinesComeBackTogether() {
    QStringList lines;
    for (const auto& odd : oddLines())
        lines << odd.second;
    roundTrip(lines);
}

void TestProgramFile::tenThousandLinesComeBack() {
    roundTrip(numberedLines(10000));
}

void TestProgramFile::whatIsNoUtf8IsRefused_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("Latin-1") << QByteArray("Gr\xf6\xdf"
                                           "e\n");
    QTest::newRow("cut at the end") << QByteArray("a\xe7\xa7");
    QTest::newRow("cut at a line feed") << QByteArray("a\xe7\xa7\nb\n");
    QTest::newRow("follower alone") << QByteArray("a\x80\n");
    QTest::newRow("too long a form") << QByteArray("\xc0\xaf\n");
    QTest::newRow("surrogate") << QByteArray("\xed\xa0\xbd\n");
    QTest::newRow("beyond the last plane") << QByteArray("\xf4\x90\x80\x80\n");
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe"
                                          "a\0\n\0",
                                          6);
    QTest::newRow("behind a byte order mark") << QByteArray("\xef\xbb\xbf\xff\n");
}

void TestProgramFile::whatIsNoUtf8IsRefused() {
    QFETCH(QByteArray, bytes);
    write(bytes);
    QCOMPARE(refusal(), QString("The program main.txt was not opened: it is no text in UTF-8."));
    QCOMPARE(written(), bytes);
}

void TestProgramFile::anyBytesAreReadWithoutLossOrRefused_data() {
    QTest::addColumn<uint>("seed");
    for (uint seed = 1; seed <= 4; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestProgramFile::anyBytesAreReadWithoutLossOrRefused() {
    QFETCH(uint, seed);
    std::mt19937 random(seed);
    const QVector<QByteArray> pieces{
        "a",  "\n",   " ",    "\r\n", "\xc3\xb6", "\xe7\xa7\xbb", "\xf0\x9f\x98\x80", "//", "\xef\xbb\xbf",
        "\"", "\xc3", "\xa7", "\r"};
    int readings = 0;
    for (int round = 0; round < 100; ++round) {
        QByteArray bytes;
        for (auto count = random() % 8; count > 0; --count)
            bytes += pieces.at(int(random() % uint(pieces.size())));
        write(bytes);
        QStringList lines;
        QString error;
        if (!ProgramFile::load("main.txt", &lines, &error))
            continue;
        ++readings;
        QVERIFY2(ProgramFile::save("main.txt", lines, &error), qPrintable(error));
        QByteArray expected =
            bytes.startsWith("\xef\xbb\xbf") && !lines.value(0).startsWith(QChar(QChar::ByteOrderMark)) ? bytes.mid(3)
                                                                                                        : bytes;
        expected.replace("\r\n", "\n");
        if (expected.endsWith('\r'))
            expected.replace(expected.size() - 1, 1, "\n");
        if (!lines.isEmpty() && !expected.endsWith('\n'))
            expected += '\n';
        QCOMPARE(written(), expected);
    }
    QVERIFY2(readings > 20, qPrintable(QString::number(readings)));
}

void TestProgramFile::aLineThatNoProgramTakesIsRefusedWithItsNumber() {
    write("a\nb\rc\n");
    QCOMPARE(refusal(),
             QString("The program main.txt was not opened: line 2: A line break cannot stand within a program "
                     "line."));
    write(QByteArray("a\0b", 3));
    QCOMPARE(refusal(),
             QString("The program main.txt was not opened: line 1: A null character cannot stand in a program "
                     "line."));
    write("a\n\n\xe2\x80\xa8\n");
    QVERIFY(refusal().contains("line 3: A line break"));
    write("a\r\r\n");
    QVERIFY(refusal().contains("line 1: A line break"));
}

void TestProgramFile::aFileOfTheGreatestSizeIsReadAndALongerOneIsNot() {
    const int size = int(ProgramFile::maxSize);
    write(QByteArray(size - 1, 'a') + '\n');
    QCOMPARE(refusal(), QString());
    QFile file("main.txt");
    QVERIFY(file.resize(size + 1));
    QCOMPARE(refusal(), QString("The program main.txt was not opened: it is longer than 32 MiB."));
    QCOMPARE(file.size(), qint64(size + 1));
}

void TestProgramFile::whatCouldNotBeReadAgainIsNotWritten() {
    QString error;
    const int size = int(ProgramFile::maxSize);
    QVERIFY(ProgramFile::save("main.txt", {"before"}, &error));
    QVERIFY(!ProgramFile::save("main.txt", {QString(size, 'a')}, &error));
    QCOMPARE(error, QString("The program was not written to main.txt: it is longer than 32 MiB."));
    QCOMPARE(written(), QByteArray("before\n"));
    QVERIFY(ProgramFile::save("main.txt", {QString(size - 1, 'a')}, &error));
    QCOMPARE(refusal(), QString());
}

void TestProgramFile::whatIsNotThereOrNoFileIsRefused() {
    QCOMPARE(refusal(), QString("The program main.txt was not opened: No such file or directory"));
    QVERIFY(QDir().mkdir("main.txt"));
    QCOMPARE(refusal(), QString("The program main.txt was not opened: it is no file."));
}

QTEST_GUILESS_MAIN(TestProgramFile)
#include "tst_program_file.moc"
