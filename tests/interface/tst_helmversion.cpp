#include "interface/helmversion.h"

#include "brisk/modulemanager.h"

#include <QTest>

class TestHelmVersion : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { m("helm")->clear(nullptr, true, true); }

    void aVersionIsComparedFromItsStart_data() {
        QTest::addColumn<QVariant>("version");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<bool>("matches");
        const auto row = [](const QVariant& version, const QString& prefix, bool matches) {
            QTest::addRow("%s, %s", qPrintable(version.toString()), qPrintable(prefix)) << version << prefix << matches;
        };
        row("3.0.1", "3.0", true);
        row("3.0", "3.0", true);
        row("3.0.1", "3.1", false);
        row("13.0", "3.0", false);
        row("3", "3.0", false);
        row("3.0.1", "", true);
        row("", "", true);
        row("", "3", false);
        row("v3.0", "v3", true);
        row("v3.0", "V3", false);
        row(2.5, "2.5", true);
    }
    void aVersionIsComparedFromItsStart() {
        QFETCH(QVariant, version);
        QFETCH(QString, prefix);
        QFETCH(bool, matches);
        m("helm.r.version")->setValue(nullptr, version);
        QCOMPARE(kite::checkHelmVersion(prefix), matches);
    }

    // Qt tells null from empty when it compares; a version check does not.
    void nothingStartsWithNothing_data() {
        QTest::addColumn<QVariant>("version");
        QTest::newRow("no version") << QVariant();
        QTest::newRow("an empty one") << QVariant("");
        QTest::newRow("a null one") << QVariant(QString());
        QTest::newRow("a list") << QVariant(QStringList{"3.0", "3.1"});
    }
    void nothingStartsWithNothing() {
        QFETCH(QVariant, version);
        m("helm.r.version")->setValue(nullptr, version);
        QVERIFY(kite::checkHelmVersion(""));
        QVERIFY(kite::checkHelmVersion(QString()));
        QVERIFY(!kite::checkHelmVersion("3"));
    }

    // An item of a list that does not exist comes as an empty node.
    void aVersionThatCannotBeThereIsEmpty() {
        m("helm")->setList(nullptr, {1, 2});
        QVERIFY(kite::checkHelmVersion(""));
        QVERIFY(!kite::checkHelmVersion("3.0"));
    }
};

QTEST_GUILESS_MAIN(TestHelmVersion)
#include "tst_helmversion.moc"
