#include "registrylines.h"

#include "kite/vexbasewidget.h"
#include "kite/vexmanager.h"

#include <QLayout>
#include <QPointer>
#include <QTest>

#include <functional>
#include <memory>
#include <stdexcept>

using kite::ContentFactory;
using kite::VexBaseWidget;
using kite::VexContentBase;
using kite::VexManager;

namespace {

// Says who made it.
class Named : public VexContentBase {
public:
    explicit Named(const QString& name) { setObjectName(name); }
};

ContentFactory makes(const QString& name) {
    return [name] { return new Named(name); };
}

// A factory that counts its living copies.
struct Counted {
    std::shared_ptr<int> token;
    VexContentBase* operator()() const { return new Named(QStringLiteral("counted")); }
};

} // namespace

/// Which of the two widgets of an instruction: how it is registered, and where the host finds it.
struct Place {
    void (VexManager::*regist)(const QString&, ContentFactory);
    QHash<QString, helm::WidgetCreator> helm::VexManager::*creators;

    void enter(const QString& type, const ContentFactory& factory) const {
        VexManager manager(nullptr);
        (manager.*regist)(type, factory);
    }
    helm::WidgetCreator creator(const QString& type) const {
        return (helm::VexManager::getVexManager()->*creators).value(type);
    }
    /// The object name of what stands in the widget.
    QString made(const QString& type) const {
        const std::unique_ptr<helm::BaseContentWidget> widget(creator(type)(nullptr));
        const auto* content = widget->findChild<VexContentBase*>(QString(), Qt::FindDirectChildrenOnly);
        return content ? content->objectName() : QString();
    }
};
Q_DECLARE_METATYPE(Place)

// What the host gets when it calls a creator from the registry.
class TestCreators : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { emptyRegistry(); }
    void theWidgetIsAWrapperUnderItsParent_data() { places(); }
    void theWidgetIsAWrapperUnderItsParent();
    void everyCallMakesANewWidgetAndContent_data() { places(); }
    void everyCallMakesANewWidgetAndContent();
    void registeringCallsNoFactory_data() { places(); }
    void registeringCallsNoFactory();
    void theRegistryKeepsACopyOfTheFactory_data() { places(); }
    void theRegistryKeepsACopyOfTheFactory();
    void aLaterFactoryReplacesTheEarlierOne_data() { places(); }
    void aLaterFactoryReplacesTheEarlierOne();
    void anEmptyFactoryFailsWhenItIsCalled_data() { places(); }
    void anEmptyFactoryFailsWhenItIsCalled();
    void aFactoryThatReturnsNothingMakesAnEmptyWidget_data() { places(); }
    void aFactoryThatReturnsNothingMakesAnEmptyWidget();
    void whatAFactoryThrowsReachesTheHost_data() { places(); }
    void whatAFactoryThrowsReachesTheHost();
    void contentHandedOutTwiceGoesOverToTheLaterWidget_data() { places(); }
    void contentHandedOutTwiceGoesOverToTheLaterWidget();
    void aFactoryMayRegisterItsTypeAnewWhileItIsCalled_data() { places(); }
    void aFactoryMayRegisterItsTypeAnewWhileItIsCalled();
    void aFactoryWithAStateStartsAnewOnEveryCall_data() { places(); }
    void aFactoryWithAStateStartsAnewOnEveryCall();
    void createDataKeepsTheTwoFactoriesApart();
    void createDataTakesEmptyFactories();

private:
    static void places();
};

void TestCreators::places() {
    QTest::addColumn<Place>("place");
    QTest::newRow("insert") << Place{&VexManager::createInsertWidget, &helm::VexManager::insertWidgets};
    QTest::newRow("property") << Place{&VexManager::createPropertyWidget, &helm::VexManager::propertyWidgets};
}

void TestCreators::theWidgetIsAWrapperUnderItsParent() {
    QFETCH(Place, place);
    place.enter("A", makes("a"));
    QWidget parent;
    const QPointer<helm::BaseContentWidget> widget = place.creator("A")(&parent);
    QVERIFY(qobject_cast<VexBaseWidget*>(widget));
    QCOMPARE(widget->parentWidget(), &parent);
    const QPointer<VexContentBase> content = widget->findChild<VexContentBase*>("a");
    QVERIFY(content);
    QCOMPARE(content->parentWidget(), widget.data());
    delete widget;
    QVERIFY(content.isNull());
}

void TestCreators::everyCallMakesANewWidgetAndContent() {
    QFETCH(Place, place);
    place.enter("A", makes("a"));
    QWidget parent;
    const helm::WidgetCreator creator = place.creator("A");
    QVERIFY(creator(&parent) != creator(&parent));
    QCOMPARE(parent.findChildren<VexBaseWidget*>().size(), 2);
    QCOMPARE(parent.findChildren<VexContentBase*>("a").size(), 2);
}

void TestCreators::registeringCallsNoFactory() {
    QFETCH(Place, place);
    int calls = 0;
    place.enter("A", [&calls] {
        ++calls;
        return new Named("a");
    });
    QCOMPARE(calls, 0);
    QCOMPARE(place.made("A"), QString("a"));
    QCOMPARE(calls, 1);
}

