#include "registrylines.h"

#include "pendanttest/pendant.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>

// The pause example as the pendant's program editor meets it: a shared object's entries in the registry.
class TestPauseRegistered : public QObject {
    Q_OBJECT

private slots:
    void itsLineIsItsName() {
        pendanttest::Pendant pendant;
        QVERIFY(pendant.load(PLUGIN_pause));
        pendant.start();
        QCOMPARE(registryLines(), QStringList({"type Pause", "group pause|Pause", "member pause|Pause",
                                               "default Pause|", "description Pause|Stops the program.",
                                               "insert widget Pause", "pattern c_Pause|^\\s*Pause\\s*(?://.*)?$",
                                               "property widget Pause", "skeleton s_Pause|Pause"}));
        const helm::VexManager& registry = *helm::VexManager::getVexManager();
        const std::unique_ptr<helm::BaseContentWidget> inserting(registry.insertWidgets.value("Pause")(nullptr));
        QVERIFY(inserting->CheckInsert());
        const QString line = "  " + inserting->ToString() + " // the tray is full";
        QVERIFY(QRegularExpression(registry.patterns.value("c_Pause")).match(line).hasMatch());
        const std::unique_ptr<helm::BaseContentWidget> editing(registry.propertyWidgets.value("Pause")(nullptr));
        editing->FillWith(line);
        QVERIFY(editing->CheckReplace());
        QCOMPARE(editing->ToString(), line);
    }
};

QTEST_MAIN(TestPauseRegistered)
#include "tst_pause_registered.moc"
