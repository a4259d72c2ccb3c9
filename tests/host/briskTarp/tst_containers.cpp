#include "tarp/containers.h"

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using tarp::CenterWidget;
using tarp::ExpandSideBar;
using tarp::StatusBar;

class TestContainers : public QObject {
    Q_OBJECT

private slots:
    void thereIsNoContainerBeforeOneIsMadeAndAfterItIsGone();
    void theNewestContainerIsTheOneThatIsFound();

    void centerTakesAPageOverAndShowsItOnlyWhenToldTo();
    void centerRefusesNullAndAKeyThatIsTaken();
    void centerShowsOnePageAtATime();
    void centerTellsWhichPageCameAfterWhich();
    void centerSaysFalseForAPageItDoesNotHave();
    void centerDeletesARemovedPageWhenControlIsBackInTheEventLoop();
    void centerHandsARemovedPageBackWithoutAParent();
    void centerShowsThePageBeforeWhenTheCurrentOneIsRemoved();
    void centerForgetsAPageThatIsDeletedFromOutside();
    void centerHasNoCurrentPageWhenTheLastIsGone();
    void centerKnowsTheOwnerOfAPageAslongAsItLives();
    void centerGivesAPageItsPlaceBackThatWasAWindowForAWhile();
    void centerOutlivedByNoneOfItsPages();
    void centerLetsASlotRemoveThePageThatItIsToldOf();

    void statusBarKeepsItsItemsInOrder();
    void statusBarInsertsBeforeTheItemThatIsNamed();
    void statusBarRefusesNullTakenKeysAndUnknownPlaces();
    void statusBarForgetsAnItemThatIsDeletedFromOutside();
    void statusBarTakesAnItemOnce();
    void statusBarKeepsThePlaceWhenAnItemHasBeenTakenElsewhere();

    void sideBarIsHiddenUntilSomeoneShowsIt();
    void sideBarShowsItsFirstPageFirst();
    void sideBarSwitchesWithoutOpening();
    void sideBarRefusesNullTakenKeysAndUnknownPages();
    void sideBarTellsOfOpeningAndClosingOnce();
    void sideBarStaysOpenWhileItsWindowIsHidden();
    void sideBarForgetsAPageThatIsDeletedFromOutside();
};

void TestContainers::thereIsNoContainerBeforeOneIsMadeAndAfterItIsGone() {
    QVERIFY(!instantiatedCenterWidget());
    QVERIFY(!instantiatedStatusBar(nullptr));
    QVERIFY(!instantiatedRightExpandSideWidget());
    {
        CenterWidget center;
        StatusBar statusBar;
        ExpandSideBar sideBar;
        QCOMPARE(instantiatedCenterWidget(), &center);
        QCOMPARE(instantiatedStatusBar(this), &statusBar);
        QCOMPARE(instantiatedRightExpandSideWidget(this), &sideBar);
    }
    QVERIFY(!instantiatedCenterWidget());
    QVERIFY(!instantiatedStatusBar(nullptr));
    QVERIFY(!instantiatedRightExpandSideWidget());
}

void TestContainers::theNewestContainerIsTheOneThatIsFound() {
    CenterWidget first;
    {
        CenterWidget second;
        QCOMPARE(instantiatedCenterWidget(), &second);
    }
    QCOMPARE(instantiatedCenterWidget(), &first);
}

void TestContainers::centerTakesAPageOverAndShowsItOnlyWhenToldTo() {
    CenterWidget center;
    center.show();
    auto* page = new QWidget;
    QVERIFY(center.addPage(this, "weld", page));
    QCOMPARE(page->parentWidget(), &center);
    QCOMPARE(center.page("weld"), page);
    QCOMPARE(center.current(), QString());
    QVERIFY(!page->isVisible());
    QVERIFY(center.switchTo(this, "weld"));
    QCOMPARE(center.current(), QString("weld"));
    QVERIFY(page->isVisible());
}

void TestContainers::centerRefusesNullAndAKeyThatIsTaken() {
    CenterWidget center;
    QWidget other;
    QVERIFY(center.addPage(this, "weld", new QWidget));
    QVERIFY(!center.addPage(this, "weld", &other));
    QVERIFY(!other.parentWidget());
    QVERIFY(!center.addPage(this, "hello", nullptr));
    QCOMPARE(center.keys(), QStringList{"weld"});
}

