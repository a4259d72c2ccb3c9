#include "vtable.h"

#include "pendanttest/workingfolder.h"

#include "kite/kitemodule.h"

#include <QTest>

using kite::Kite;
using tarp::BModule;

// A pendant calls a module's virtual operations by their slots.
class TestSlots : public QObject {
    Q_OBJECT

private slots:
    void theVirtualOperationsComeInTheStatedOrder() {
        std::ptrdiff_t slot = vtable::LastOfQObject::slot() + 1;
        QCOMPARE(vtable::slotOf(&BModule::name), slot++);
        QCOMPARE(vtable::slotOf(&BModule::wgt), slot++);
        for (auto call :
             {&BModule::setup, &BModule::afterSetup, &BModule::init, &BModule::afterInit, &BModule::render,
              &BModule::afterRender, &BModule::idle, &BModule::afterIdle, &BModule::detach, &BModule::beforeDetach})
            QCOMPARE(vtable::slotOf(call), slot++);
    }

    void theModuleOverridesWhatItShouldAndNothingElse() {
        const Kite module("weld", nullptr);
        const BModule base;
        const auto overridden = [&](auto member) {
            const std::ptrdiff_t slot = vtable::slotOf(member);
            return vtable::entry(&module, slot) != vtable::entry(&base, slot);
        };
        QVERIFY(overridden(&BModule::name));
        for (auto call :
             {&BModule::setup, &BModule::init, &BModule::afterInit, &BModule::render, &BModule::idle, &BModule::detach})
            QVERIFY(overridden(call));
        QVERIFY(!overridden(&BModule::wgt));
        for (auto call : {&BModule::afterSetup, &BModule::afterRender, &BModule::afterIdle, &BModule::beforeDetach})
            QVERIFY(!overridden(call));
    }

    void theModuleAddsNoVirtualOperationOfItsOwn() {
        struct Derived : Kite {
            using Kite::Kite;
            virtual void first() {}
        };
        QCOMPARE(vtable::slotOf(&Derived::first), vtable::slotOf(&BModule::beforeDetach) + 1);
    }

private:
    pendanttest::WorkingFolder m_folder;
};

QTEST_MAIN(TestSlots)
#include "tst_kitemodule_slots.moc"
