#include "links.h"

#include "brisk/modulemanager.h"

#include <QJsonArray>
#include <QJsonObject>

using kite::InterfaceManager;

using ListGetter = QStringList (InterfaceManager::*)();
Q_DECLARE_METATYPE(ListGetter)

/// Tools and work objects come from three lists each, speed and zone data from two that they share.
class TestLists : public LinksTest {
    Q_OBJECT

private slots:
    void cleanup() {
        m("orca")->clear(nullptr, false, true);
        end();
    }

    void threeSourcesComeInOrder_data() { framesAsRows(); }
    void threeSourcesComeInOrder() {
        QFETCH(ListGetter, get);
        QFETCH(QStringList, keys);
        fill(keys.at(2), {"g1", "g2"});
        fill(keys.at(1), {"p1", "a"});
        fill(keys.at(0), {"s2", "s1"});
        QCOMPARE(list(get), QStringList({"s2", "s1", "p1", "a", "g1", "g2"}));
    }

    void eachSourceMayBeMissing_data() { framesAsRows(); }
    void eachSourceMayBeMissing() {
        QFETCH(ListGetter, get);
        QFETCH(QStringList, keys);
        QCOMPARE(list(get), QStringList());
        for (const QString& key : keys) {
            m("orca")->clear(nullptr, false, true);
            fill(key, {"a", "b"});
            QCOMPARE(list(get), QStringList({"a", "b"}));
        }
    }

    void aNameThatIsThereTwiceComesTwice_data() { framesAsRows(); }
    void aNameThatIsThereTwiceComesTwice() {
        QFETCH(ListGetter, get);
        QFETCH(QStringList, keys);
        fill(keys.at(0), {"a"});
        fill(keys.at(1), {"a", "b", "a"});
        fill(keys.at(2), {"a", "A"});
        QCOMPARE(list(get), QStringList({"a", "a", "b", "a", "a", "A"}));
    }

    void aRecordWithoutANameIsTheEmptyName_data() { framesAsRows(); }
    void aRecordWithoutANameIsTheEmptyName() {
        QFETCH(ListGetter, get);
        QFETCH(QStringList, keys);
        m(keys.at(1))
            ->importFromJson(
                nullptr, QJsonArray{QJsonObject{{"name", "a"}}, QJsonObject{{"nam", "b"}}, 5, QJsonObject{{"name", 7}}},
                false, true, false);
        QCOMPARE(list(get), QStringList({"a", "", "", "7"}));
    }

    void recordsNeedNotStandInAList_data() { framesAsRows(); }
    void recordsNeedNotStandInAList() {
        QFETCH(ListGetter, get);
        QFETCH(QStringList, keys);
        m(keys.at(1))->set(nullptr, "z.name", "first");
        m(keys.at(1))->set(nullptr, "a.name", "second");
        m(keys.at(1))->set(nullptr, "a.below.name", "deeper");
        QCOMPARE(list(get), QStringList({"first", "second"}));
    }

    void speedAndZoneAreVariablesOfThatType_data() { typesAsRows(); }
    void speedAndZoneAreVariablesOfThatType() {
        QFETCH(ListGetter, get);
        QFETCH(QString, type);
        const QString other = type == "speed" ? "zone" : "speed";
        fillVariables("_list", {{"p1", type}, {"p2", other}, {"p1", type}});
        fillVariables("system_list", {{"v100", type}, {"z1", other}, {"v50", type}, {"n", "int"}});
        QCOMPARE(list(get), QStringList({"v100", "v50", "p1", "p1"}));
    }

    void theTypeIsExact_data() { typesAsRows(); }
    void theTypeIsExact() {
        QFETCH(ListGetter, get);
        QFETCH(QString, type);
        const QString capital = type.left(1).toUpper() + type.mid(1);
        fillVariables("system_list", {{"a", capital}, {"b", type.toUpper()}, {"c", type + " "}, {"d", ""}});
        fillVariables("_list", {{"e", capital}, {"f", type + "data"}, {"g", type}, {"h", " " + type}});
        m("orca.project.var._list")->set(nullptr, "i.name", "i");
        QCOMPARE(list(get), QStringList{"g"});
    }

