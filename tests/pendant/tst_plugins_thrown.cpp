#include "plugins/thrownhandler.h"

#include "brisk/guarded.h"
#include "helm/messagelist.h"
#include "pendanttest/logwatch.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <stdexcept>

using brisk::standin::guarded;
using brisk::standin::GuardedCall;
using helm::standin::MessageLevel;
using helm::standin::MessageList;

class TestThrown : public QObject {
    Q_OBJECT

private slots:
    void whatIsThrownIsReportedUnderTheKeyOrTheTask_data() {
        QTest::addColumn<int>("call");
        QTest::addColumn<QString>("text");
        QTest::newRow("a callback") << int(GuardedCall::BusDelivery)
                                    << "A callback on the bus key “cell.door” threw: no door";
        QTest::newRow("a task") << int(GuardedCall::NetworkTask) << "A network task “cell.door” threw: no door";
    }

    void whatIsThrownIsReportedUnderTheKeyOrTheTask() {
        QFETCH(int, call);
        QFETCH(QString, text);
        const QTemporaryDir folder;
        QDir::setCurrent(folder.path());
        MessageList::instance()->clear();
        {
            pendanttest::LogWatch log;
            log.expect(text);
            const pendant::ThrownHandler handler;
            guarded(static_cast<GuardedCall>(call), "cell.door", [] { throw std::runtime_error("no door"); });
        }
        QDir::setCurrent(QDir::tempPath());
        const QList<helm::standin::Message> messages = MessageList::instance()->messages();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().level, MessageLevel::Error);
        QCOMPARE(messages.first().source, QString("pendant"));
        QCOMPARE(messages.first().text, text);
    }

    void withoutAHandlerItIsLetThrough() {
        { const pendant::ThrownHandler handler; }
        QVERIFY_EXCEPTION_THROWN(guarded(GuardedCall::BusDelivery, "a", [] { throw std::runtime_error("x"); }),
                                 std::runtime_error);
    }
};

QTEST_GUILESS_MAIN(TestThrown)
#include "tst_plugins_thrown.moc"
