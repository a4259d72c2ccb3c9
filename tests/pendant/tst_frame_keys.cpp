#include "framefixture.h"

#include "briskx/physicalbuttons.h"
#include "frame/hardkey.h"
#include "frame/keycolumn.h"

#include <stdexcept>

using helm::PhysicalButton;
using pendant::HardKey;

class TestKeys : public QObject {
    Q_OBJECT

private slots:
    void init() { calls.clear(); }
    void drawsBlankKeysWhileThereIsNoPage();
    void aPressAndAReleaseReachTheCallback();
    void slidingOffTheKeyLetsItGo();
    void aKeyThatIsHeldIsLetGoWhen_data();
    void aKeyThatIsHeldIsLetGoWhen();
    void aCallbackThatDisablesItsOwnPageIsToldOfTheReleaseAfterwards();
    void whatACallbackThrowsIsReportedWithPluginAndKey();
    void aKeyThatThrewWhenPressedIsStillReleased();
    void aDisabledPageIsLeftOut();
    void theTopKeyTurnsToTheNextPage();
    void aPageWithMoreRowsThanTheColumnGoesOverSheets();
    void theSpaceBarHoldsTheKeyThatHasTheFocus();
    void aRowIsThereForTheLongestOfTheThreeLists();
    void everyKeyIsLargeEnoughForAGloveAndStandsApart();

private:
    PhysicalButton button(const QString& name) {
        return {name, QIcon(), QIcon(), [this, name](bool pressed) { calls << name + (pressed ? "+" : "-"); }};
    }
    void addPage(const QString& page, int rows = 1) {
        QList<PhysicalButton> first, second;
        QStringList captions;
        for (int i = 0; i < rows; ++i) {
            first << button(QString("%1 up %2").arg(page).arg(i));
            second << button(QString("%1 down %2").arg(page).arg(i));
            captions << QString("Joint %1").arg(i + 1);
        }
        registerPhysicalButtons(nullptr, page, first, second, captions);
    }

    QStringList calls;
};

void TestKeys::drawsBlankKeysWhileThereIsNoPage() {
    Frame frame;
    const QList<HardKey*> keys = frame.window->keys()->findChildren<HardKey*>();
    QCOMPARE(frame.window->keys()->currentPage(), QString());
    int shown = 0;
    for (HardKey* key : keys) {
        shown += key->isVisible();
        QVERIFY(!key->isEnabled() || key->isHidden());
    }
    QCOMPARE(shown, 10);
}

void TestKeys::aPressAndAReleaseReachTheCallback() {
    Frame frame;
    addPage("Jog");
    auto* key = frame.find<HardKey>("key:Jog:0:first");
    QVERIFY(key && key->isVisible());
    QTest::mousePress(key, Qt::LeftButton);
    QCOMPARE(calls, QStringList{"Jog up 0+"});
    QVERIFY(key->isHeld());
    QTest::mouseRelease(key, Qt::LeftButton);
    QCOMPARE(calls, QStringList({"Jog up 0+", "Jog up 0-"}));
    Frame::click(frame.find("key:Jog:0:second"));
    QCOMPARE(calls.mid(2), QStringList({"Jog down 0+", "Jog down 0-"}));
}

