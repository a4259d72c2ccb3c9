#include "helm/managerhelper.h"
#include "helm/messagelist.h"
#include "pendanttest/fakelink.h"

#include <QTest>

using brisk::standin::Channel;
using helm::standin::MessageLevel;
using helm::standin::MessageList;
using pendanttest::FakeLink;

class Notices : public QObject {
    Q_OBJECT

private slots:
    void whatTheFarSideHasToSayStandsInTheMessageList() {
        helm::ManagerHelper::instance();
        FakeLink bus;
        FakeLink controller(Channel::controller());
        emit bus.noticed("There is no bus key \"x\".");
        emit controller.noticed("There is no request \"y\".");
        const auto messages = MessageList::instance()->messages();
        QCOMPARE(messages.size(), 2);
        QCOMPARE(messages.at(0).text, QString("There is no bus key \"x\"."));
        QCOMPARE(messages.at(1).text, QString("There is no request \"y\"."));
        for (const auto& message : messages) {
            QCOMPARE(message.source, QString("controller"));
            QCOMPARE(message.level, MessageLevel::Warning);
        }
    }
};

QTEST_GUILESS_MAIN(Notices)
#include "tst_notices.moc"
