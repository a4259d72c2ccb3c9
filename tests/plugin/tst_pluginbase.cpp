#include "vtable.h"

#include "kite/pluginbase.h"

#include <QTest>

using kite::PluginBase;

class TestPluginBase : public QObject {
    Q_OBJECT

private slots:
    void aNewPluginWantsTheGlobalSheetAndHasNoLabel() {
        const PluginBase plugin;
        QCOMPARE(plugin.getDefaultGlobalSheet(), true);
        QVERIFY(plugin.getPluginLabel().isEmpty());
        QCOMPARE(plugin.parent(), static_cast<QObject*>(nullptr));
    }

    void theParentOwnsThePlugin() {
        auto* parent = new QObject;
        const QPointer<PluginBase> plugin(new PluginBase(parent));
        QCOMPARE(plugin->parent(), parent);
        delete parent;
        QVERIFY(plugin.isNull());
    }

    void theGlobalSheetCanBeSwitchedOffAndOn() {
        PluginBase plugin;
        plugin.setDefaultGlobalSheet(false);
        QCOMPARE(plugin.getDefaultGlobalSheet(), false);
        plugin.setDefaultGlobalSheet(true);
        QCOMPARE(plugin.getDefaultGlobalSheet(), true);
    }

    void theLabelIsWhatWasSet_data() {
        QTest::addColumn<QString>("label");
        QTest::newRow("a word") << "Weld";
        QTest::newRow("blanks at the ends") << "  Weld  ";
        QTest::newRow("other letters") << QString::fromUtf8("焊接 – Schweißen");
        QTest::newRow("dots") << "weld.v2";
        QTest::newRow("nothing") << "";
    }

    void theLabelIsWhatWasSet() {
        QFETCH(QString, label);
        PluginBase plugin;
        plugin.setPluginLabel(QStringLiteral("before"));
        plugin.setPluginLabel(label);
        QCOMPARE(plugin.getPluginLabel(), label);
    }

    void twoPluginsKeepTheirOwnSettings() {
        PluginBase a;
        PluginBase b;
        a.setPluginLabel(QStringLiteral("a"));
        a.setDefaultGlobalSheet(false);
        QVERIFY(b.getPluginLabel().isEmpty());
        QCOMPARE(b.getDefaultGlobalSheet(), true);
    }

    void everyCallDoesNothingInTheBase() {
        PluginBase plugin;
        plugin.init();
        plugin.afterInit();
        plugin.render();
        plugin.idle();
        plugin.detach();
        QVERIFY(plugin.children().isEmpty());
        QVERIFY(plugin.getPluginLabel().isEmpty());
        QCOMPARE(plugin.getDefaultGlobalSheet(), true);
    }

    void theMetaObjectHasTheFullNameAndNothingOfItsOwn() {
        const QMetaObject& meta = PluginBase::staticMetaObject;
        QCOMPARE(meta.className(), "kite::PluginBase");
        QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
        QCOMPARE(meta.methodCount(), meta.methodOffset());
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }

    void theVirtualOperationsComeInTheStatedOrder() {
        const std::ptrdiff_t first = vtable::LastOfQObject::slot() + 1;
        QCOMPARE(vtable::slotOf(&PluginBase::init), first);
        QCOMPARE(vtable::slotOf(&PluginBase::afterInit), first + 1);
        QCOMPARE(vtable::slotOf(&PluginBase::render), first + 2);
        QCOMPARE(vtable::slotOf(&PluginBase::idle), first + 3);
        QCOMPARE(vtable::slotOf(&PluginBase::detach), first + 4);
    }
};

QTEST_MAIN(TestPluginBase)
#include "tst_pluginbase.moc"