    void oneSourceOfVariablesIsEnough_data() { typesAsRows(); }
    void oneSourceOfVariablesIsEnough() {
        QFETCH(ListGetter, get);
        QFETCH(QString, type);
        QCOMPARE(list(get), QStringList());
        fillVariables("system_list", {{"v100", type}});
        QCOMPARE(list(get), QStringList{"v100"});
        m("orca")->clear(nullptr, false, true);
        fillVariables("_list", {{"p1", type}, {"", type}});
        QCOMPARE(list(get), QStringList({"p1", ""}));
    }

    void onlyTheOwnKeysAreRead() {
        const QStringList tools{"orca.project.tool.system_list", "orca.project.tool._list",
                                "orca.setting.g_tool.g_tools"};
        for (const QString& key : tools)
            fill(key, {"t"});
        QCOMPARE(list(&InterfaceManager::getWobjList), QStringList());
        m("orca")->clear(nullptr, false, true);
        const QStringList wobjs{"orca.project.wobj.system_list", "orca.project.wobj._list",
                                "orca.setting.g_wobj.g_wobjs"};
        for (const QString& key : wobjs)
            fill(key, {"w"});
        QCOMPARE(list(&InterfaceManager::getToolList), QStringList());
    }

    void nothingIsChangedSentOrLogged() {
        fill("orca.project.tool._list", {"a"});
        const QJsonValue before = m("orca.project.tool._list")->exportToJson(true);
        for (ListGetter get : {&InterfaceManager::getToolList, &InterfaceManager::getWobjList,
                               &InterfaceManager::getSpeedList, &InterfaceManager::getZoneList})
            list(get);
        QCOMPARE(m("orca.project.tool._list")->exportToJson(true), before);
        QCOMPARE(bus().sent.size(), 0);
        QCOMPARE(controller().sent.size(), 0);
        QCOMPARE(log().lines(), QStringList());
    }

private:
    static QStringList list(ListGetter get) { return (kiteInterface()->*get)(); }
    static void fill(const QString& key, const QStringList& names) {
        QJsonArray records;
        for (const QString& name : names)
            records.append(QJsonObject{{"name", name}});
        m(key)->importFromJson(nullptr, records, false, true, true);
    }
    static void fillVariables(const QString& list, const QList<QPair<QString, QString>>& variables) {
        QJsonArray records;
        for (const auto& variable : variables)
            records.append(QJsonObject{{"name", variable.first}, {"type", variable.second}});
        m("orca.project.var." + list)->importFromJson(nullptr, records, false, true, true);
    }
    static void framesAsRows() {
        QTest::addColumn<ListGetter>("get");
        QTest::addColumn<QStringList>("keys");
        QTest::newRow("tools") << ListGetter(&InterfaceManager::getToolList)
                               << QStringList{"orca.project.tool.system_list", "orca.project.tool._list",
                                              "orca.setting.g_tool.g_tools"};
        QTest::newRow("work objects") << ListGetter(&InterfaceManager::getWobjList)
                                      << QStringList{"orca.project.wobj.system_list", "orca.project.wobj._list",
                                                     "orca.setting.g_wobj.g_wobjs"};
    }
    static void typesAsRows() {
        QTest::addColumn<ListGetter>("get");
        QTest::addColumn<QString>("type");
        QTest::newRow("speed") << ListGetter(&InterfaceManager::getSpeedList) << "speed";
        QTest::newRow("zone") << ListGetter(&InterfaceManager::getZoneList) << "zone";
    }
};

QTEST_GUILESS_MAIN(TestLists)
#include "tst_lists.moc"
