#include "framefixture.h"

#include "helm/basesettingpage.h"
#include "tarp/rendering.h"

#include <QPushButton>
#include <QVBoxLayout>

class TestWindows : public QObject {
    Q_OBJECT

private slots:
    void whatLeavesADressedPageAsAWindowKeepsItsLook();
    void itIsDressedAnewWithTheTheme();
    void whatComesBackIsDressedByItsPageAlone();
    void whatWasNotDressedStaysWithout();
    void aStyleSheetOfItsOwnIsLeftAlone();

private:
    /// A page with one widget on it, shown in the frame.
    struct Stage {
        Stage() : page("kite", "Weld", nullptr, nullptr), content(new QWidget) {
            auto* column = new QVBoxLayout(page.contentWgt());
            column->addWidget(content);
            button = new QPushButton("Start", content);
            frame.window->center()->addPage(nullptr, "kite.weld", page.wgt());
            frame.window->showPage("kite.weld");
        }
        QColor buttonText() const {
            button->ensurePolished();
            return button->palette().color(QPalette::ButtonText);
        }
        void leave() {
            // As a plugin's page goes full screen: its own style sheet, which is none, is set again.
            const QString own = content->styleSheet();
            content->setParent(nullptr);
            content->setStyleSheet(own);
            content->show();
        }
        void comeBack() { page.contentWgt()->layout()->addWidget(content); }

        Frame frame;
        helm::BaseSettingPage page;
        QWidget* content;
        QPushButton* button;
    };
};

void TestWindows::whatLeavesADressedPageAsAWindowKeepsItsLook() {
    Stage stage;
    stage.page.startRender();
    stage.leave();
    QCOMPARE(stage.content->styleSheet(), tarp::standin::renderStyleSheet());
    QCOMPARE(stage.buttonText(), pendant::Theme::light().color("text"));
    QVERIFY(stage.button->sizeHint().height() >= 56);
    delete stage.content;
}

void TestWindows::itIsDressedAnewWithTheTheme() {
    Stage stage;
    stage.page.startRender();
    stage.leave();
    stage.frame.window->setTheme(pendant::Theme::dark());
    static_cast<pendant::Application*>(qApp)->redressWindows();
    QCOMPARE(stage.buttonText(), pendant::Theme::dark().color("text"));
    delete stage.content;
}

void TestWindows::whatComesBackIsDressedByItsPageAlone() {
    Stage stage;
    stage.page.startRender();
    stage.leave();
    stage.comeBack();
    QCOMPARE(stage.content->styleSheet(), QString());
    QCOMPARE(stage.buttonText(), pendant::Theme::light().color("text"));
    QVERIFY(stage.button->sizeHint().height() >= 56);
}

void TestWindows::whatWasNotDressedStaysWithout() {
    Stage stage;
    stage.leave();
    QCOMPARE(stage.content->styleSheet(), QString());
    delete stage.content;
}

void TestWindows::aStyleSheetOfItsOwnIsLeftAlone() {
    Stage stage;
    stage.page.startRender();
    stage.content->setStyleSheet("QPushButton { color: #123456; }");
    stage.leave();
    QCOMPARE(stage.content->styleSheet(), QString("QPushButton { color: #123456; }"));
    stage.comeBack();
    QCOMPARE(stage.content->styleSheet(), QString("QPushButton { color: #123456; }"));
}

PENDANT_TEST_MAIN(TestWindows)
#include "tst_app_windows.moc"
