#include "links.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

// "text" as a whole line; the time is left open.
QRegularExpression consoleLine(const QString& text) {
    return QRegularExpression(QStringLiteral("\\A\x1b\\[35m\\[S\\|\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\]%1"
                                             "\x1b\\[0m\\z")
                                  .arg(QRegularExpression::escape(text)));
}

QRegularExpression fileLine(const QString& text) {
    return QRegularExpression(QStringLiteral("\\A\\[S\\|\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\]%1\\z")
                                  .arg(QRegularExpression::escape(text)));
}

} // namespace

// What the interface manager writes, letter by letter.
class TestLogLines : public LinksTest {
    Q_OBJECT

private slots:
    void theFirstSubscriberOfAKeyIsALine() {
        subscribe(
            "weld", "robot.state", [](const QVariant&) {}, "1");
        subscribe(
            "weld", "robot.state", [](const QVariant&) {}, "2");
        unsubscribe("weld", "robot.state", "1");
        unsubscribe("weld", "robot.state", "2");
        verifyLines({"connectRelayData - serviceKey : robot.state"});
    }

    void aKeyThatCannotBeFollowedIsALine() {
        brisk::standin::hostFaults().nullWatchNodes = true;
        subscribe(
            "weld", "robot.state", [](const QVariant&) {}, "1");
        verifyLines({"connectRelayData failed: connect signal failed for robot.state"});
    }

    void aServiceKeyIsWrittenAsItIs() {
        subscribe(
            "weld", "a \"b\" %1 grün", [](const QVariant&) {}, "1");
        verifyLines({"connectRelayData - serviceKey : a \"b\" %1 grün"});
    }

    void aCustomCommandIsTwoLines_data() {
        QTest::addColumn<Content>("content");
        QTest::addColumn<QString>("line");
        const auto data = [](const QJsonValue& value) { return contentOf(QVariant(QJsonObject{{"data", value}})); };
        QTest::newRow("an array") << data(QJsonArray{1, "a"})
                                  << "ret : kite::command : QJsonValue(array, QJsonArray([1,\"a\"]))";
        QTest::newRow("a text") << data("a") << "ret : kite::command : QJsonValue(string, a)";
        QTest::newRow("no data") << contentOf(QVariant()) << "ret : kite::command : QJsonValue(null)";
        QTest::newRow("nothing at all") << Content() << "ret : kite::command : QJsonValue(null)";
    }
    void aCustomCommandIsTwoLines() {
        QFETCH(Content, content);
        QFETCH(QString, line);
        bus().answerWith(content);
        kiteInterface()->commandCustomData(nullptr, "g", "k", "v");
        verifyLines({"send : kite::command : QJsonArray([{\"g\":{\"k\":\"v\"}}])", line});
    }

    void theCommandIsWrittenBeforeItIsSent() {
        int before = -1;
        bus().reply = [&](const Message&) {
            before = log().lines().size();
            return Content();
        };
        kiteInterface()->commandCustomData(nullptr, "g", "k");
        QCOMPARE(before, 1);
        QCOMPARE(log().lines().size(), 2);
    }

    void aSubscriptionIsWrittenBeforeTheKeyIsWatched() {
        int before = -1;
        class Noting : public pendanttest::FakeLink {
        public:
            std::function<void()> onWatch;
            void send(const Message& message) override {
                if (message.verb == Verb::Watch)
                    onWatch();
                FakeLink::send(message);
            }
        } noting;
        noting.onWatch = [&] { before = log().count("connectRelayData - serviceKey : robot.order"); };
        QVERIFY(subscribe(
            "weld", "robot.order", [](const QVariant&) {}, "1"));
        unsubscribe("weld", "robot.order", "1");
        QCOMPARE(before, 1);
    }

    void nothingElseIsWritten() {
        kiteInterface()->getRelayData("a");
        kiteInterface()->getRelayData("a", "b");
        kiteInterface()->setRelayData("a", 1);
        kiteInterface()->commandRelayData("a", 1);
        kiteInterface()->execCommandRelayData("a", 1);
        kiteInterface()->getNodeData("a");
        kiteInterface()->rcRequest("a", "b", 1, 1);
        kiteInterface()->rcExecRequest("a", "b", 1, true, 1);
        kiteInterface()->rcRequestFullCommand("a.b", 1, 1);
        kiteInterface()->rcExecRequestFullCommand("a.b", 1, true, 1);
        unsubscribe("a", "b", "c");
        kiteInterface()->getConnectRelayKeyList("a");
        verifyLines({});
    }

private:
    void verifyLines(const QStringList& texts) {
        const QStringList console = log().lines();
        const QStringList file = folder().logLines();
        QCOMPARE(console.size(), texts.size());
        QCOMPARE(file.size(), texts.size());
        for (int i = 0; i < texts.size(); ++i) {
            QVERIFY2(consoleLine(texts[i]).match(console[i]).hasMatch(), qPrintable(console[i]));
            QVERIFY2(fileLine(texts[i]).match(file[i]).hasMatch(), qPrintable(file[i]));
        }
    }
};

QTEST_GUILESS_MAIN(TestLogLines)
#include "tst_interface_loglines.moc"
