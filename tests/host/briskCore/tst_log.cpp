#include "brisk/log.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <thread>
#include <vector>

namespace {

QStringList lines;

void keepLine(QtMsgType, const QMessageLogContext&, const QString& line) {
    lines << line;
}

/// Takes what goes to the console for as long as it stands.
struct Console {
    Console() : previous(qInstallMessageHandler(keepLine)) { lines.clear(); }
    ~Console() { qInstallMessageHandler(previous); }
    QtMessageHandler previous;
};

QString today() {
    return QDate::currentDate().toString("yyyyMMdd");
}

QString content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class Log : public QObject {
    Q_OBJECT

private slots:
    void theConsoleLineStandsInItsColour();
    void theConsoleLineComesWhenTheStreamEnds();
    void valuesPrintAsTheDebugStreamPrintsThem_data();
    void valuesPrintAsTheDebugStreamPrintsThem();
    void theFileLineHasNoColourAndALineBreak();
    void theDaysFileIsAppendedTo();
    void aMissingFolderIsMade();
    void whatCannotBeWrittenIsDropped();
    void theDoubleStreamWritesBothLines();
    void linesOfManyThreadsStayWhole();
};

void Log::theConsoleLineStandsInItsColour() {
    const Console console;
    brisk::QLog("\x1b[31m", "[E|now]", "<kite>") << "no point find!";
    brisk::QLog("\x1b[36m", "", "");
    QCOMPARE(lines, (QStringList{"\x1b[31m[E|now]<kite>no point find!\x1b[0m", "\x1b[36m\x1b[0m"}));
}

void Log::theConsoleLineComesWhenTheStreamEnds() {
    const Console console;
    {
        brisk::QLog log("", "", "");
        log << "a";
        log << 1;
        QCOMPARE(lines.size(), 0);
    }
    QCOMPARE(lines, QStringList{"a1\x1b[0m"});
}

void Log::valuesPrintAsTheDebugStreamPrintsThem_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant("a b") << "a b";
    QTest::newRow("int") << QVariant(-3) << "-3";
    QTest::newRow("double") << QVariant(0.25) << "0.25";
    QTest::newRow("bool") << QVariant(true) << "true";
    QTest::newRow("JSON array") << QVariant(QJsonArray{1, "a"}) << "QJsonArray([1,\"a\"])";
    QTest::newRow("JSON value") << QVariant(QJsonValue(QJsonObject{{"a", 1}}))
                                << "QJsonValue(object, QJsonObject({\"a\":1}))";
}

void Log::valuesPrintAsTheDebugStreamPrintsThem() {
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    const Console console;
    {
        brisk::QLog log("", "", "");
        switch (int(value.userType())) {
        case QMetaType::QString:
            log << value.toString();
            break;
        case QMetaType::Int:
            log << value.toInt();
            break;
        case QMetaType::Double:
            log << value.toDouble();
            break;
        case QMetaType::Bool:
            log << value.toBool();
            break;
        case QMetaType::QJsonArray:
            log << value.toJsonArray();
            break;
        default:
            log << value.toJsonValue();
        }
    }
    QCOMPARE(lines, QStringList{text + "\x1b[0m"});
}

void Log::theFileLineHasNoColourAndALineBreak() {
    const QTemporaryDir folder;
    brisk::FLog("[I|now]", "<kite>", folder.filePath("kite"), "log") << "one" << 2;
    QCOMPARE(content(folder.filePath("kite_" + today() + ".log")), QString("[I|now]<kite>one2\n"));
}

void Log::theDaysFileIsAppendedTo() {
    const QTemporaryDir folder;
    const QString path = folder.filePath("kite");
    brisk::FLog("1", "", path, "txt") << QStringLiteral("焊");
    QCOMPARE(content(path + '_' + today() + ".txt"), QStringLiteral("1焊\n"));
    brisk::FLog("2", "", path, "txt");
    QCOMPARE(content(path + '_' + today() + ".txt"), QStringLiteral("1焊\n2\n"));
}

void Log::aMissingFolderIsMade() {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a/log/kite");
    brisk::FLog("t", "", path, "log");
    QCOMPARE(content(path + '_' + today() + ".log"), QString("t\n"));
}

void Log::whatCannotBeWrittenIsDropped() {
    const QTemporaryDir folder;
    const QString path = folder.filePath("kite");
    QVERIFY(QDir().mkpath(path + '_' + today() + ".log")); // a folder stands where the file should be
    const Console console;
    brisk::FLog("t", "", path, "log") << "lost";
    QCOMPARE(lines, QStringList());
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList());
}

void Log::theDoubleStreamWritesBothLines() {
    const QTemporaryDir folder;
    const QString path = folder.filePath("kite");
    const Console console;
    brisk::QFLog("\x1b[35m", "[S|now]", "<m>", path, "log") << "send : " << 1;
    QCOMPARE(lines, QStringList{"\x1b[35m[S|now]<m>send : 1\x1b[0m"});
    QCOMPARE(content(path + '_' + today() + ".log"), QString("[S|now]<m>send : 1\n"));
}

void Log::linesOfManyThreadsStayWhole() {
    const QTemporaryDir folder;
    const QString path = folder.filePath("kite");
    const QString text = QString("x").repeated(300);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&path, &text] {
            for (int line = 0; line < 50; ++line)
                brisk::FLog("", "", path, "log") << text;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    QCOMPARE(content(path + '_' + today() + ".log"), QString(text + '\n').repeated(200));
}

QTEST_APPLESS_MAIN(Log)
#include "tst_log.moc"
