#include "vtable.h"

#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "kite/kitemodule.h"
#include "kite/pluginsettingpage.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QTest>

#include <functional>
#include <memory>

using kite::Kite;
using kite::PluginSettingPage;

namespace {

// Does what a test wants when it becomes a window and when it is put back.
class Reacting : public QLabel {
public:
    std::function<void()> whenLiftedOut;
    std::function<void()> whenPutBack;
    QSize sizeWhenShown;

protected:
    bool event(QEvent* event) override {
        const auto type = event->type();
        const bool accepted = QLabel::event(event);
        if (type == QEvent::Show)
            sizeWhenShown = size();
        // A copy: the deed may put another in its place.
        const auto deed = parentWidget() ? whenPutBack : whenLiftedOut;
        if (type == QEvent::ParentChange && deed)
            deed();
        return accepted;
    }
};

} // namespace

class TestPluginSettingPage : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log.reset(new pendanttest::LogWatch);
        m_frame.reset(new pendanttest::Frame);
        m_owner.reset(new QObject);
        m_page = new PluginSettingPage("kite", "weld", m_frame->center(), m_owner.get());
    }

    void cleanup() {
        m_owner.reset();
        m_frame.reset();
        pendanttest::resetHost();
        m_log.reset();
        QVERIFY(strayWindows().isEmpty());
    }

    void aNewPageShowsAnEmptyContentWithoutATitle() {
        QCOMPARE(m_page->name(), QString("kite"));
        QCOMPARE(m_page->parent(), m_owner.get());
        QCOMPARE(m_page->wgt()->parentWidget(), m_frame->center());
        QVERIFY(m_page->titleWgt()->isHidden());
        auto* layout = qobject_cast<QHBoxLayout*>(m_page->contentWgt()->layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->count(), 0);
    }

    void theTitleStaysHiddenWhenThePageIsShown() {
        m_frame->center()->addPage(nullptr, "kite.weld", m_page->wgt());
        m_frame->center()->switchTo(nullptr, "kite.weld");
        QVERIFY(m_page->contentWgt()->isVisible());
        QVERIFY(!m_page->titleWgt()->isVisible());
    }

    void theMetaObjectHasTheFullName() {
        QCOMPARE(PluginSettingPage::staticMetaObject.className(), "kite::PluginSettingPage");
        QCOMPARE(PluginSettingPage::staticMetaObject.superClass(), &helm::BaseSettingPage::staticMetaObject);
    }

    void thePageOverridesNothingOfTheHostsPage() {
        const helm::BaseSettingPage base("kite", "weld", nullptr, nullptr);
        const std::ptrdiff_t first = vtable::slotOf(&tarp::BModule::name);
        const std::ptrdiff_t last = vtable::slotOf(&tarp::BModule::beforeDetach);
        for (std::ptrdiff_t slot = first; slot <= last; ++slot)
            QCOMPARE(vtable::entry(m_page, slot), vtable::entry(&base, slot));
    }

    void theCentreWidgetFillsTheContent() {
        auto* widget = new QLabel("seam");
        m_page->createCenterWidget(widget);
        QCOMPARE(widget->parentWidget(), m_page->contentWgt());
        QCOMPARE(layout()->count(), 1);
        showPage();
        QCOMPARE(widget->geometry(), m_page->contentWgt()->rect());
        QVERIFY(widget->isVisible());
    }

    void nullIsNoCentreWidget() {
        m_page->createCenterWidget(nullptr);
        QCOMPARE(layout()->count(), 0);
        QVERIFY(!m_page->changeFullWidget(true));
    }

    void withoutACentreWidgetFullScreenIsRefusedWithoutAWord() {
        QVERIFY(!m_page->changeFullWidget(true));
        QVERIFY(!m_page->changeFullWidget(false));
        QVERIFY(m_log->lines().isEmpty());
    }

    void theStateThatIsThereIsRefusedWithALine_data() {
        QTest::addColumn<bool>("full");
        QTest::addColumn<QString>("text");
        QTest::newRow("embedded") << false << "Current FullWidget Type isfalse! Change Failed!";
        QTest::newRow("full screen") << true << "Current FullWidget Type istrue! Change Failed!";
    }

    void theStateThatIsThereIsRefusedWithALine() {
        QFETCH(bool, full);
        QFETCH(QString, text);
        m_page->createCenterWidget(new QLabel);
        if (full)
            QVERIFY(m_page->changeFullWidget(true));
        m_log->forgetLines();
        m_log->expect(text);
        QVERIFY(!m_page->changeFullWidget(full));
        QCOMPARE(m_log->lines().size(), 1);
        QVERIFY(m_log->lines().first().startsWith("\x1b[31m[E|"));
        QCOMPARE(m_page->changeFullWidget(!full), true);
    }

    void fullScreenIsAFramelessWindowOnTopOfEverything() {
        auto* widget = new QLabel("seam");
        m_page->createCenterWidget(widget);
        showPage();
        QVERIFY(m_page->changeFullWidget(true));
        QCOMPARE(widget->parentWidget(), static_cast<QWidget*>(nullptr));
        QVERIFY(widget->isWindow());
        QVERIFY(widget->isVisible());
        // Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
        QCOMPARE(uint(widget->windowFlags()), 0x4080Bu);
        QCOMPARE(widget->geometry(), QGuiApplication::primaryScreen()->geometry());
        QCOMPARE(layout()->count(), 0);
    }

    void fullScreenAlsoWorksWhileThePageIsNotShown() {
        auto* widget = new QLabel("seam");
        m_page->createCenterWidget(widget);
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(widget->isVisible());
    }

    void theWayBackRestoresParentFlagsAndSheet() {
        auto* widget = new QLabel("seam");
        widget->setStyleSheet("color: red;");
        m_page->createCenterWidget(widget);
        showPage();
        const Qt::WindowFlags flags = widget->windowFlags();
        QVERIFY(m_page->changeFullWidget(true));
        QCOMPARE(widget->styleSheet(), QString("color: red;"));
        widget->setStyleSheet("color: blue;");
        QVERIFY(m_page->changeFullWidget(false));
        QCOMPARE(widget->parentWidget(), m_page->contentWgt());
        QCOMPARE(widget->windowFlags(), flags);
        QCOMPARE(widget->styleSheet(), QString("color: red;"));
        QCOMPARE(layout()->count(), 1);
        QCOMPARE(layout()->itemAt(0)->widget(), widget);
        QVERIFY(widget->isVisible());
        QVERIFY(!widget->isWindow());
        QTRY_COMPARE(widget->geometry(), m_page->contentWgt()->rect());
    }

    void theWayBackRestoresFlagsOfTheWidgetsOwn() {
        auto* widget = new QLabel("seam");
        m_page->createCenterWidget(widget);
        widget->setWindowFlags(Qt::Widget | Qt::CustomizeWindowHint);
        const Qt::WindowFlags flags = widget->windowFlags();
        QVERIFY(flags.testFlag(Qt::CustomizeWindowHint));
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(!widget->windowFlags().testFlag(Qt::CustomizeWindowHint));
        QVERIFY(m_page->changeFullWidget(false));
        QCOMPARE(widget->windowFlags(), flags);
    }

    void withoutALayoutTheWayBackLeadsToTheFormerParent() {
        auto* widget = new QLabel("seam");
        m_page->createCenterWidget(widget);
        auto* box = new QWidget(m_page->contentWgt());
        widget->setParent(box);
        delete layout();
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(m_page->changeFullWidget(false));
        QCOMPARE(widget->parentWidget(), box);
    }

    void withoutALayoutTheContentTakesTheCentreWidgetAllTheSame() {
        delete layout();
        auto* widget = new QLabel("seam");
        m_page->createCenterWidget(widget);
        QCOMPARE(widget->parentWidget(), m_page->contentWgt());
    }

    void fullScreenIsTheActiveWindow() {
        auto* widget = new QLabel("seam");
        m_page->createCenterWidget(widget);
        showPage();
        QVERIFY(m_page->changeFullWidget(true));
        QTRY_VERIFY(widget->isActiveWindow());
    }

    void fullScreenCanBeEnteredAgainAndAgain() {
        auto* widget = new QLabel("seam");
        m_page->createCenterWidget(widget);
        showPage();
        for (int i = 0; i < 5; ++i) {
            QVERIFY(m_page->changeFullWidget(true));
            QVERIFY(m_page->changeFullWidget(false));
        }
        QCOMPARE(layout()->count(), 1);
        QCOMPARE(widget->parentWidget(), m_page->contentWgt());
    }

    void ofTwoCentreWidgetsBothAreShownAndTheLastIsTheCentreWidget() {
        auto* first = new QLabel("first");
        auto* second = new QLabel("second");
        m_page->createCenterWidget(first);
        m_page->createCenterWidget(second);
        QCOMPARE(layout()->count(), 2);
        showPage();
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(second->isWindow());
        QVERIFY(first->isVisible());
        QCOMPARE(first->parentWidget(), m_page->contentWgt());
        QCOMPARE(layout()->indexOf(first), 0);
        QCOMPARE(layout()->count(), 1);

        QVERIFY(m_page->changeFullWidget(false));
        QCOMPARE(layout()->indexOf(first), 0);
        QCOMPARE(layout()->indexOf(second), 1);
        QCOMPARE(layout()->count(), 2);
    }

    void ofTwoCentreWidgetsNeitherIsLostOrDeletedTwice_data() {
        QTest::addColumn<bool>("full");
        QTest::newRow("embedded") << false;
        QTest::newRow("full screen") << true;
    }

    void ofTwoCentreWidgetsNeitherIsLostOrDeletedTwice() {
        QFETCH(bool, full);
        const QPointer<QLabel> first(new QLabel("first"));
        const QPointer<QLabel> second(new QLabel("second"));
        m_page->createCenterWidget(first);
        m_page->createCenterWidget(second);
        if (full)
            QVERIFY(m_page->changeFullWidget(true));
        m_owner.reset();
        QVERIFY(first.isNull());
        QVERIFY(second.isNull());
    }

    void aSecondCentreWidgetWhileFullScreenLeavesNoOrphan() {
        const QPointer<QLabel> first(new QLabel("first"));
        const QPointer<QLabel> second(new QLabel("second"));
        m_page->createCenterWidget(first);
        showPage();
        QVERIFY(m_page->changeFullWidget(true));
        m_page->createCenterWidget(second);
        QCOMPARE(layout()->indexOf(first), 0);
        QCOMPARE(layout()->indexOf(second), 1);
        QVERIFY(!first->isWindow() && !second->isWindow());
        m_owner.reset();
        QVERIFY(first.isNull());
        QVERIFY(second.isNull());
        QVERIFY(strayWindows().isEmpty());
    }

    void aCentreWidgetThatLiftsItselfOutAgainIsNoOrphan() {
        const QPointer<Reacting> first(new Reacting);
        m_page->createCenterWidget(first);
        showPage();
        QVERIFY(m_page->changeFullWidget(true));
        bool isBackOutAgain = false;
        first->whenPutBack = [&] {
            first->whenPutBack = nullptr;
            isBackOutAgain = m_page->changeFullWidget(true);
        };
        m_page->createCenterWidget(new QLabel("second"));
        QVERIFY(isBackOutAgain);
        QVERIFY(first && !first->isWindow());
        m_owner.reset();
        QVERIFY(first.isNull());
        QVERIFY(strayWindows().isEmpty());
    }

    void fullScreenHasItsSizeWhenItIsShown() {
        auto* widget = new Reacting;
        m_page->createCenterWidget(widget);
        showPage();
        QVERIFY(m_page->changeFullWidget(true));
        QCOMPARE(widget->sizeWhenShown, QGuiApplication::primaryScreen()->geometry().size());
    }

    void theSameCentreWidgetTwiceIsOne() {
        const QPointer<QLabel> widget(new QLabel("seam"));
        m_page->createCenterWidget(widget);
        m_page->createCenterWidget(widget);
        QCOMPARE(layout()->count(), 1);
        showPage();
        QVERIFY(m_page->changeFullWidget(true));
        QCOMPARE(layout()->count(), 0);
        QVERIFY(m_page->changeFullWidget(false));
        QCOMPARE(layout()->count(), 1);
        m_owner.reset();
        QVERIFY(widget.isNull());
    }

    void aDeletedCentreWidgetIsForgotten() {
        auto* widget = new QLabel;
        m_page->createCenterWidget(widget);
        delete widget;
        QVERIFY(!m_page->changeFullWidget(true));
        QCOMPARE(layout()->count(), 0);
        m_page->createCenterWidget(new QLabel);
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(m_page->changeFullWidget(false));
    }

    void aCentreWidgetDeletedWhileFullScreenIsForgotten() {
        auto* widget = new QLabel;
        m_page->createCenterWidget(widget);
        QVERIFY(m_page->changeFullWidget(true));
        delete widget;
        QVERIFY(!m_page->changeFullWidget(false));
        QVERIFY(m_log->lines().isEmpty());
        auto* next = new QLabel;
        m_page->createCenterWidget(next);
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(next->isWindow());
    }

    void theFirstOfTwoDeletedDoesNotForgetTheLast() {
        auto* first = new QLabel("first");
        auto* second = new QLabel("second");
        m_page->createCenterWidget(first);
        m_page->createCenterWidget(second);
        delete first;
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(second->isWindow());
    }

    void anOlderCentreWidgetIsNotTakenForTheDeletedLast() {
        auto* first = new QLabel("first");
        auto* second = new QLabel("second");
        m_page->createCenterWidget(first);
        m_page->createCenterWidget(second);
        delete second;
        QVERIFY(!m_page->changeFullWidget(true));
        QCOMPARE(layout()->count(), 1);
        QCOMPARE(layout()->itemAt(0)->widget(), first);
    }

    void aPageThatDiesTakesItsFullScreenWindowAlong() {
        const QPointer<QLabel> widget(new QLabel);
        m_page->createCenterWidget(widget);
        QVERIFY(m_page->changeFullWidget(true));
        m_owner.reset();
        QVERIFY(widget.isNull());
        QVERIFY(strayWindows().isEmpty());
    }

    void aModuleThatDiesTakesItsFullScreenWindowAlong() {
        const QPointer<QLabel> widget(new QLabel);
        {
            Kite module("weld", nullptr);
            module.setup();
            module.createCenterWidgte(widget);
            QVERIFY(module.changeFullScreen(true));
            QVERIFY(widget->isWindow());
        }
        QVERIFY(widget.isNull());
        QVERIFY(strayWindows().isEmpty());
    }

    void aWidgetThatItsOwnerTookElsewhereIsLeftAlone() {
        const auto elsewhere = std::make_unique<QWidget>();
        const QPointer<QLabel> widget(new QLabel);
        m_page->createCenterWidget(widget);
        widget->setParent(elsewhere.get());
        m_owner.reset();
        QVERIFY(!widget.isNull());
        QCOMPARE(widget->parentWidget(), elsewhere.get());
    }

    void aPageWidgetThatGoesFirstIsSurvived() {
        const QPointer<QLabel> widget(new QLabel);
        m_page->createCenterWidget(widget);
        QVERIFY(m_page->changeFullWidget(true));
        delete m_page->wgt();
        QVERIFY(!widget.isNull());
        QLabel refused;
        m_page->createCenterWidget(&refused);
        QCOMPARE(refused.parent(), static_cast<QObject*>(nullptr));
        m_owner.reset();
        QVERIFY(widget.isNull());
    }

    void withoutAPageThereIsNoWayBackAndTheWindowGoesWithThePage() {
        const QPointer<QLabel> widget(new QLabel);
        m_page->createCenterWidget(widget);
        QVERIFY(m_page->changeFullWidget(true));
        delete m_page->wgt();
        QVERIFY(!m_page->changeFullWidget(false));
        QVERIFY(widget && widget->isWindow() && widget->isVisible());
        m_owner.reset();
        QVERIFY(widget.isNull());
    }

    void nullTakesTheCentreWidgetBackButLeavesItInThePage() {
        const QPointer<QLabel> widget(new QLabel);
        m_page->createCenterWidget(widget);
        m_page->createCenterWidget(nullptr);
        QVERIFY(!m_page->changeFullWidget(true));
        QCOMPARE(layout()->indexOf(widget), 0);
    }

    void nullWhileFullScreenPutsTheWidgetBack() {
        const QPointer<QLabel> widget(new QLabel);
        m_page->createCenterWidget(widget);
        QVERIFY(m_page->changeFullWidget(true));
        m_page->createCenterWidget(nullptr);
        QCOMPARE(widget->parentWidget(), m_page->contentWgt());
        QVERIFY(!m_page->changeFullWidget(false));
    }

    void aWidgetThatContainsThePageIsRefused() {
        m_frame->center()->addPage(nullptr, "kite.weld", m_page->wgt());
        m_frame->setObjectName("frame");
        m_log->expect("The page of a plugin cannot stand in itself: frame");
        m_page->createCenterWidget(m_frame.get());
        m_log->expect("The page of a plugin cannot stand in itself: pageContent");
        m_page->createCenterWidget(m_page->contentWgt());
        QVERIFY(!m_page->changeFullWidget(true));
        QVERIFY(m_frame->isWindow());
    }

    void aFullScreenWidgetThatSomeoneElseTookInIsLeftToThem() {
        const auto elsewhere = std::make_unique<QWidget>();
        const QPointer<QLabel> widget(new QLabel);
        m_page->createCenterWidget(widget);
        QVERIFY(m_page->changeFullWidget(true));
        widget->setParent(elsewhere.get());
        m_owner.reset();
        QVERIFY(!widget.isNull());
    }

    void aWidgetThatGoesBackWhileItIsLiftedOutIsBack() {
        auto* widget = new Reacting;
        m_page->createCenterWidget(widget);
        widget->whenLiftedOut = [&] { QVERIFY(m_page->changeFullWidget(false)); };
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(!widget->isWindow());
        QCOMPARE(widget->parentWidget(), m_page->contentWgt());
        QCOMPARE(layout()->count(), 1);
        widget->whenLiftedOut = nullptr;
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(widget->isWindow());
    }

    void aWidgetThatIsReplacedWhileItIsLiftedOutGoesBack() {
        auto* widget = new Reacting;
        auto* next = new QLabel("next");
        m_page->createCenterWidget(widget);
        widget->whenLiftedOut = [&] { m_page->createCenterWidget(next); };
        QVERIFY(m_page->changeFullWidget(true));
        QCOMPARE(widget->parentWidget(), m_page->contentWgt());
        QCOMPARE(next->parentWidget(), m_page->contentWgt());
        QCOMPARE(layout()->count(), 2);
        QVERIFY(m_page->changeFullWidget(true));
        QVERIFY(next->isWindow());
    }

private:
    QLayout* layout() { return m_page->contentWgt()->layout(); }

    void showPage() {
        m_frame->center()->addPage(nullptr, "kite.weld", m_page->wgt());
        m_frame->center()->switchTo(nullptr, "kite.weld");
        QCoreApplication::processEvents();
    }

    QWidgetList strayWindows() {
        QWidgetList windows;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window != m_frame.get())
                windows.append(window);
        }
        return windows;
    }

    pendanttest::WorkingFolder m_folder;
    std::unique_ptr<pendanttest::LogWatch> m_log;
    std::unique_ptr<pendanttest::Frame> m_frame;
    std::unique_ptr<QObject> m_owner;
    PluginSettingPage* m_page = nullptr;
};

QTEST_MAIN(TestPluginSettingPage)
#include "tst_pluginsettingpage.moc"
