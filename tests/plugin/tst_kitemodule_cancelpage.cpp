#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "brisk/modulemanager.h"
#include "briskx/navigation.h"
#include "briskx/navigationmodel.h"
#include "kite/kitemodule.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <memory>

using kite::Kite;
using ot::gyre::standin::Entry;
using ot::gyre::standin::Group;
using ot::gyre::standin::NavigationModel;

namespace {

const QString pack = QStringLiteral("robot.pack");
const QString packKey = QStringLiteral("gyre.page.robot.page.pack.page");

void addEntry(const QString& group, const QString& title, const QString& nav) {
    ot::gyre::registerPage(nullptr, title, group, QString(), -1)->set(nullptr, QStringLiteral("nav"), nav, true);
}

QStringList field(const QString& key, const QString& name) {
    QStringList values;
    for (const QJsonValue& entry : m(key)->exportToJson(true).toArray())
        values.append(entry.toObject().value(name).toString());
    return values;
}

} // namespace

class TestCancelPage : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log.reset(new pendanttest::LogWatch);
        m_module.reset(new Kite("weld", nullptr));
    }

    void cleanup() {
        m_module.reset();
        m_log.reset();
        pendanttest::resetHost();
    }

    void theEntryOfThatPageGoes() {
        addEntry(pack, "Weld", "kite.weld");
        addEntry(pack, "Paint", "kite.paint");
        QVERIFY(m_module->cancelPage(pack, "kite.weld"));
        QCOMPARE(field(packKey, "nav"), QStringList("kite.paint"));
        QCOMPARE(field(packKey, "title"), QStringList("Paint"));
    }

    void ofTwoEntriesOfOnePageTheFirstGoes() {
        addEntry(pack, "First", "kite.weld");
        addEntry(pack, "Second", "kite.weld");
        QVERIFY(m_module->cancelPage(pack, "kite.weld"));
        QCOMPARE(field(packKey, "title"), QStringList("Second"));
    }

    void withoutSuchAnEntryNothingChanges_data() {
        QTest::addColumn<QString>("nav");
        QTest::newRow("unknown") << "kite.glue";
        QTest::newRow("another case") << "kite.Weld";
        QTest::newRow("the beginning only") << "kite.wel";
        QTest::newRow("longer") << "kite.welding";
        QTest::newRow("with a blank") << "kite.weld ";
    }

    void withoutSuchAnEntryNothingChanges() {
        QFETCH(QString, nav);
        addEntry(pack, "Weld", "kite.weld");
        QVERIFY(m_module->cancelPage(pack, nav));
        QCOMPARE(field(packKey, "nav"), QStringList("kite.weld"));
    }

    // An entry without the field reads as one whose field is empty.
    void anEmptyNavMatchesAnEntryWithoutOne() {
        addEntry(pack, "Weld", "kite.weld");
        ot::gyre::registerPage(nullptr, "Unfinished", pack, QString(), -1);
        QVERIFY(m_module->cancelPage(pack, QString()));
        QCOMPARE(field(packKey, "title"), QStringList("Weld"));
    }

    void theEntryThatMovesUpTakesAllItsFieldsAndNoOther() {
        brisk::ModuleObject* first = ot::gyre::registerPage(nullptr, "Unfinished", pack, QString(), -1);
        first->set(nullptr, "badge", "3", true);
        addEntry(pack, "Weld", "kite.weld");
        QVERIFY(m_module->cancelPage(pack, QString()));
        QCOMPARE(field(packKey, "title"), QStringList("Weld"));
        QCOMPARE(field(packKey, "nav"), QStringList("kite.weld"));
        QCOMPARE(field(packKey, "badge"), QStringList(QString()));
    }

    void anEmptyGroupIsRefusedAfterTheFirstLine() {
        addEntry(pack, "Weld", "kite.weld");
        QVERIFY(!m_module->cancelPage(QString(), "kite.weld"));
        QCOMPARE(field(packKey, "nav"), QStringList("kite.weld"));
        QCOMPARE(m_log->lines().size(), 1);
        QVERIFY(m_log->lines().first().endsWith("]<kite>kite::Kite::cancelPage\x1b[0m"));
    }

    void everyDotOfTheGroupLeadsOnePageDown() {
        addEntry("robot.arc.tools", "Weld", "kite.weld");
        addEntry("cell", "Other", "kite.weld");
        QVERIFY(m_module->cancelPage("robot.arc.tools", "kite.weld"));
        QCOMPARE(m("gyre.page.robot.page.arc.page.tools.page")->cmobjCount(), 0);
        QCOMPARE(m("gyre.page.cell.page")->cmobjCount(), 1);
        QVERIFY(m_module->cancelPage("cell", "kite.weld"));
        QCOMPARE(m("gyre.page.cell.page")->cmobjCount(), 0);
    }

    void aGroupThatIsNotThereIsSurvived() {
        QVERIFY(m_module->cancelPage("robot.nowhere", "kite.weld"));
        QCOMPARE(m_log->lines().size(), 3);
        QVERIFY(!m("gyre.page")->r("robot.page.nowhere"));
    }

    void aGroupThatHoldsGroupsIsLeftAlone() {
        addEntry("robot.arc", "Weld", "kite.weld");
        QVERIFY(m_module->cancelPage("robot", "kite.weld"));
        QCOMPARE(field("gyre.page.robot.page.arc.page", "nav"), QStringList("kite.weld"));
    }

    void theLinesTellTheEntriesBeforeAndAfter() {
        addEntry(pack, "Weld", "kite.weld");
        addEntry(pack, "Paint", "kite.paint");
        const QJsonArray before = m(packKey)->exportToJson(true).toArray();
        m_module->cancelPage(pack, "kite.weld");
        QJsonArray after = before;
        after.removeAt(0);

        const QStringList lines = m_log->lines();
        QCOMPARE(lines.size(), 3);
        for (const QString& line : lines)
            QVERIFY2(line.startsWith("\x1b[36m[I|"), qPrintable(line));
        QVERIFY(lines.at(0).endsWith("]<kite>kite::Kite::cancelPage\x1b[0m"));
        QVERIFY(lines.at(1).endsWith("]<kite>kite::Kite::cancelPage : " + printed(before) + "\x1b[0m"));
        QVERIFY(lines.at(2).endsWith("]<kite>kite::Kite::cancelPage : " + printed(after) + "\x1b[0m"));
    }

    void theModuleIsTheSender() {
        addEntry(pack, "Weld", "kite.weld");
        addEntry(pack, "Paint", "kite.paint");
        QList<QObject*> senders;
        QObject context;
        connect(m(packKey), &brisk::ModuleObject::touched, &context,
                [&](brisk::ModuleObject*, QObject* sender) { senders.append(sender); });
        m_module->cancelPage(pack, "kite.weld");
        QVERIFY(!senders.isEmpty());
        for (QObject* sender : senders)
            QCOMPARE(sender, m_module.get());
    }

    void ofThreePluginsTheMiddleOneGoes() {
        const pendanttest::Frame frame;
        std::unique_ptr<Kite> first = start("first");
        std::unique_ptr<Kite> middle = start("middle");
        std::unique_ptr<Kite> last = start("last");
        middle.reset();
        QCOMPARE(field(packKey, "nav"), QStringList({"kite.first", "kite.last"}));
        QCOMPARE(field(packKey, "title"), QStringList({"first", "last"}));
        QCOMPARE(titlesInTheNavigation(), QStringList({"first", "last"}));

        // What is left can be taken away in any order.
        last.reset();
        QCOMPARE(field(packKey, "nav"), QStringList("kite.first"));
        first.reset();
        QCOMPARE(field(packKey, "nav"), QStringList());
        QVERIFY(m(packKey)->isList());
    }

    void aPluginThatComesAfterOneHasGoneGetsAnEntryOfItsOwn() {
        const pendanttest::Frame frame;
        std::unique_ptr<Kite> first = start("first");
        std::unique_ptr<Kite> second = start("second");
        first.reset();
        const std::unique_ptr<Kite> third = start("third");
        QCOMPARE(field(packKey, "nav"), QStringList({"kite.second", "kite.third"}));
    }

private:
    static QString printed(const QJsonArray& array) {
        QString text;
        QDebug(&text).nospace().noquote() << array;
        return text;
    }

    static std::unique_ptr<Kite> start(const QString& name) {
        auto module = std::make_unique<Kite>(name, nullptr);
        module->setup();
        module->init();
        return module;
    }

    static QStringList titlesInTheNavigation() {
        QStringList titles;
        for (const Group& group : NavigationModel::instance()->groups()) {
            for (const Entry& entry : group.entries)
                titles.append(entry.title);
        }
        return titles;
    }

    pendanttest::WorkingFolder m_folder;
    QScopedPointer<pendanttest::LogWatch> m_log;
    std::unique_ptr<Kite> m_module;
};

QTEST_MAIN(TestCancelPage)
#include "tst_kitemodule_cancelpage.moc"
