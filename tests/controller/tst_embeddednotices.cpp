#include "controller/embeddedlink.h"

#include "contents.h"

#include <QTest>

#include <memory>

using brisk::standin::Link;
using controller::EmbeddedLink;
using controller::Message;
using controller::Verb;
using controller::VirtualController;

namespace {

Message message(quint64 id, Verb verb, const QString& key) {
    Message made;
    made.id = id;
    made.verb = verb;
    made.key = key;
    return made;
}

} // namespace

// What the controller refuses, told over the link.
class TestEmbeddedNotices : public QObject {
    Q_OBJECT

private slots:
    void init() {
        controller.reset(new VirtualController);
        link.reset(new EmbeddedLink(controller.get()));
        told.clear();
        connect(link.get(), &Link::upChanged, this, [this](bool up) { told << (up ? "up" : "down"); });
        connect(link.get(), &Link::noticed, this, [this](const QString& line) { told << line.section('.', 0, 0); });
    }

    void cleanup() {
        link.reset();
        controller.reset();
    }

    void aSentenceIsNoticedOnce() {
        comeUp();
        for (int i = 0; i < 5; ++i)
            link->send(message(1, Verb::Set, "none"));
        arrive();
        link->send(message(2, Verb::Set, "none"));
        arrive();
        QCOMPARE(told, QStringList("The controller knows no bus key \"none\""));
        link->send(message(3, Verb::Set, "other"));
        arrive();
        QCOMPARE(told.size(), 2);
    }

    void aSentenceOfBothLinksIsNoticedOnce() {
        EmbeddedLink other(controller.get());
        connect(&other, &Link::noticed, this, [this](const QString& line) { told << line.section('.', 0, 0); });
        comeUp();
        other.setUp(true);
        link->send(message(1, Verb::Set, "none"));
        other.send(message(2, Verb::Set, "none"));
        arrive();
        QCOMPARE(told, QStringList("The controller knows no bus key \"none\""));
    }

    void aNoticeOutlivesAReconnect() {
        comeUp();
        link->send(message(1, Verb::Watch, "none"));
        link->setUp(false);
        arrive();
        QCOMPARE(told, QStringList("down"));
        link->setUp(true);
        link->send(message(2, Verb::Watch, "none"));
        QCOMPARE(told, (QStringList{"down", "up"}));
        arrive();
        QCOMPARE(told, (QStringList{"down", "up", "The controller knows no bus key \"none\""}));
    }

    void aNoticeOutlivesAReconnectBeforeTheEventLoop() {
        comeUp();
        link->send(message(1, Verb::Command, "none"));
        link->setUp(false);
        link->setUp(true);
        arrive();
        QCOMPARE(told, (QStringList{"down", "up", "The controller knows no bus command \"none\""}));
    }

    void whatIsAskedDirectlyUsesNoNoticeUp() {
        comeUp();
        controller->handle(message(1, Verb::Get, "none"));
        controller->bus()->get("none", "");
        arrive();
        QCOMPARE(told, QStringList());
        link->send(message(2, Verb::Set, "none"));
        arrive();
        QCOMPARE(told, QStringList("The controller knows no bus key \"none\""));
    }

    void theOldestSentenceIsForgottenFirst() {
        comeUp();
        const int many = controller::RecentTexts::capacity;
        for (int i = 0; i < many; ++i)
            link->send(message(1, Verb::Set, QString::number(i)));
        arrive();
        QCOMPARE(told.size(), many);
        link->send(message(2, Verb::Set, "one more"));
        arrive();
        link->send(message(3, Verb::Set, "500"));
        arrive();
        QCOMPARE(told.size(), many + 1);
        link->send(message(4, Verb::Set, "0"));
        arrive();
        QCOMPARE(told.size(), many + 2);
    }

    void whoHearsANoticeMayDestroyTheLink() {
        comeUp();
        connect(link.get(), &Link::noticed, controller.get(), [this] { link.reset(); });
        link->send(message(1, Verb::Get, "none"));
        link->send(message(2, Verb::Get, "other"));
        arrive();
        QVERIFY(!link);
    }

private:
    void comeUp() {
        link->setUp(true);
        told.clear();
    }

    static void arrive() { QCoreApplication::processEvents(); }

    std::unique_ptr<VirtualController> controller;
    std::unique_ptr<EmbeddedLink> link;
    QStringList told;
};

QTEST_GUILESS_MAIN(TestEmbeddedNotices)
#include "tst_embeddednotices.moc"
