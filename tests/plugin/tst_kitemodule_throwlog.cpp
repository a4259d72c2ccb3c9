#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "helm/messagelist.h"
#include "kite/kitemodule.h"

#include <QTest>

using helm::standin::Message;
using helm::standin::MessageLevel;
using helm::standin::MessageList;

Q_DECLARE_METATYPE(MessageLevel)

class TestThrowLog : public QObject {
    Q_OBJECT

private slots:
    void init() { m_log.reset(new pendanttest::LogWatch); }
    void cleanup() {
        pendanttest::resetHost();
        m_log.reset();
    }

    void theLevelDecidesTheWord_data() {
        QTest::addColumn<int>("level");
        QTest::addColumn<MessageLevel>("shown");
        QTest::newRow("information") << 0 << MessageLevel::Information;
        QTest::newRow("warning") << 1 << MessageLevel::Warning;
        QTest::newRow("error") << 2 << MessageLevel::Error;
        QTest::newRow("the next number") << 3 << MessageLevel::Information;
        QTest::newRow("a large number") << 4711 << MessageLevel::Information;
        QTest::newRow("a negative number") << -1 << MessageLevel::Information;
    }

    void theLevelDecidesTheWord() {
        QFETCH(int, level);
        QFETCH(MessageLevel, shown);
        kite::Kite module(QStringLiteral("weld"), nullptr);
        QCOMPARE(module.ThrowLog(static_cast<kite::enThrowLogLevel>(level), QStringLiteral("The spool is empty.")), 0);
        const QList<Message>& messages = MessageList::instance()->messages();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().level, shown);
        QCOMPARE(messages.first().source, QString("weld"));
        QCOMPARE(messages.first().text, QString("The spool is empty."));
    }

    void theNamedLevelsHaveTheirNumbers() {
        QCOMPARE(int(kite::ThrowInformation), 0);
        QCOMPARE(int(kite::ThrowWarning), 1);
        QCOMPARE(int(kite::ThrowError), 2);
    }

    void anEmptyMessageIsAMessage() {
        kite::Kite module(QStringLiteral("weld"), nullptr);
        QCOMPARE(module.ThrowLog(kite::ThrowError, QString()), 0);
        QCOMPARE(MessageList::instance()->messages().size(), 1);
    }

    void nothingOfItGoesToTheLog() {
        kite::Kite module(QStringLiteral("weld"), nullptr);
        module.ThrowLog(kite::ThrowError, QStringLiteral("The spool is empty."));
        QCOMPARE(m_log->count(QStringLiteral("spool")), 0);
    }

private:
    pendanttest::WorkingFolder m_folder;
    QScopedPointer<pendanttest::LogWatch> m_log;
};

QTEST_MAIN(TestThrowLog)
#include "tst_kitemodule_throwlog.moc"