void TestKeys::slidingOffTheKeyLetsItGo() {
    Frame frame;
    addPage("Jog");
    auto* key = frame.find<HardKey>("key:Jog:0:first");
    QTest::mousePress(key, Qt::LeftButton);
    QMouseEvent off(QEvent::MouseMove, QPointF(-5, 10), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(key, &off);
    QCOMPARE(calls, QStringList({"Jog up 0+", "Jog up 0-"}));
    QMouseEvent back(QEvent::MouseMove, QPointF(5, 10), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(key, &back);
    QTest::mouseRelease(key, Qt::LeftButton);
    QCOMPARE(calls.size(), 2);
}

void TestKeys::aKeyThatIsHeldIsLetGoWhen_data() {
    QTest::addColumn<int>("what");
    QTest::newRow("its page is disabled") << 0;
    QTest::newRow("its page is replaced") << 1;
    QTest::newRow("another page is turned to") << 2;
    QTest::newRow("the key is disabled") << 3;
    QTest::newRow("the key is hidden") << 4;
    QTest::newRow("the window is closed") << 5;
    QTest::newRow("the pendant ends") << 6;
}

void TestKeys::aKeyThatIsHeldIsLetGoWhen() {
    QFETCH(int, what);
    Frame frame;
    addPage("Jog");
    addPage("Torch");
    frame.window->keys()->showPage("Jog");
    auto* key = frame.find<HardKey>("key:Jog:0:first");
    QTest::mousePress(key, Qt::LeftButton);
    QCOMPARE(calls.size(), 1);
    switch (what) {
    case 0:
        enableRegisterPhysicalButtons(nullptr, "Jog", false);
        break;
    case 1:
        registerPhysicalButtons(nullptr, "Jog", {button("new")}, {}, {});
        break;
    case 2:
        frame.window->keys()->showPage("Torch");
        break;
    case 3:
        key->setEnabled(false);
        break;
    case 4:
        key->hide();
        break;
    case 5:
        frame.window->close();
        break;
    default:
        frame.window.reset();
    }
    QCOMPARE(calls, QStringList({"Jog up 0+", "Jog up 0-"}));
}

void TestKeys::aCallbackThatDisablesItsOwnPageIsToldOfTheReleaseAfterwards() {
    Frame frame;
    const auto callback = [this](bool pressed) {
        calls << (pressed ? "begin" : "released");
        if (pressed) {
            enableRegisterPhysicalButtons(nullptr, "Jog", false);
            calls << "end";
        }
    };
    registerPhysicalButtons(nullptr, "Jog", {{"once", QIcon(), QIcon(), callback}}, {}, {});
    auto* key = frame.find<HardKey>("key:Jog:0:first");
    QTest::mousePress(key, Qt::LeftButton);
    QTest::mouseRelease(key, Qt::LeftButton);
    QCOMPARE(calls, QStringList({"begin", "end", "released"}));
}

void TestKeys::whatACallbackThrowsIsReportedWithPluginAndKey() {
    Frame frame;
    tarp::BModule module;
    module.bindMobj("brisk.kite.weld");
    const auto callback = [](bool pressed) {
        if (pressed)
            throw std::runtime_error("the feeder is empty");
        throw 7;
    };
    registerPhysicalButtons(&module, "Torch", {{"Wire", QIcon(), QIcon(), callback}}, {}, {});
    Frame::click(frame.find("key:Torch:0:first"));
    QCOMPARE(Frame::messages().size(), 2);
    for (const helm::standin::Message& message : Frame::messages()) {
        QCOMPARE(message.level, helm::standin::MessageLevel::Error);
        QCOMPARE(message.source, QString("weld"));
        QVERIFY(message.text.contains("Wire"));
    }
    QVERIFY(Frame::messages().at(0).text.contains("the feeder is empty"));
    QVERIFY(Frame::messages().at(1).text.contains("int"));
}

void TestKeys::aKeyThatThrewWhenPressedIsStillReleased() {
    Frame frame;
    const auto callback = [this](bool pressed) {
        calls << (pressed ? "+" : "-");
        if (pressed)
            throw std::runtime_error("no");
    };
    registerPhysicalButtons(nullptr, "Torch", {{"Wire", QIcon(), QIcon(), callback}}, {}, {});
    Frame::click(frame.find("key:Torch:0:first"));
    QCOMPARE(calls, QStringList({"+", "-"}));
}

void TestKeys::aDisabledPageIsLeftOut() {
    Frame frame;
    addPage("Jog");
    addPage("Torch");
    enableRegisterPhysicalButtons(nullptr, "Jog", false);
    QCOMPARE(frame.window->keys()->sheets(), QStringList{"Torch"});
    QVERIFY(!frame.window->keys()->showPage("Jog"));
    QCOMPARE(frame.window->keys()->currentPage(), QString("Torch"));
    enableRegisterPhysicalButtons(nullptr, "Jog", true);
    QCOMPARE(frame.window->keys()->currentPage(), QString("Torch"));
    QVERIFY(frame.window->keys()->showPage("Jog"));
}

void TestKeys::theTopKeyTurnsToTheNextPage() {
    Frame frame;
    addPage("Jog");
    addPage("Torch");
    QCOMPARE(frame.window->keys()->currentPage(), QString("Jog"));
    Frame::click(frame.find("keyPage"));
    QCOMPARE(frame.window->keys()->currentPage(), QString("Torch"));
    QVERIFY(frame.find("key:Torch:0:first"));
    Frame::click(frame.find("keyPage"));
    QCOMPARE(frame.window->keys()->currentPage(), QString("Jog"));
    QVERIFY(calls.isEmpty());
}

void TestKeys::aPageWithMoreRowsThanTheColumnGoesOverSheets() {
    Frame frame;
    addPage("Jog", 7);
    QCOMPARE(frame.window->keys()->sheets(), QStringList({"Jog 1", "Jog 2"}));
    QVERIFY(frame.find("key:Jog:4:first"));
    QVERIFY(!frame.find("key:Jog:5:first"));
    Frame::click(frame.find("keyPage"));
    Frame::click(frame.find("key:Jog:6:second"));
    QCOMPARE(calls, QStringList({"Jog down 6+", "Jog down 6-"}));
    QVERIFY(!frame.find("key:Jog:0:first"));
}

void TestKeys::theSpaceBarHoldsTheKeyThatHasTheFocus() {
    Frame frame;
    addPage("Jog");
    auto* key = frame.find<HardKey>("key:Jog:0:first");
    frame.window->activateWindow();
    key->setFocus();
    QTest::keyPress(key, Qt::Key_Space);
    QCOMPARE(calls, QStringList{"Jog up 0+"});
    QTest::keyRelease(key, Qt::Key_Space);
    QCOMPARE(calls.size(), 2);
    QTest::keyPress(key, Qt::Key_Space);
    frame.find("messageLine")->setFocus();
    QCOMPARE(calls.size(), 4);
}

void TestKeys::aRowIsThereForTheLongestOfTheThreeLists() {
    Frame frame;
    registerPhysicalButtons(nullptr, "Odd", {button("a")}, {button("b"), button("c")}, {"1", "2", "3"});
    QVERIFY(frame.find("key:Odd:0:first")->isEnabled());
    QVERIFY(!frame.find("key:Odd:1:first")->isEnabled());
    QVERIFY(frame.find("key:Odd:1:second")->isEnabled());
    QVERIFY(!frame.find("key:Odd:2:second")->isEnabled());
}

void TestKeys::everyKeyIsLargeEnoughForAGloveAndStandsApart() {
    Frame frame;
    addPage("Jog", 5);
    QList<HardKey*> keys = frame.window->keys()->findChildren<HardKey*>();
    std::sort(keys.begin(), keys.end(), [](HardKey* a, HardKey* b) { return a->y() < b->y(); });
    for (int i = 0; i < keys.size(); ++i) {
        QVERIFY(keys.at(i)->height() >= 56 && keys.at(i)->width() >= 56);
        if (i > 0)
            QVERIFY(keys.at(i)->y() - keys.at(i - 1)->geometry().bottom() - 1 >= 8);
    }
    QVERIFY(keys.last()->geometry().bottom() < frame.window->keys()->height());
}

PENDANT_TEST_MAIN(TestKeys)
#include "tst_frame_keys.moc"