void TestContainers::centerShowsOnePageAtATime() {
    CenterWidget center;
    auto* a = new QWidget;
    auto* b = new QWidget;
    center.addPage(this, "a", a);
    center.addPage(this, "b", b);
    center.resize(300, 200);
    center.show();
    center.switchTo(this, "a");
    center.switchTo(this, "b");
    QVERIFY(a->isHidden());
    QVERIFY(b->isVisible());
    QTRY_COMPARE(b->size(), QSize(300, 200));
}

void TestContainers::centerTellsWhichPageCameAfterWhich() {
    CenterWidget center;
    center.addPage(this, "a", new QWidget);
    center.addPage(this, "b", new QWidget);
    QSignalSpy changed(&center, &CenterWidget::currentChanged);
    center.switchTo(this, "a");
    center.switchTo(this, "b");
    center.switchTo(this, "b");
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.at(0), QVariantList({"a", ""}));
    QCOMPARE(changed.at(1), QVariantList({"b", "a"}));
}

void TestContainers::centerSaysFalseForAPageItDoesNotHave() {
    CenterWidget center;
    center.addPage(this, "a", new QWidget);
    center.switchTo(this, "a");
    QVERIFY(!center.switchTo(this, "b"));
    QVERIFY(!center.switchTo(this, ""));
    QVERIFY(!center.removeItem(this, "b", true));
    QCOMPARE(center.current(), QString("a"));
    QVERIFY(!center.page("b"));
}

void TestContainers::centerDeletesARemovedPageWhenControlIsBackInTheEventLoop() {
    CenterWidget center;
    QPointer<QWidget> page = new QWidget;
    center.addPage(this, "a", page);
    QVERIFY(center.removeItem(this, "a", true));
    QVERIFY(!center.page("a"));
    QVERIFY(page);
    QVERIFY(page->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!page);
}

void TestContainers::centerHandsARemovedPageBackWithoutAParent() {
    CenterWidget center;
    QWidget page;
    center.addPage(this, "a", &page);
    center.switchTo(this, "a");
    QVERIFY(center.removeItem(this, "a", false));
    QVERIFY(!page.parentWidget());
    QVERIFY(page.isHidden());
    QVERIFY(center.keys().isEmpty());
    QVERIFY(center.addPage(this, "a", &page));
    page.setParent(nullptr);
}

void TestContainers::centerShowsThePageBeforeWhenTheCurrentOneIsRemoved() {
    CenterWidget center;
    for (const char* key : {"a", "b", "c"})
        center.addPage(this, key, new QWidget);
    center.switchTo(this, "a");
    center.switchTo(this, "c");
    center.switchTo(this, "b");
    QSignalSpy removed(&center, &CenterWidget::pageRemoved);
    center.removeItem(this, "b", true);
    QCOMPARE(center.current(), QString("c"));
    QCOMPARE(removed, (QList<QVariantList>{{"b"}}));
    center.removeItem(this, "a", true);
    QCOMPARE(center.current(), QString("c"));
}

void TestContainers::centerForgetsAPageThatIsDeletedFromOutside() {
    CenterWidget center;
    auto* a = new QWidget;
    center.addPage(this, "a", a);
    center.addPage(this, "b", new QWidget);
    center.show();
    center.switchTo(this, "b");
    center.switchTo(this, "a");
    QSignalSpy changed(&center, &CenterWidget::currentChanged);
    QSignalSpy removed(&center, &CenterWidget::pageRemoved);
    delete a;
    QCOMPARE(center.keys(), QStringList{"b"});
    QCOMPARE(changed, (QList<QVariantList>{{"b", "a"}}));
    QCOMPARE(removed, (QList<QVariantList>{{"a"}}));
    QVERIFY(center.page("b")->isVisible());
}

void TestContainers::centerHasNoCurrentPageWhenTheLastIsGone() {
    CenterWidget center;
    center.addPage(this, "a", new QWidget);
    center.switchTo(this, "a");
    QSignalSpy changed(&center, &CenterWidget::currentChanged);
    center.removeItem(this, "a", true);
    QCOMPARE(center.current(), QString());
    QCOMPARE(changed, (QList<QVariantList>{{"", "a"}}));
}

void TestContainers::centerKnowsTheOwnerOfAPageAslongAsItLives() {
    CenterWidget center;
    {
        QObject module;
        center.addPage(&module, "a", new QWidget);
        QCOMPARE(center.owner("a"), &module);
    }
    QVERIFY(!center.owner("a"));
    QVERIFY(!center.owner("b"));
    QVERIFY(center.page("a"));
}

