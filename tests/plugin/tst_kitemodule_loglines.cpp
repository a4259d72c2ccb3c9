#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "kite/kitemodule.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>

#include <memory>

using kite::Kite;

namespace {

// The colour and the tag of a level, and how its line looks on the console and in the file.
const char error[] = "31";
const char service[] = "35";
const char information[] = "36";
char letterOf(const char* colour) {
    return colour == error ? 'E' : colour == service ? 'S' : 'I';
}

QRegularExpression tagged(const QString& before, const char* colour, const QString& after) {
    return QRegularExpression(QStringLiteral("\\A%1\\[%2\\|(\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d)\\]%3\\z")
                                  .arg(QRegularExpression::escape(before))
                                  .arg(QLatin1Char(letterOf(colour)))
                                  .arg(QRegularExpression::escape(after)));
}

} // namespace

// What the library itself writes, letter by letter.
class TestLogLines : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder.reset(new pendanttest::WorkingFolder);
        m_log.reset(new pendanttest::LogWatch);
        m_frame.reset(new pendanttest::Frame);
        m_module.reset(new Kite("weld", nullptr));
    }

    void cleanup() {
        m_module.reset();
        m_frame.reset();
        pendanttest::resetHost();
        m_log.reset();
        m_folder.reset();
    }

    void aLineHasTheFormOfItsLevel_data() {
        QTest::addColumn<QString>("colour");
        QTest::addColumn<QString>("text");
        QTest::newRow("service") << service << "<kite>Current Model Count : 1";
        QTest::newRow("information") << information << "<kite>kite::Kite::cancelPage";
        QTest::newRow("error") << error << "<kite>~Kite begin";
    }

    void aLineHasTheFormOfItsLevel() {
        QFETCH(QString, colour);
        QFETCH(QString, text);
        const QByteArray name = colour.toLatin1();
        const char* level = name == error ? error : name == service ? service : information;
        write(level);
        const QString console = m_log->lines().value(0);
        const auto onConsole = tagged("\x1b[" + colour + "m", level, text + "\x1b[0m").match(console);
        QVERIFY2(onConsole.hasMatch(), qPrintable(console));
        const QString file = m_folder->logLines().value(0);
        const auto inFile = tagged(QString(), level, text).match(file);
        QVERIFY2(inFile.hasMatch(), qPrintable(file));
        QCOMPARE(inFile.captured(1), onConsole.captured(1));
    }

    void theTagTellsTheLocalTime() {
        const QDateTime before = QDateTime::currentDateTime();
        write(service);
        const QString stamp = tagged("\x1b[35m", service, "<kite>Current Model Count : 1\x1b[0m")
                                  .match(m_log->lines().value(0))
                                  .captured(1);
        QDateTime time = QDateTime::fromString(stamp, "MM/dd hh:mm:ss.zzz");
        time.setDate(QDate(before.date().year(), time.date().month(), time.date().day()));
        QVERIFY2(time >= before.addMSecs(-1) && time <= QDateTime::currentDateTime(), qPrintable(stamp));
    }

    void millisecondsHaveThreeDigitsAlsoEarlyInTheSecond() {
        while (QTime::currentTime().msec() >= 50)
            QTest::qSleep(5);
        write(service);
        const QString line = m_log->lines().value(0);
        QVERIFY2(tagged("\x1b[35m", service, "<kite>Current Model Count : 1\x1b[0m").match(line).hasMatch(),
                 qPrintable(line));
    }

    void theFileIsTheOneOfTheDay() {
        const QString before = today();
        write(service);
        const QStringList names = QDir("log").entryList(QDir::Files);
        QCOMPARE(names.size(), 1);
        QVERIFY2(names.first() == before || names.first() == today(), qPrintable(names.first()));
    }

    void everyLineEndsInANewline() {
        write(service);
        write(information);
        QFile file("log/" + QDir("log").entryList(QDir::Files).value(0));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(text.endsWith('\n'));
        QCOMPARE(text.count('\n'), m_log->lines().size());
    }

    void consoleAndFileHaveTheSameLines() {
        m_module->setup();
        m_module->init();
        m_module->createCenterWidgte(new QWidget);
        m_log->expect("Change Failed!");
        m_module->changeFullScreen(false);
        m_module->changeModelWindowStatus(true);
        m_module.reset();
        QStringList console;
        for (QString line : m_log->lines())
            console.append(line.remove(QRegularExpression("\x1b\\[\\d+m")));
        QCOMPARE(console.size(), 7);
        QCOMPARE(m_folder->logLines(), console);
    }

    void theRefusedSwitchIsAnErrorLine() {
        m_module->setup();
        m_module->createCenterWidgte(new QWidget);
        m_log->expect("Change Failed!");
        QVERIFY(!m_module->changeFullScreen(false));
        const QString line = m_log->lines().value(0);
        QVERIFY2(line.startsWith("\x1b[31m[E|"), qPrintable(line));
        QVERIFY2(line.endsWith("<kite>Current FullWidget Type isfalse! Change Failed!\x1b[0m"), qPrintable(line));
    }

private:
    void write(const char* level) {
        if (level == service)
            m_module->changeModelWindowStatus(true);
        else if (level == information)
            m_module->cancelPage(QString(), QString());
        else
            m_module.reset();
    }

    static QString today() { return QDate::currentDate().toString("'kite_'yyyyMMdd'.log'"); }

    QScopedPointer<pendanttest::WorkingFolder> m_folder;
    QScopedPointer<pendanttest::LogWatch> m_log;
    QScopedPointer<pendanttest::Frame> m_frame;
    std::unique_ptr<Kite> m_module;
};

QTEST_MAIN(TestLogLines)
#include "tst_kitemodule_loglines.moc"