void TestCreators::theRegistryKeepsACopyOfTheFactory() {
    QFETCH(Place, place);
    const auto token = std::make_shared<int>(0);
    ContentFactory factory = Counted{token};
    place.enter("A", factory);
    factory = makes("another");
    QCOMPARE(token.use_count(), 2L);
    QCOMPARE(place.made("A"), QString("counted"));
    const helm::WidgetCreator copy = place.creator("A");
    emptyRegistry();
    const std::unique_ptr<QWidget> widget(copy(nullptr));
    QVERIFY(widget->findChild<QWidget*>("counted"));
}

void TestCreators::aLaterFactoryReplacesTheEarlierOne() {
    QFETCH(Place, place);
    const auto token = std::make_shared<int>(0);
    place.enter("A", Counted{token});
    place.enter("B", makes("b"));
    place.enter("A", makes("later"));
    QCOMPARE(place.made("A"), QString("later"));
    QCOMPARE(place.made("B"), QString("b"));
    QCOMPARE(token.use_count(), 1L);
}

void TestCreators::anEmptyFactoryFailsWhenItIsCalled() {
    QFETCH(Place, place);
    place.enter("A", ContentFactory());
    QVERIFY(place.creator("A"));
    QWidget parent;
    QVERIFY_EXCEPTION_THROWN(place.creator("A")(&parent), std::bad_function_call);
    QVERIFY(parent.children().isEmpty());
}

void TestCreators::aFactoryThatReturnsNothingMakesAnEmptyWidget() {
    QFETCH(Place, place);
    place.enter("A", [] { return nullptr; });
    QWidget parent;
    helm::BaseContentWidget* widget = place.creator("A")(&parent);
    QVERIFY(qobject_cast<VexBaseWidget*>(widget));
    QVERIFY(widget->children().isEmpty());
    QVERIFY(widget->CheckInsert());
    QVERIFY(widget->CheckReplace());
}

void TestCreators::whatAFactoryThrowsReachesTheHost() {
    QFETCH(Place, place);
    bool throws = true;
    place.enter("A", [&throws]() -> VexContentBase* {
        if (throws)
            throw std::runtime_error("no gripper");
        return new Named("a");
    });
    QWidget parent;
    QVERIFY_EXCEPTION_THROWN(place.creator("A")(&parent), std::runtime_error);
    QVERIFY(parent.children().isEmpty());
    throws = false;
    QCOMPARE(place.made("A"), QString("a"));
}

void TestCreators::contentHandedOutTwiceGoesOverToTheLaterWidget() {
    QFETCH(Place, place);
    const QPointer<VexContentBase> only(new Named("only"));
    place.enter("A", [&only] { return only.data(); });
    QWidget parent;
    helm::BaseContentWidget* first = place.creator("A")(&parent);
    helm::BaseContentWidget* second = place.creator("A")(&parent);
    QCOMPARE(only->parentWidget(), second);
    QCOMPARE(first->layout()->count(), 0);
    delete second;
    QVERIFY(only.isNull());
    QVERIFY(first->CheckInsert());
    first->FillWith("A");
}

// The host may call the creator where it stands in the registry.
void TestCreators::aFactoryMayRegisterItsTypeAnewWhileItIsCalled() {
    QFETCH(Place, place);
    auto token = std::make_shared<int>(0);
    const std::weak_ptr<int> held = token;
    bool isHeldAfterwards = false;
    place.enter("A", [place, token = std::move(token), &held, &isHeldAfterwards] {
        bool* const told = &isHeldAfterwards;
        const std::weak_ptr<int>* const watched = &held;
        place.enter("A", makes("later"));
        *told = !watched->expired();
        return new Named(QStringLiteral("first"));
    });
    const std::unique_ptr<QWidget> widget((helm::VexManager::getVexManager()->*place.creators)["A"](nullptr));
    QVERIFY(isHeldAfterwards);
    QVERIFY(widget->findChild<QWidget*>("first"));
    QVERIFY(held.expired());
    QCOMPARE(place.made("A"), QString("later"));
}

void TestCreators::aFactoryWithAStateStartsAnewOnEveryCall() {
    QFETCH(Place, place);
    place.enter("A", [calls = 0]() mutable { return new Named(QString::number(++calls)); });
    auto& creators = helm::VexManager::getVexManager()->*place.creators;
    for (int i = 0; i < 2; ++i) {
        const std::unique_ptr<QWidget> widget(creators["A"](nullptr));
        QVERIFY(widget->findChild<QWidget*>("1"));
    }
    QCOMPARE(place.made("A"), QString("1"));
}

void TestCreators::createDataKeepsTheTwoFactoriesApart() {
    VexManager(nullptr).createData("G", "A", "", makes("insert"), makes("property"));
    const Place insert{&VexManager::createInsertWidget, &helm::VexManager::insertWidgets};
    const Place property{&VexManager::createPropertyWidget, &helm::VexManager::propertyWidgets};
    QCOMPARE(insert.made("A"), QString("insert"));
    QCOMPARE(property.made("A"), QString("property"));
}

void TestCreators::createDataTakesEmptyFactories() {
    VexManager(nullptr).createData("G", "A", "", nullptr, {});
    const helm::VexManager& registry = *helm::VexManager::getVexManager();
    QVERIFY_EXCEPTION_THROWN(registry.insertWidgets.value("A")(nullptr), std::bad_function_call);
    QVERIFY_EXCEPTION_THROWN(registry.propertyWidgets.value("A")(nullptr), std::bad_function_call);
}

QTEST_MAIN(TestCreators)
#include "tst_vexmanager_creators.moc"
