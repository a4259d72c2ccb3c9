#include "hostsettings.h"
#include "links.h"

#include "brisk/modulemanager.h"

#include <QJsonArray>
#include <QJsonObject>

#include <functional>

using brisk::ModuleObject;
using kite::InterfaceManager;

/// A getter of texts or numbers, its result as text.
using Getter = std::function<QString()>;
Q_DECLARE_METATYPE(Getter)

class TestStatus : public LinksTest {
    Q_OBJECT

private slots:
    void initTestCase() { HostSettings::begin(); }
    void cleanup() {
        m("orca")->clear(nullptr, false, true);
        m("helm")->clear(nullptr, false, true);
        HostSettings::remove("server.ip");
        parameters()->clear(nullptr, false, true);
        end();
    }

    void aFreshTreeGivesTheDefaults() {
        QCOMPARE(robot()->getRobotID(), QString());
        QCOMPARE(robot()->getRobotEleStatus(), false);
        QCOMPARE(robot()->getRobotPhyStatus(), QString());
        QCOMPARE(robot()->getUserOperateLevel(), 0);
        QCOMPARE(robot()->getRobotIP(), QString());
        QCOMPARE(robot()->getRobotType(), QString());
        QCOMPARE(robot()->getRobotModelType(), 0);
        QCOMPARE(robot()->getCurTool(), QString("tool0"));
        QCOMPARE(robot()->getCurWobj(), QString("wobj0"));
        for (const QString& text :
             {robot()->getRobotID(), robot()->getRobotPhyStatus(), robot()->getRobotIP(), robot()->getRobotType()})
            QVERIFY(!text.isNull());
    }

    void eachTextComesFromItsKey_data() { textsAsRows(); }
    void eachTextComesFromItsKey() {
        QFETCH(Getter, get);
        QFETCH(QString, key);
        m(key)->setValue(nullptr, "R 17.ä");
        QCOMPARE(get(), QString("R 17.ä"));
        m(key)->setValue(nullptr, "");
        QCOMPARE(get(), QString(""));
        m(key)->setValue(nullptr, 5);
        QCOMPARE(get(), QString("5"));
    }

    void whatIsNoTextIsTheDefault_data() { textsAsRows(); }
    void whatIsNoTextIsTheDefault() {
        QFETCH(Getter, get);
        QFETCH(QString, key);
        QFETCH(QString, fallback);
        m(key)->setValue(nullptr, QVariantMap{{"a", 1}});
        QCOMPARE(get(), fallback);
        m(key)->setValue(nullptr, QVariant());
        m(key)->set(nullptr, "child", "text");
        QCOMPARE(get(), fallback);
    }

    void noOtherKeyIsRead_data() { textsAsRows(); }
    void noOtherKeyIsRead() {
        QFETCH(Getter, get);
        QFETCH(QString, key);
        QFETCH(QString, fallback);
        const QStringList keys{
            "helm.r.id",          "helm.r.power", "helm.r.state",  "helm.r.level",       "helm.r",
            "helm.setting.robot", "helm.setting", "orca.toolpage", "orca.toolpage.tool", "orca.toolpage.wobj",
            "orca.toolpage,tool", "helm.r.type"};
        for (const QString& other : keys) {
            if (other != key)
                m(other)->setValue(nullptr, "other");
        }
        QCOMPARE(get(), fallback);
    }

    void powerIsOnWhenItSaysOn_data() {
        QTest::addColumn<QVariant>("power");
        QTest::addColumn<bool>("isOn");
        QTest::newRow("on") << QVariant("on") << true;
        QTest::newRow("On") << QVariant("On") << false;
        QTest::newRow("ON") << QVariant("ON") << false;
        QTest::newRow("off") << QVariant("off") << false;
        QTest::newRow("nothing") << QVariant("") << false;
        QTest::newRow("with a blank") << QVariant("on ") << false;
        QTest::newRow("more") << QVariant("once") << false;
        QTest::newRow("true") << QVariant(true) << false;
        QTest::newRow("1") << QVariant(1) << false;
        QTest::newRow("no value") << QVariant() << false;
        QTest::newRow("bytes") << QVariant(QByteArray("on")) << true;
    }
    void powerIsOnWhenItSaysOn() {
        QFETCH(QVariant, power);
        m("helm.r.power")->setValue(nullptr, power);
        QTEST(robot()->getRobotEleStatus(), "isOn");
    }

    void theLevelIsANumber_data() { numbersAsRows(); }
    void theLevelIsANumber() {
        QFETCH(QVariant, value);
        m("helm.r.level")->setValue(nullptr, value);
        QTEST(robot()->getUserOperateLevel(), "number");
    }

    void theModelIsANumber_data() { numbersAsRows(); }
    void theModelIsANumber() {
        QFETCH(QVariant, value);
        parameters()->set(nullptr, "robot_template", value);
        QTEST(robot()->getRobotModelType(), "number");
    }

