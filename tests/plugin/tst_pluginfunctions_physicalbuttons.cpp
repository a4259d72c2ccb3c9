#include "pluginfunctions.h"

#include "briskx/buttonpages.h"

#include <QFile>
#include <QImage>

using ot::gyre::standin::ButtonPage;
using ot::gyre::standin::ButtonPages;

namespace {

// A picture of one colour in the working folder.
QString picture(const QString& name, QRgb colour) {
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(colour);
    image.save(name + ".png");
    return name + ".png";
}

QRgb colourOf(const QIcon& icon) {
    return icon.pixmap(16, 16).toImage().pixel(8, 8);
}

} // namespace

class TestPhysicalButtons : public FunctionsTest {
    Q_OBJECT

private slots:
    void everyPartOfAButtonIsHandedOver() {
        const QString red = picture("red", 0xffff0000);
        const QString blue = picture("blue", 0xff0000ff);
        QList<bool> states;
        const kite::PhysicalButton button{"gas", red, blue, [&states](bool held) { states << held; }};
        QCOMPARE(kite::CreatePhyButtonList("weld", "page", {button}, {}, {"Gas"}), 0);

        QCOMPARE(ButtonPages::instance()->pages().size(), 1);
        const ButtonPage page = ButtonPages::instance()->pages().first();
        QCOMPARE(page.source, QString("weld"));
        QCOMPARE(page.name, QString("page"));
        QCOMPARE(page.module.data(), &module());
        QCOMPARE(page.captions, QStringList{"Gas"});
        QCOMPARE(page.first.size(), 1);
        QCOMPARE(page.first.first().name, QString("gas"));
        QCOMPARE(colourOf(page.first.first().firstIcon), QRgb(0xffff0000));
        QCOMPARE(colourOf(page.first.first().secondIcon), QRgb(0xff0000ff));
        page.first.first().callback(true);
        page.first.first().callback(false);
        QCOMPARE(states, QList<bool>({true, false}));
    }

    void theOrderStaysInBothLists() {
        QCOMPARE(kite::CreatePhyButtonList("weld", "page", named({"c", "a", "b"}), named({"z", "x"}), {"3", "1", "2"}),
                 0);
        const ButtonPage page = ButtonPages::instance()->pages().first();
        QCOMPARE(namesOf(page.first), QStringList({"c", "a", "b"}));
        QCOMPARE(namesOf(page.second), QStringList({"z", "x"}));
        QCOMPARE(page.captions, QStringList({"3", "1", "2"}));
    }

    void emptyListsAreTaken() {
        QCOMPARE(kite::CreatePhyButtonList("weld", "page", {}, {}, {}), 0);
        QCOMPARE(ButtonPages::instance()->pages().size(), 1);
        QVERIFY(ButtonPages::instance()->pages().first().first.isEmpty());
    }

    void aButtonWithoutIconsAndCallbackIsTaken() {
        QCOMPARE(kite::CreatePhyButtonList("weld", "page", {kite::PhysicalButton()}, {}, {}), 0);
        const helm::PhysicalButton button = ButtonPages::instance()->pages().first().first.first();
        QVERIFY(button.firstIcon.isNull());
        QVERIFY(button.secondIcon.isNull());
        QVERIFY(!button.callback);
    }

    void aPageIsSwitchedOffAndOn() {
        QCOMPARE(kite::CreatePhyButtonList("weld", "page", {}, {}, {}), 0);
        QCOMPARE(kite::ChangePhyButtonStatus("weld", "page", false), 0);
        QVERIFY(!ButtonPages::instance()->pages().first().enabled);
        QCOMPARE(kite::ChangePhyButtonStatus("weld", "page", true), 0);
        QVERIFY(ButtonPages::instance()->pages().first().enabled);
    }

    void aPageThatIsNotThereIsNoError() { QCOMPARE(kite::ChangePhyButtonStatus("weld", "nowhere", false), 0); }

private:
    static QList<kite::PhysicalButton> named(const QStringList& names) {
        QList<kite::PhysicalButton> buttons;
        for (const QString& name : names)
            buttons.append({name, QString(), QString(), nullptr});
        return buttons;
    }
    static QStringList namesOf(const QList<helm::PhysicalButton>& buttons) {
        QStringList names;
        for (const helm::PhysicalButton& button : buttons)
            names << button.name;
        return names;
    }
};

QTEST_MAIN(TestPhysicalButtons)
#include "tst_pluginfunctions_physicalbuttons.moc"
