#include "clock.h"
#include "logfolder.h"

#include "kite/logline.h"
#include "pendanttest/logwatch.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

// A plugin's line in one expression.
class TestLines : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_before = QDir::currentPath();
        m_folder = std::make_unique<LogFolder>();
        QVERIFY(QDir::setCurrent(m_folder->root()));
        m_watch = std::make_unique<pendanttest::LogWatch>();
    }
    void cleanup() {
        m_watch.reset();
        QVERIFY(QDir::setCurrent(m_before));
        m_folder.reset();
        m_clock.run();
    }

    void anErrorIsRed() {
        m_watch->expect("No wire");
        kite::ErrorLine("<weld>") << "No wire for " << 3 << " s";
        check("31", "E", "<weld>No wire for 3 s");
    }

    void serviceIsMagenta() {
        kite::ServiceLine("<weld>") << "sent";
        check("35", "S", "<weld>sent");
    }

    void informationIsCyan() {
        kite::InformationLine("<weld>") << "ready";
        check("36", "I", "<weld>ready");
    }

    void theModuleMayBeMissing() {
        kite::InformationLine(QString()) << "ready";
        check("36", "I", "ready");
    }

    void blanksCanBeAskedFor() {
        kite::InformationLine("<weld>").space() << "a" << 1;
        check("36", "I", "<weld>a 1 ");
    }

    void aLogOfItsOwnHasAFileOfItsOwn() {
        kite::InformationLine("<weld>", "weld") << "ready";
        QCOMPARE(m_folder->names("log").size(), 1);
        QVERIFY(QRegularExpression("\\Aweld_\\d{8}\\.log\\z").match(m_folder->names("log").value(0)).hasMatch());
    }

    void aLineOfTheDaysLastMomentIsOfThatDay() {
        m_clock.set(QDateTime(QDate(2025, 3, 14), QTime(23, 59, 59, 999)));
        kite::InformationLine("<weld>") << "last";
        m_clock.advance(1);
        kite::InformationLine("<weld>") << "first";
        QCOMPARE(m_folder->content("log/kite_20250314.log"), QByteArray("[I|03/14 23:59:59.999]<weld>last\n"));
        QCOMPARE(m_folder->content("log/kite_20250315.log"), QByteArray("[I|03/15 00:00:00.000]<weld>first\n"));
    }

    // The time is asked for before the file is, and midnight may come in between.
    void atMidnightALineMayBeOlderThanItsFile() {
        m_clock.set(QDateTime(QDate(2025, 3, 14), QTime(23, 59, 59, 999)));
        m_clock.advanceAtEachLook(1);
        kite::InformationLine("<weld>") << "late";
        QCOMPARE(m_folder->names("log"), QStringList("kite_20250315.log"));
        QCOMPARE(m_folder->content("log/kite_20250315.log"), QByteArray("[I|03/14 23:59:59.999]<weld>late\n"));
    }

private:
    // The line on the console and the one in the file, letter by letter.
    void check(const QString& colour, const QString& level, const QString& text) {
        const QString line = QString("\\[%1\\|\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\]%2")
                                 .arg(level, QRegularExpression::escape(text));
        QCOMPARE(m_watch->lines().size(), 1);
        const QString onConsole = m_watch->lines().value(0);
        const QRegularExpression wanted("\\A\x1b\\[" + colour + "m" + line + "\x1b\\[0m\\z");
        QVERIFY2(wanted.match(onConsole).hasMatch(), qPrintable(onConsole));

        const QStringList names = m_folder->names("log");
        QCOMPARE(names.size(), 1);
        QVERIFY2(QRegularExpression("\\Akite_\\d{8}\\.log\\z").match(names.value(0)).hasMatch(),
                 qPrintable(names.value(0)));
        const QString inFile = QString::fromUtf8(m_folder->content("log/" + names.value(0)));
        QCOMPARE(inFile, onConsole.mid(5, onConsole.size() - 9) + '\n');
    }

    Clock m_clock;
    QString m_before;
    std::unique_ptr<LogFolder> m_folder;
    std::unique_ptr<pendanttest::LogWatch> m_watch;
};

QTEST_APPLESS_MAIN(TestLines)
#include "tst_logging_lines.moc"
