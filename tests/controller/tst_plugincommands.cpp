#include "controller/plugincommands.h"

#include "contents.h"

#include <QSignalSpy>
#include <QTest>

using controller::Content;
using controller::Message;
using controller::PluginCommands;
using controller::Verb;

namespace {

Message pluginCommand(const QString& name, const Content& data) {
    Message message;
    message.verb = Verb::Execute;
    message.key = name;
    message.subKey = PluginCommands::endpoint();
    message.content = data;
    return message;
}

} // namespace

class TestPluginCommands : public QObject {
    Q_OBJECT

private slots:
    void anExecuteWithAnEndpointIsAPluginCommand() {
        Message message = pluginCommand("weld", nullptr);
        QVERIFY(PluginCommands::isPluginCommand(message));
        message.verb = Verb::Command;
        QVERIFY(!PluginCommands::isPluginCommand(message));
        message.verb = Verb::Execute;
        message.subKey = "";
        QVERIFY(PluginCommands::isPluginCommand(message));
        message.subKey.clear();
        QVERIFY(!PluginCommands::isPluginCommand(message));
    }

    void whatIsSentComesBackAsData_data() {
        QTest::addColumn<QString>("json");
        QTest::newRow("array") << "[1,\"two\",[3]]";
        QTest::newRow("array of one") << "[\"start\"]";
        QTest::newRow("empty array") << "[]";
        QTest::newRow("object") << "{\"a\":[1,2]}";
        QTest::newRow("number") << "5";
        QTest::newRow("text") << "\"go\"";
    }

    void whatIsSentComesBackAsData() {
        QFETCH(QString, json);
        PluginCommands commands;
        const Content answer = commands.handle(pluginCommand("weld", content(json.toUtf8())));
        QCOMPARE(text(answer), "{\"data\":" + json + "}");
        QCOMPARE(childNames(answer), QString("data"));
        QCOMPARE(answer->c("data")->isList(), json.startsWith('['));
    }

    void manyItemsKeepTheirOrder() {
        PluginCommands commands;
        const Content answer = commands.handle(pluginCommand("weld", content("[0,1,2,3,4,5,6,7,8,9,10,11]")));
        QCOMPARE(childNames(brisk::standin::contentOf(answer->c("data"))),
                 QString("#0 #1 #2 #3 #4 #5 #6 #7 #8 #9 #10 #11"));
    }

    void aHandlerMakesTheAnswer() {
        PluginCommands commands;
        commands.setHandler([](const QString& name, const Content& data) {
            return name == "count" ? content(QByteArray::number(data->cmobjCount())) : Content();
        });
        QCOMPARE(text(commands.handle(pluginCommand("count", content("[7,8]")))), QString("{\"data\":2}"));
        const Content nothing = commands.handle(pluginCommand("other", content("[7]")));
        QVERIFY(nothing);
        QVERIFY(nothing->isEmpty());
        commands.setHandler(nullptr);
        QCOMPARE(text(commands.handle(pluginCommand("count", content("[7,8]")))), QString("{\"data\":[7,8]}"));
    }

    void anotherEndpointIsNamedInAnswerAndNotice() {
        PluginCommands commands;
        QSignalSpy noticed(&commands, &PluginCommands::noticed);
        Message message = pluginCommand("weld", content("[1]"));
        message.subKey = "ServiceAPI.other";
        const QString reason = refusalOf(commands.handle(message));
        QVERIFY2(reason.contains("\"ServiceAPI.other\"") && reason.contains("\"weld\""), qPrintable(reason));
        QVERIFY2(reason.contains("\"ServiceAPI.plugin\""), qPrintable(reason));
        QCOMPARE(noticed.size(), 1);
        QCOMPARE(noticed.first().first().toString(), reason);
    }

    void anEmptyEndpointIsCalledOne() {
        PluginCommands commands;
        Message message = pluginCommand("weld", content("[1]"));
        message.subKey = "";
        QCOMPARE(refusalOf(commands.handle(message)),
                 QString("The plugin command \"weld\" names no endpoint. Send it to \"ServiceAPI.plugin\"."));
    }
};

QTEST_GUILESS_MAIN(TestPluginCommands)
#include "tst_plugincommands.moc"