    void theModelIsThatOfTheLastAnswer() {
        const QString request("system.controller.get_params");
        controller().answerWith(contentOf(QVariant(QJsonObject{{"robot_template", 3}})));
        QCOMPARE(robot()->getRobotModelType(), 0);
        QCOMPARE(controller().sent.size(), 0);
        robot()->rcExecRequestFullCommand(request, QJsonObject{{"robot_template", 9}}, true, 100);
        QCOMPARE(robot()->getRobotModelType(), 3);
        controller().answerWith(contentOf(QVariant(QJsonObject{{"robot_template", 4}})));
        robot()->rcExecRequest("system", "controller.get_params", QJsonValue(), true, 100);
        QCOMPARE(robot()->getRobotModelType(), 4);
        controller().answers = false;
        robot()->rcExecRequestFullCommand(request, QJsonValue(), true, 1);
        QCOMPARE(robot()->getRobotModelType(), 4);
        controller().setUp(false);
        QCOMPARE(robot()->getRobotModelType(), 4);
    }

    void anAnswerWithoutAModelIsZero_data() {
        QTest::addColumn<QVariant>("answer");
        QTest::newRow("empty") << QVariant();
        QTest::newRow("a number") << QVariant(7);
        QTest::newRow("an array") << QVariant(QJsonArray{7});
        QTest::newRow("another case") << QVariant(QJsonObject{{"Robot_template", 7}});
        QTest::newRow("deeper") << QVariant(QJsonObject{{"params", QJsonObject{{"robot_template", 7}}}});
    }
    void anAnswerWithoutAModelIsZero() {
        QFETCH(QVariant, answer);
        controller().answerWith(contentOf(answer));
        robot()->rcExecRequest("system", "controller.get_params", QJsonValue(), true, 100);
        QCOMPARE(robot()->getRobotModelType(), 0);
        QVERIFY(!parameters()->hasCmobj("robot_template"));
    }

    void theAddressIsTheSetting() {
        HostSettings::set("server.ip", "192.168.3.7");
        m("server.ip")->setValue(nullptr, "10.0.0.1");
        QCOMPARE(robot()->getRobotIP(), QString("192.168.3.7"));
        HostSettings::set("server.ip", "");
        QCOMPARE(robot()->getRobotIP(), QString(""));
        m("server")->clear(nullptr, false, true);
    }

    void nothingIsAskedSentOrLogged() {
        readAll();
        QCOMPARE(bus().sent.size(), 0);
        QCOMPARE(controller().sent.size(), 0);
        QCOMPARE(log().lines(), QStringList());
    }

    void withTheLinksDownTheLastValuesStay() {
        m("helm.r.id")->setValue(nullptr, "R1");
        m("helm.r.power")->setValue(nullptr, "on");
        parameters()->set(nullptr, "robot_template", 3);
        bus().setUp(false);
        controller().setUp(false);
        QVERIFY(!robot()->getRobotConnected());
        QCOMPARE(robot()->getRobotID(), QString("R1"));
        QVERIFY(robot()->getRobotEleStatus());
        QCOMPARE(robot()->getRobotModelType(), 3);
    }

    void valuesAreReadAfresh() {
        readAll();
        m("helm.r.state")->setValue(nullptr, "run");
        QCOMPARE(robot()->getRobotPhyStatus(), QString("run"));
        m("helm.r.state")->setValue(nullptr, "stop");
        QCOMPARE(robot()->getRobotPhyStatus(), QString("stop"));
        delete m("helm.r.state");
        QCOMPARE(robot()->getRobotPhyStatus(), QString());
    }

private:
    static InterfaceManager* robot() { return kiteInterface(); }
    static ModuleObject* parameters() {
        return helm::ManagerHelper::instance()->controllerManager()->cmdItemMobj("response",
                                                                                 "system.controller.get_params");
    }
    static void readAll() {
        robot()->getRobotID();
        robot()->getRobotEleStatus();
        robot()->getRobotPhyStatus();
        robot()->getUserOperateLevel();
        robot()->getRobotIP();
        robot()->getRobotType();
        robot()->getRobotModelType();
        robot()->getCurTool();
        robot()->getCurWobj();
    }
    static void textsAsRows() {
        QTest::addColumn<Getter>("get");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("fallback");
        const auto row = [](const char* name, QString (InterfaceManager::*getter)(), const char* key,
                            const char* fallback) {
            QTest::newRow(name) << Getter([getter] { return (robot()->*getter)(); }) << key << fallback;
        };
        row("id", &InterfaceManager::getRobotID, "helm.r.id", "");
        row("state", &InterfaceManager::getRobotPhyStatus, "helm.r.state", "");
        row("type", &InterfaceManager::getRobotType, "helm.setting.robot", "");
        row("tool", &InterfaceManager::getCurTool, "orca.toolpage.tool", "tool0");
        row("work object", &InterfaceManager::getCurWobj, "orca.toolpage.wobj", "wobj0");
    }
    static void numbersAsRows() {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("number");
        QTest::newRow("a number") << QVariant(2) << 2;
        QTest::newRow("negative") << QVariant(-1) << -1;
        QTest::newRow("a text") << QVariant("3") << 3;
        QTest::newRow("no number") << QVariant("service") << 0;
        QTest::newRow("none") << QVariant() << 0;
        QTest::newRow("a list") << QVariant(QVariantList{2}) << 0;
    }
};

QTEST_GUILESS_MAIN(TestStatus)
#include "tst_status.moc"