void TestContainers::centerGivesAPageItsPlaceBackThatWasAWindowForAWhile() {
    CenterWidget center;
    auto* page = new QWidget;
    center.addPage(this, "a", page);
    center.resize(300, 200);
    center.show();
    center.switchTo(this, "a");
    page->setParent(nullptr);
    page->setParent(&center);
    page->show();
    center.resize(400, 240);
    QTRY_COMPARE(page->size(), QSize(400, 240));
    QCOMPARE(center.layout()->count(), 1);
}

void TestContainers::centerOutlivedByNoneOfItsPages() {
    QPointer<QWidget> shown = new QWidget;
    QPointer<QWidget> hidden = new QWidget;
    QPointer<QWidget> removed = new QWidget;
    {
        CenterWidget center;
        center.addPage(this, "shown", shown);
        center.addPage(this, "hidden", hidden);
        center.addPage(this, "removed", removed);
        center.switchTo(this, "shown");
        center.removeItem(this, "removed", true);
    }
    QVERIFY(!shown && !hidden && !removed);
}

void TestContainers::centerLetsASlotRemoveThePageThatItIsToldOf() {
    CenterWidget center;
    center.addPage(this, "a", new QWidget);
    center.addPage(this, "b", new QWidget);
    center.switchTo(this, "a");
    connect(&center, &CenterWidget::currentChanged, &center, [&](const QString& key) {
        if (key == "b")
            center.removeItem(this, "b", true);
    });
    QVERIFY(center.switchTo(this, "b"));
    QCOMPARE(center.current(), QString("a"));
    QCOMPARE(center.keys(), QStringList{"a"});
}

void TestContainers::statusBarKeepsItsItemsInOrder() {
    StatusBar bar;
    auto* a = new QLabel("a");
    QVERIFY(bar.addItem(this, "a", a));
    QVERIFY(bar.addItem(this, "b", new QLabel("b"), 1));
    QCOMPARE(bar.keys(), QStringList({"a", "b"}));
    QCOMPARE(bar.item("a"), a);
    QCOMPARE(a->parentWidget(), &bar);
    QVERIFY(!bar.item("c"));
}

void TestContainers::statusBarInsertsBeforeTheItemThatIsNamed() {
    StatusBar bar;
    bar.addItem(this, "left", new QLabel("left"));
    bar.addItem(this, "stretch", new QWidget, 1);
    QVERIFY(bar.addBeforeItem(this, "x", "stretch", new QLabel("x")));
    QVERIFY(bar.addBeforeItem(this, "y", "stretch", new QLabel("y")));
    QCOMPARE(bar.keys(), QStringList({"left", "x", "y", "stretch"}));
    bar.resize(400, 40);
    bar.show();
    QTRY_VERIFY(bar.item("x")->x() > bar.item("left")->x());
    QVERIFY(bar.item("y")->x() > bar.item("x")->x());
    QVERIFY(bar.item("stretch")->x() > bar.item("y")->x());
}

void TestContainers::statusBarRefusesNullTakenKeysAndUnknownPlaces() {
    StatusBar bar;
    bar.addItem(this, "a", new QLabel);
    QLabel label;
    QVERIFY(!bar.addItem(this, "b", nullptr));
    QVERIFY(!bar.addItem(this, "a", &label));
    QVERIFY(!bar.addBeforeItem(this, "b", "a", nullptr));
    QVERIFY(!bar.addBeforeItem(this, "a", "a", &label));
    QVERIFY(!bar.addBeforeItem(this, "b", "nowhere", &label));
    QVERIFY(!label.parentWidget());
    QCOMPARE(bar.keys(), QStringList{"a"});
}

void TestContainers::statusBarTakesAnItemOnce() {
    StatusBar bar;
    bar.addItem(this, "stretch", new QLabel);
    auto* item = new QLabel;
    QVERIFY(bar.addBeforeItem(this, "a", "stretch", item));
    QVERIFY(!bar.addBeforeItem(this, "b", "stretch", item));
    QVERIFY(!bar.addItem(this, "b", item));
    QCOMPARE(bar.keys(), (QStringList{"a", "stretch"}));
    QCOMPARE(bar.layout()->count(), 2);
}

