#include "controller/embedded.h"

#include "brisk/channel.h"

#include <QTest>

#include <memory>

using brisk::standin::Channel;
using controller::Embedded;

class TestEmbedded : public QObject {
    Q_OBJECT

private slots:
    void itStandsBehindBothChannelsWithTheLinksDown() {
        Embedded embedded;
        QCOMPARE(Channel::bus()->link(), embedded.bus());
        QCOMPARE(Channel::controller()->link(), embedded.controllerLink());
        QVERIFY(!Channel::bus()->isUp());
        QVERIFY(!Channel::controller()->isUp());
        QVERIFY(!embedded.controller()->clock()->runsByItself());
        QTest::qWait(60);
        QCOMPARE(embedded.controller()->clock()->nowMs(), 0);
    }

    void destroyedItIsTakenOut() {
        {
            Embedded embedded;
            embedded.bus()->setUp(true);
            embedded.controllerLink()->setUp(true);
            QVERIFY(Channel::bus()->isUp());
        }
        QVERIFY(!Channel::bus()->link());
        QVERIFY(!Channel::controller()->link());
        QVERIFY(!Channel::bus()->isUp());
        QVERIFY(!Channel::controller()->isUp());
    }

    void theOneThatTookItsPlaceStays() {
        std::unique_ptr<Embedded> first(new Embedded);
        Embedded second;
        first.reset();
        QCOMPARE(Channel::bus()->link(), second.bus());
        QCOMPARE(Channel::controller()->link(), second.controllerLink());
    }

    void startedTheBusComesUpAndThenTheControllerLink() {
        Embedded embedded;
        QStringList up;
        connect(Channel::bus(), &Channel::upChanged, &embedded, [&] { up << "bus"; });
        connect(Channel::controller(), &Channel::upChanged, &embedded, [&] { up << "controller"; });
        embedded.start(30);
        QVERIFY(embedded.controller()->clock()->runsByItself());
        QVERIFY(!Channel::bus()->isUp());
        QTRY_COMPARE(up, (QStringList{"bus", "controller"}));
        QVERIFY(embedded.controller()->clock()->nowMs() >= 20);
        disconnect(Channel::bus(), nullptr, &embedded, nullptr);
        disconnect(Channel::controller(), nullptr, &embedded, nullptr);
    }

    void aLinkThatIsTakenDownDuringTheDelayStaysDown_data() {
        QTest::addColumn<bool>("isBus");
        QTest::newRow("bus") << true;
        QTest::newRow("controller link") << false;
    }

    void aLinkThatIsTakenDownDuringTheDelayStaysDown() {
        QFETCH(bool, isBus);
        Embedded embedded;
        embedded.start(30);
        (isBus ? embedded.bus() : embedded.controllerLink())->setUp(false);
        Channel* other = isBus ? Channel::controller() : Channel::bus();
        QTRY_VERIFY(other->isUp());
        QTest::qWait(100);
        QVERIFY(!(isBus ? Channel::bus() : Channel::controller())->isUp());
    }

    void theLinksComeUpAndGoDownInEitherOrder_data() {
        QTest::addColumn<bool>("busFirst");
        QTest::newRow("the bus first") << true;
        QTest::newRow("the controller link first") << false;
    }

    void theLinksComeUpAndGoDownInEitherOrder() {
        QFETCH(bool, busFirst);
        Embedded embedded;
        Channel* first = busFirst ? Channel::bus() : Channel::controller();
        Channel* second = busFirst ? Channel::controller() : Channel::bus();
        for (const bool up : {true, false, true}) {
            first->link()->setUp(up);
            QCOMPARE(first->isUp(), up);
            QCOMPARE(second->isUp(), !up);
            second->link()->setUp(up);
            QCOMPARE(first->isUp(), up);
            QCOMPARE(second->isUp(), up);
        }
    }

    void bothLinksLeadToOneController() {
        Embedded embedded;
        embedded.bus()->setUp(true);
        embedded.controllerLink()->setUp(true);
        embedded.controller()->bus()->define("n", 0);
        embedded.controller()->requests()->onRequest("count.up", [&](const controller::Content&) {
            embedded.controller()->bus()->write("n", 1);
            return nullptr;
        });
        controller::Message request;
        request.verb = controller::Verb::Request;
        request.key = "count.up";
        QCOMPARE(Channel::controller()->ask(nullptr, request, 50).state, Channel::Reply::Answered);
        controller::Message get;
        get.key = "n";
        const Channel::Reply reply = Channel::bus()->ask(nullptr, get, 50);
        QVERIFY(reply.content);
        QCOMPARE(reply.content->getInt(), 1);
    }

    void aRefusalIsNoticedOnTheLinkThatAsked() {
        Embedded embedded;
        embedded.bus()->setUp(true);
        embedded.controllerLink()->setUp(true);
        QStringList noticed;
        connect(embedded.bus(), &controller::EmbeddedLink::noticed, &embedded, [&] { noticed << "bus"; });
        connect(embedded.controllerLink(), &controller::EmbeddedLink::noticed, &embedded,
                [&] { noticed << "controller"; });
        embedded.controller()->bus()->onCommand("open", [](const controller::Content&) {
            controller::Message request;
            request.verb = controller::Verb::Request;
            request.key = "none";
            Channel::controller()->ask(nullptr, request, 500);
            return nullptr;
        });
        controller::Message open;
        open.verb = controller::Verb::Command;
        open.key = "open";
        QVERIFY(Channel::bus()->send(nullptr, open));
        QCoreApplication::processEvents();
        QCOMPARE(noticed, QStringList("controller"));
    }

    void aRemarkIsANoticeOfTheBusAlone() {
        Embedded embedded;
        QStringList noticed;
        connect(Channel::bus(), &Channel::noticed, &embedded, [&](const QString& text) { noticed << "bus " + text; });
        connect(Channel::controller(), &Channel::noticed, &embedded,
                [&](const QString& text) { noticed << "controller " + text; });
        emit embedded.controller()->remarked("Nobody hears it.");
        embedded.bus()->setUp(true);
        embedded.controllerLink()->setUp(true);
        emit embedded.controller()->remarked("The arm does not reach further.");
        emit embedded.controller()->remarked("The arm does not reach further.");
        QCOMPARE(noticed, QStringList());
        QCoreApplication::processEvents();
        QCOMPARE(noticed, (QStringList{"bus The arm does not reach further.", "bus The arm does not reach further."}));
        disconnect(Channel::bus(), nullptr, &embedded, nullptr);
        disconnect(Channel::controller(), nullptr, &embedded, nullptr);
    }
};

QTEST_GUILESS_MAIN(TestEmbedded)
#include "tst_embedded.moc"
