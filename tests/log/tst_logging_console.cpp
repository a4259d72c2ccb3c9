#include "kite/log.h"
#include "pendanttest/logwatch.h"

#include <QTest>

#include <memory>
#include <type_traits>

using kite::QLog;

namespace {

const QString red = "\x1b[31m";
const QString tag = "[S|01/02 03:04:05.006]";

} // namespace

class TestConsole : public QObject {
    Q_OBJECT

private slots:
    void init() { m_log = std::make_unique<pendanttest::LogWatch>(); }
    void cleanup() { m_log.reset(); }

    void aLineIsColourTagTextAndReset() {
        QLog(red, tag, QString()) << QString("a") << QString("b");
        QCOMPARE(line(), "\x1b[31m[S|01/02 03:04:05.006]ab\x1b[0m");
    }

    void theModuleFollowsTheTag() {
        QLog(red, tag, "<weld>") << QString("a");
        QCOMPARE(line(), "\x1b[31m[S|01/02 03:04:05.006]<weld>a\x1b[0m");
    }

    void aLineMayHaveNoText() {
        { const QLog log(red, tag, "<weld>"); }
        QCOMPARE(line(), "\x1b[31m[S|01/02 03:04:05.006]<weld>\x1b[0m");
    }

    void aBlankFollowsEachItemOnceItIsAskedFor() {
        QLog(red, tag, QString()).space() << QString("a") << QString("b");
        QCOMPARE(line(), "\x1b[31m[S|01/02 03:04:05.006]a b \x1b[0m");
    }

    void blanksBeginWhereTheyAreAskedFor() {
        (QLog("", "t", "m") << QString("a") << QString("b")).space()
            << QString("c") << 4 << static_cast<void*>(nullptr);
        QCOMPARE(line(), "tmabc 4 0x0 \x1b[0m");
    }

    void askingTwiceChangesNothing() {
        QLog("", "t", "").space().space() << QString("a");
        QCOMPARE(line(), "ta \x1b[0m");
    }

    void blanksWithoutItemsAreNone() {
        QLog("", "t", "").space();
        QCOMPARE(line(), "t\x1b[0m");
    }

    void blanksOfTheTextStay() {
        QLog("", "t", "") << QString(" a ") << QString(" ");
        QCOMPARE(line(), "t a  \x1b[0m");
        QLog("", "t", "").space() << QString("a ");
        QCOMPARE(line(), "ta  \x1b[0m");
    }

    void quotesAndLineBreaksAreText() {
        QLog("", "", "") << QString("\"a\"\n\t\\b");
        QCOMPARE(line(), "\"a\"\n\t\\b\x1b[0m");
    }

    void textOfAnyLanguageIsKept() {
        QLog("", "", "") << QStringLiteral("焊 ü 😀");
        QCOMPARE(line(), QStringLiteral("焊 ü 😀\x1b[0m"));
    }

    void theLineIsOneDebugMessageOfTheDefaultCategory() {
        static QtMsgType type;
        static QByteArray category, file, function;
        static int number;
        static int messages;
        messages = 0;
        const QtMessageHandler before =
            qInstallMessageHandler([](QtMsgType ofType, const QMessageLogContext& context, const QString&) {
                type = ofType;
                category = context.category;
                file = context.file;
                function = context.function;
                number = context.line;
                ++messages;
            });
        QLog(red, tag, "<weld>") << QString("a") << QString("b");
        qInstallMessageHandler(before);
        QCOMPARE(messages, 1);
        QCOMPARE(type, QtDebugMsg);
        QCOMPARE(category, QByteArray("default"));
        QVERIFY(file.isNull() && function.isNull());
        QCOMPARE(number, 0);
    }

    void theLineComesWhenTheObjectGoes() {
        auto log = std::make_unique<QLog>("", "t", "");
        *log << QString("a");
        QCOMPARE(m_log->lines(), QStringList());
        log.reset();
        QCOMPARE(m_log->lines(), QStringList("ta\x1b[0m"));
    }

    void aLineIsWrittenAsItGoesOn() {
        QLog outer("", "outer", "");
        outer << QString(" before");
        QLog("", "inner", "");
        outer << QString(" after");
        QCOMPARE(m_log->lines(), QStringList("inner\x1b[0m"));
    }

    void theClassesStandAlone() {
        QVERIFY(!std::is_polymorphic<QLog>::value);
        QVERIFY(!std::is_polymorphic<kite::FLog>::value);
        QVERIFY(!std::is_polymorphic<kite::QFLog>::value);
        QCOMPARE(sizeof(QLog), sizeof(QDebug));
        QCOMPARE(sizeof(kite::FLog), sizeof(QFile) + sizeof(QDebug) + sizeof(QString));
        QCOMPARE(sizeof(kite::QFLog), sizeof(QLog) + sizeof(kite::FLog));
    }

private:
    QString line() const { return m_log->lines().value(m_log->lines().size() - 1); }

    std::unique_ptr<pendanttest::LogWatch> m_log;
};

QTEST_APPLESS_MAIN(TestConsole)
#include "tst_logging_console.moc"
