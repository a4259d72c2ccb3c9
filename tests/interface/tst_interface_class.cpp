#include "kite/interfacemanager.h"

#include <QMetaMethod>
#include <QTest>

#include <type_traits>

using kite::InterfaceManager;

// What a plugin that was built before relies on.
class TestInterfaceClass : public QObject {
    Q_OBJECT

private slots:
    void itsMetaObjectHasItsFullName() {
        QCOMPARE(kite::kiteInterface()->metaObject()->className(), "kite::InterfaceManager");
        QCOMPARE(InterfaceManager::staticMetaObject.superClass(), &QObject::staticMetaObject);
    }

    void itHasTwoSignalsInThatOrderAndNothingElse() {
        const QMetaObject& meta = InterfaceManager::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
        const QMetaMethod connected = meta.method(meta.methodOffset());
        const QMetaMethod disconnected = meta.method(meta.methodOffset() + 1);
        QCOMPARE(connected.methodSignature(), QByteArray("sigNetworkConnect()"));
        QCOMPARE(connected.methodType(), QMetaMethod::Signal);
        QCOMPARE(disconnected.methodSignature(), QByteArray("sigNetworkDisConnect(bool)"));
        QCOMPARE(disconnected.methodType(), QMetaMethod::Signal);
        QCOMPARE(disconnected.parameterNames(), QList<QByteArray>{"status"});
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
        QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
        QCOMPARE(meta.constructorCount(), 0);
    }

    void itHoldsOnePointerAndNoMore() { QCOMPARE(sizeof(InterfaceManager), sizeof(QObject) + sizeof(void*)); }

    void itIsNotCopied() {
        QVERIFY(!std::is_copy_constructible<InterfaceManager>::value);
        QVERIFY(!std::is_copy_assignable<InterfaceManager>::value);
    }
};

QTEST_GUILESS_MAIN(TestInterfaceClass)
#include "tst_interface_class.moc"
