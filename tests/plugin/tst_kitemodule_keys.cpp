#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "brisk/modulemanager.h"
#include "kite/kitemodule.h"

#include <QTest>

using kite::Kite;

// The keys under which a module's things are found in the pendant.
class TestKeys : public QObject {
    Q_OBJECT

private slots:
    void keysAreMadeOfTheNames_data() {
        QTest::addColumn<QString>("plugin");
        QTest::newRow("a word") << "weld";
        QTest::newRow("capitals") << "ArcWeld";
        QTest::newRow("a dot") << "arc.weld";
        QTest::newRow("a blank") << "arc weld";
        QTest::newRow("other letters") << QString::fromUtf8("焊接");
        QTest::newRow("one letter") << "w";
        QTest::newRow("the module's own type") << "kite";
    }

    void keysAreMadeOfTheNames() {
        QFETCH(QString, plugin);
        const pendanttest::Frame frame;
        {
            Kite module(plugin, nullptr);
            module.setup();
            module.init();
            QVERIFY(module.createStatusBar(new QWidget, 12));
            QVERIFY(module.createRightExpandWidgte(new QWidget, QStringLiteral("list")));
            QVERIFY(module.createRightExpandWidgte(new QWidget, QString()));

            QCOMPARE(module.mobj()->key(), QString("brisk.kite." + plugin));
            QCOMPARE(bModule(mName("brisk", "kite", plugin)), &module);
            QVERIFY(frame.center()->keys().contains("kite." + plugin));
            QVERIFY(frame.statusBar()->keys().contains("kite." + plugin + ".12"));
            QCOMPARE(frame.sideBar()->keys(),
                     QStringList({"kite." + plugin + ".list", "kite." + plugin + "." + plugin}));
            QCOMPARE(m("gyre.page.robot.page.pack.page")->c(0)->c("nav")->getString(), QString("kite." + plugin));
        }
        QVERIFY(!frame.center()->keys().contains("kite." + plugin));
        QCOMPARE(m("gyre.page.robot.page.pack.page")->cmobjCount(), 0);
    }

    void theKeysOfTheStatusBarTellTheIndexInDecimal_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("key");
        QTest::newRow("zero") << 0 << "kite.weld.0";
        QTest::newRow("two digits") << 10 << "kite.weld.10";
        QTest::newRow("negative") << -1 << "kite.weld.-1";
        QTest::newRow("largest") << 2147483647 << "kite.weld.2147483647";
    }

    void theKeysOfTheStatusBarTellTheIndexInDecimal() {
        QFETCH(int, index);
        QFETCH(QString, key);
        const pendanttest::Frame frame;
        Kite module(QStringLiteral("weld"), nullptr);
        auto* item = new QWidget;
        QVERIFY(module.createStatusBar(item, index));
        QCOMPARE(frame.statusBar()->item(key), item);
    }

    void init() { m_log.reset(new pendanttest::LogWatch); }
    void cleanup() {
        pendanttest::resetHost();
        m_log.reset();
    }

private:
    pendanttest::WorkingFolder m_folder;
    QScopedPointer<pendanttest::LogWatch> m_log;
};

QTEST_MAIN(TestKeys)
#include "tst_kitemodule_keys.moc"
