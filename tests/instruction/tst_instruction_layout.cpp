#include "plugin/vtable.h"

#include "helm/vexmanager.h"
#include "kite/vexbasewidget.h"

#include <QTest>

using helm::BaseContentWidget;
using kite::VexBaseWidget;
using kite::VexContentBase;

namespace {

// The first slot after the base's own.
template <typename Base> struct After : Base {
    using Base::Base;
    virtual void first() {}
    static std::ptrdiff_t slot() { return vtable::slotOf(&After::first); }
};

// Where a container begins in the registry, counted in pointers: each of Qt's containers is one.
template <typename Container> std::ptrdiff_t place(Container helm::VexManager::*container) {
    static_assert(sizeof(Container) == sizeof(void*), "one pointer");
    const helm::VexManager& registry = *helm::VexManager::getVexManager();
    const auto* start = reinterpret_cast<const char*>(&registry);
    return (reinterpret_cast<const char*>(&(registry.*container)) - start) / std::ptrdiff_t(sizeof(void*));
}

} // namespace

// A pendant calls an editor's operations by their slots, and finds the registry's containers by their places.
class TestInstructionLayout : public QObject {
    Q_OBJECT

private slots:
    void theContentsOperationsComeInTheStatedOrder() {
        std::ptrdiff_t slot = After<QWidget>::slot();
        QCOMPARE(vtable::slotOf(&VexContentBase::FillWith), slot++);
        QCOMPARE(vtable::slotOf(&VexContentBase::ToString), slot++);
        QCOMPARE(vtable::slotOf(&VexContentBase::CheckInsert), slot++);
        QCOMPARE(vtable::slotOf(&VexContentBase::CheckReplace), slot++);
        QCOMPARE(After<VexContentBase>::slot(), slot);
    }

    void theHostsOperationsComeInTheStatedOrder() {
        std::ptrdiff_t slot = After<QWidget>::slot();
        QCOMPARE(vtable::slotOf(&BaseContentWidget::FillWith), slot++);
        QCOMPARE(vtable::slotOf(&BaseContentWidget::ToString), slot++);
        QCOMPARE(vtable::slotOf(&BaseContentWidget::ToJsonValue), slot++);
        QCOMPARE(vtable::slotOf(&BaseContentWidget::CheckInsert), slot++);
        QCOMPARE(vtable::slotOf(&BaseContentWidget::CheckReplace), slot++);
        QCOMPARE(vtable::slotOf(&BaseContentWidget::RefreshProgramData), slot++);
        QCOMPARE(vtable::slotOf(&BaseContentWidget::GetLabel), slot++);
        QCOMPARE(After<BaseContentWidget>::slot(), slot);
    }

    void theWrapperOverridesWhatItShouldAndNothingElse() {
        const VexBaseWidget wrapper(nullptr, nullptr);
        const BaseContentWidget base(nullptr);
        // Each library has its own copy of an inline one; that they behave as the host's is tested with the wrapper.
        const QList<std::ptrdiff_t> inlined{vtable::slotOf(&BaseContentWidget::ToJsonValue),
                                            vtable::slotOf(&BaseContentWidget::RefreshProgramData),
                                            vtable::slotOf(&BaseContentWidget::GetLabel)};
        QList<std::ptrdiff_t> overridden;
        for (std::ptrdiff_t slot = 0; slot < After<BaseContentWidget>::slot(); ++slot) {
            if (!inlined.contains(slot) && vtable::entry(&wrapper, slot) != vtable::entry(&base, slot))
                overridden << slot;
        }
        // metaObject, qt_metacast, qt_metacall and the two destructors come first.
        QCOMPARE(overridden, (QList<std::ptrdiff_t>{0, 1, 2, 3, 4, vtable::slotOf(&BaseContentWidget::FillWith),
                                                    vtable::slotOf(&BaseContentWidget::ToString),
                                                    vtable::slotOf(&BaseContentWidget::CheckInsert),
                                                    vtable::slotOf(&BaseContentWidget::CheckReplace)}));
    }

    void theWrapperAddsNoVirtualOperationOfItsOwn() {
        QCOMPARE(After<VexBaseWidget>::slot(), After<BaseContentWidget>::slot());
    }

    void eachClassHasOneFieldOfItsOwn() {
        QCOMPARE(sizeof(VexContentBase), sizeof(QWidget) + sizeof(QString));
        QCOMPARE(sizeof(VexBaseWidget), sizeof(BaseContentWidget) + sizeof(VexContentBase*));
        QCOMPARE(sizeof(BaseContentWidget), sizeof(QWidget));
    }

    void theRegistrysContainersComeInTheStatedOrder() {
        using helm::VexManager;
        QCOMPARE(place(&VexManager::typeKeys), 0);
        QCOMPARE(place(&VexManager::groups), 1);
        QCOMPARE(place(&VexManager::groupMembers), 2);
        QCOMPARE(place(&VexManager::descriptions), 3);
        QCOMPARE(place(&VexManager::defaultTexts), 4);
        QCOMPARE(place(&VexManager::hiddenTypes), 5);
        QCOMPARE(place(&VexManager::patterns), 6);
        QCOMPARE(place(&VexManager::skeletons), 7);
        QCOMPARE(place(&VexManager::propertyWidgets), 8);
        QCOMPARE(place(&VexManager::insertWidgets), 9);
        QCOMPARE(place(&VexManager::icons), 10);
        QCOMPARE(place(&VexManager::titles), 11);
        QCOMPARE(place(&VexManager::extras), 12);
        QCOMPARE(sizeof(VexManager), 13 * sizeof(void*));
    }
};

QTEST_MAIN(TestInstructionLayout)
#include "tst_instruction_layout.moc"