void TestContainers::statusBarKeepsThePlaceWhenAnItemHasBeenTakenElsewhere() {
    StatusBar bar;
    auto* stretch = new QLabel;
    bar.addItem(this, "stretch", stretch);
    QLabel elsewhere;
    bar.addBeforeItem(this, "a", "stretch", &elsewhere);
    elsewhere.setParent(nullptr);
    auto* item = new QLabel;
    QVERIFY(bar.addBeforeItem(this, "b", "stretch", item));
    QVERIFY(bar.layout()->indexOf(item) < bar.layout()->indexOf(stretch));
}

void TestContainers::statusBarForgetsAnItemThatIsDeletedFromOutside() {
    StatusBar bar;
    auto* b = new QLabel;
    bar.addItem(this, "a", new QLabel);
    bar.addItem(this, "b", b);
    bar.addItem(this, "c", new QLabel);
    delete b;
    QCOMPARE(bar.keys(), QStringList({"a", "c"}));
    QVERIFY(bar.addBeforeItem(this, "b", "c", new QLabel));
    QCOMPARE(bar.keys(), QStringList({"a", "b", "c"}));
}

void TestContainers::sideBarIsHiddenUntilSomeoneShowsIt() {
    QWidget window;
    ExpandSideBar bar(&window);
    window.show();
    QVERIFY(bar.isHidden());
    bar.addPage(this, "a", new QWidget);
    QVERIFY(bar.isHidden());
    bar.show();
    QVERIFY(bar.isVisible());
}

void TestContainers::sideBarShowsItsFirstPageFirst() {
    ExpandSideBar bar;
    QSignalSpy pages(&bar, &ExpandSideBar::pagesChanged);
    bar.addPage(this, "a", new QWidget);
    bar.addPage(this, "b", new QWidget);
    QCOMPARE(bar.current(), QString("a"));
    QCOMPARE(bar.keys(), QStringList({"a", "b"}));
    QCOMPARE(bar.owner("a"), this);
    QCOMPARE(pages.size(), 2);
}

void TestContainers::sideBarSwitchesWithoutOpening() {
    ExpandSideBar bar;
    bar.addPage(this, "a", new QWidget);
    bar.addPage(this, "b", new QWidget);
    QSignalSpy changed(&bar, &ExpandSideBar::currentChanged);
    QVERIFY(bar.switchTo(this, "b"));
    QVERIFY(bar.switchTo(this, "b"));
    QCOMPARE(bar.current(), QString("b"));
    QCOMPARE(changed, (QList<QVariantList>{{"b"}}));
    QVERIFY(bar.isHidden());
}

void TestContainers::sideBarRefusesNullTakenKeysAndUnknownPages() {
    ExpandSideBar bar;
    QWidget page;
    bar.addPage(this, "a", new QWidget);
    QVERIFY(!bar.addPage(this, "a", &page));
    QVERIFY(!bar.addPage(this, "b", nullptr));
    QVERIFY(!bar.switchTo(this, "b"));
    QVERIFY(!page.parentWidget());
    QVERIFY(!bar.page("b"));
    QVERIFY(!bar.owner("b"));
}

void TestContainers::sideBarTellsOfOpeningAndClosingOnce() {
    QWidget window;
    ExpandSideBar bar(&window);
    window.show();
    QSignalSpy open(&bar, &ExpandSideBar::openChanged);
    bar.show();
    bar.show();
    bar.hide();
    bar.hide();
    QCOMPARE(open, (QList<QVariantList>{{true}, {false}}));
}

void TestContainers::sideBarStaysOpenWhileItsWindowIsHidden() {
    QWidget window;
    ExpandSideBar bar(&window);
    window.show();
    bar.show();
    QSignalSpy open(&bar, &ExpandSideBar::openChanged);
    window.hide();
    window.show();
    QCOMPARE(open.size(), 0);
    QVERIFY(bar.isVisible());
}

void TestContainers::sideBarForgetsAPageThatIsDeletedFromOutside() {
    ExpandSideBar bar;
    auto* a = new QWidget;
    bar.addPage(this, "a", a);
    bar.addPage(this, "b", new QWidget);
    QSignalSpy pages(&bar, &ExpandSideBar::pagesChanged);
    delete a;
    QCOMPARE(bar.current(), QString("b"));
    QCOMPARE(bar.keys(), QStringList{"b"});
    QCOMPARE(pages.size(), 1);
    delete bar.page("b");
    QCOMPARE(bar.current(), QString());
}

QTEST_MAIN(TestContainers)
#include "tst_containers.moc"
