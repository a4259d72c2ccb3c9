#include "framefixture.h"

#include "helm/basesettingpage.h"
#include "style/contrast.h"
#include "style/icons.h"
#include "style/resources.h"
#include "style/stylesheet.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QVBoxLayout>

using pendant::Theme;

class TestTheme : public QObject {
    Q_OBJECT

private slots:
    void knowsTheContrastOfBlackAndWhite();
    void textStandsOutFromWhatItStandsOn_data();
    void textStandsOutFromWhatItStandsOn();
    void bothThemesKnowTheSameTokens();
    void everyTokenOfTheStyleSheetIsKnown_data();
    void everyTokenOfTheStyleSheetIsKnown();
    void theStyleSheetCanBeParsed_data();
    void theStyleSheetCanBeParsed();
    void everyPictureOfTheStyleSheetIsThere_data();
    void everyPictureOfTheStyleSheetIsThere();
    void aTokenThatIsNotKnownStaysAsItIs();
    void aRenderedPageFollowsTheTheme();
    void aPageWithoutTheStyleSheetIsLegibleInTheDark();
    void controlsOfARenderedPageAreLargeEnoughForAGlove();
    void theHintOfAnEmptyFieldIsNotDrawnLikeAValue();
    void aPictureThatDoesNotStandOutIsDrawnInInk();
    void anIconIsFoundByPathOwnNameOrThemeAndNotElse();

private:
    static void addThemes() {
        QTest::addColumn<QString>("theme");
        QTest::newRow("light") << "light";
        QTest::newRow("dark") << "dark";
    }
};

void TestTheme::knowsTheContrastOfBlackAndWhite() {
    QCOMPARE(pendant::contrastRatio(Qt::black, Qt::white), 21.0);
    QCOMPARE(pendant::contrastRatio(Qt::white, Qt::black), 21.0);
    QCOMPARE(pendant::contrastRatio(Qt::red, Qt::red), 1.0);
    QVERIFY(qAbs(pendant::contrastRatio(QColor(0x767676), Qt::white) - 4.54) < 0.01);
}

void TestTheme::textStandsOutFromWhatItStandsOn_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("ground");
    QTest::addColumn<double>("least");
    const QStringList grounds{"window", "panel", "field"};
    for (const QString& ground : grounds) {
        for (const QString& text : QStringList{"text", "textDim", "good", "warning", "error", "service"})
            QTest::newRow(qPrintable(text + " on " + ground)) << text << ground << 4.5;
        // What can be told from its ground need not be read.
        QTest::newRow(qPrintable("outline on " + ground)) << "outline" << ground << 3.0;
        QTest::newRow(qPrintable("textOff on " + ground)) << "textOff" << ground << 3.0;
        QTest::newRow(qPrintable("accent on " + ground)) << "accent" << ground << 3.0;
    }
    QTest::newRow("button") << "text"
                            << "raised" << 4.5;
    QTest::newRow("pressed button") << "text"
                                    << "pressed" << 4.5;
    QTest::newRow("main button") << "onAccent"
                                 << "accent" << 4.5;
    QTest::newRow("pressed main button") << "onAccent"
                                         << "accentPressed" << 4.5;
    QTest::newRow("chosen") << "onAccentSoft"
                            << "accentSoft" << 4.5;
    QTest::newRow("progress") << "text"
                              << "accentSoft" << 4.5;
    QTest::newRow("key") << "capText"
                         << "cap" << 4.5;
    QTest::newRow("held key") << "capText"
                              << "capPressed" << 4.5;
    QTest::newRow("caption of a key") << "bezelText"
                                      << "bezel" << 4.5;
}

void TestTheme::textStandsOutFromWhatItStandsOn() {
    QFETCH(QString, text);
    QFETCH(QString, ground);
    QFETCH(double, least);
    for (const QString& name : Theme::names()) {
        const Theme theme = Theme::named(name);
        const double ratio = pendant::contrastRatio(theme.color(text), theme.color(ground));
        QVERIFY2(ratio >= least, qPrintable(QString("%1: %2").arg(name).arg(ratio)));
    }
}

void TestTheme::bothThemesKnowTheSameTokens() {
    QStringList light = Theme::light().tokens();
    QStringList dark = Theme::dark().tokens();
    light.sort();
    dark.sort();
    QCOMPARE(light, dark);
    for (const QString& token : light) {
        QVERIFY(Theme::light().color(token).isValid());
        QVERIFY(Theme::dark().color(token).isValid());
    }
    QVERIFY(!Theme::light().color("nothing").isValid());
}

void TestTheme::everyTokenOfTheStyleSheetIsKnown_data() {
    addThemes();
}

void TestTheme::everyTokenOfTheStyleSheetIsKnown() {
    QFETCH(QString, theme);
    const QString sheet = pendant::frameStyleSheet(Theme::named(theme));
    QVERIFY(sheet.size() > 5000);
    QVERIFY2(!sheet.contains('@'), qPrintable(sheet.mid(sheet.indexOf('@'), 40)));
}

void TestTheme::theStyleSheetCanBeParsed_data() {
    addThemes();
}

void TestTheme::theStyleSheetCanBeParsed() {
    QFETCH(QString, theme);
    static QStringList warnings;
    warnings.clear();
    const auto keep = [](QtMsgType, const QMessageLogContext&, const QString& line) { warnings << line; };
    const QtMessageHandler previous = qInstallMessageHandler(keep);
    QWidget widget;
    widget.setStyleSheet(pendant::frameStyleSheet(Theme::named(theme)));
    widget.ensurePolished();
    qInstallMessageHandler(previous);
    QCOMPARE(warnings, QStringList());
}

void TestTheme::everyPictureOfTheStyleSheetIsThere_data() {
    addThemes();
}

void TestTheme::everyPictureOfTheStyleSheetIsThere() {
    QFETCH(QString, theme);
    const QString sheet = pendant::frameStyleSheet(Theme::named(theme));
    QRegularExpressionMatchIterator pictures = QRegularExpression("url\\(([^)]*)\\)").globalMatch(sheet);
    int count = 0;
    for (; pictures.hasNext(); ++count) {
        const QString path = pictures.next().captured(1);
        QVERIFY2(QFile::exists(path), qPrintable(path));
    }
    QVERIFY(count > 5);
}

void TestTheme::aTokenThatIsNotKnownStaysAsItIs() {
    QCOMPARE(pendant::withTokens("a: @text; b: @nothing; c: @theme;", Theme::dark()),
             QString("a: %1; b: @nothing; c: dark;").arg(Theme::dark().color("text").name()));
}

void TestTheme::aRenderedPageFollowsTheTheme() {
    Frame frame;
    helm::BaseSettingPage page("kite", "Weld", nullptr, nullptr);
    auto* button = new QPushButton("Start", page.contentWgt());
    frame.window->center()->addPage(nullptr, "kite.weld", page.wgt());
    page.startRender();
    frame.window->showPage("kite.weld");
    button->ensurePolished();
    QCOMPARE(button->palette().color(QPalette::ButtonText), Theme::light().color("text"));
    frame.window->setTheme(Theme::dark());
    button->ensurePolished();
    QCOMPARE(button->palette().color(QPalette::ButtonText), Theme::dark().color("text"));
}

void TestTheme::aPageWithoutTheStyleSheetIsLegibleInTheDark() {
    Frame frame;
    auto* page = new QWidget;
    frame.window->center()->addPage(nullptr, "kite.plain", page);
    frame.window->setTheme(Theme::dark());
    QVERIFY(page->styleSheet().isEmpty());
    QVERIFY(frame.window->styleSheet().isEmpty());
    QVERIFY(frame.window->center()->styleSheet().isEmpty());
    QVERIFY(pendant::contrastRatio(page->palette().color(QPalette::WindowText),
                                   page->palette().color(QPalette::Window)) >= 4.5);
}

void TestTheme::controlsOfARenderedPageAreLargeEnoughForAGlove() {
    Frame frame;
    helm::BaseSettingPage page("kite", "Weld", nullptr, nullptr);
    auto* column = new QVBoxLayout(page.contentWgt());
    auto* combo = new QComboBox;
    combo->addItems({"a", "b"});
    const QList<QWidget*> controls{new QPushButton("Start"), new QSpinBox, combo};
    for (QWidget* control : controls)
        column->addWidget(control);
    frame.window->center()->addPage(nullptr, "kite.weld", page.wgt());
    page.startRender();
    frame.window->showPage("kite.weld");
    Frame::settle();
    for (QWidget* control : controls)
        QVERIFY2(control->height() >= 56, control->metaObject()->className());
    combo->showPopup();
    Frame::settle();
    QVERIFY(combo->view()->sizeHintForRow(0) >= 56);
    combo->hidePopup();
}

void TestTheme::theHintOfAnEmptyFieldIsNotDrawnLikeAValue() {
    QLineEdit edit;
    edit.setStyleSheet(pendant::controlStyleSheet(Theme::light()));
    edit.ensurePolished();
    QCOMPARE(edit.palette().color(QPalette::Text), Theme::light().color("textDim"));
    edit.setText("p1");
    QCOMPARE(edit.palette().color(QPalette::Text), Theme::light().color("text"));
    edit.clear();
    QCOMPARE(edit.palette().color(QPalette::Text), Theme::light().color("textDim"));
}

void TestTheme::aPictureThatDoesNotStandOutIsDrawnInInk() {
    const auto plain = [](const QColor& color) {
        QPixmap pixmap(8, 8);
        pixmap.fill(color);
        return pixmap;
    };
    const auto drawn = [&](const QColor& picture, const QColor& ground) {
        return pendant::legible(plain(picture), ground, Qt::red).toImage().pixelColor(4, 4);
    };
    QCOMPARE(drawn(Qt::black, Qt::white), QColor(Qt::black));
    QCOMPARE(drawn(Qt::white, Qt::black), QColor(Qt::white));
    QCOMPARE(drawn(QColor(0x333333), Qt::black), QColor(Qt::red));
    QCOMPARE(drawn(QColor(0xdddddd), Qt::white), QColor(Qt::red));
    QCOMPARE(drawn(Qt::transparent, Qt::white).alpha(), 0);
    QVERIFY(pendant::legible(QPixmap(), Qt::white, Qt::red).isNull());
}

void TestTheme::anIconIsFoundByPathOwnNameOrThemeAndNotElse() {
    const Theme theme = Theme::light();
    QVERIFY(!pendant::entryIcon({":/pendant/icons/tool.svg"}, theme).isNull());
    QVERIFY(!pendant::entryIcon({"tool"}, theme).isNull());
    QVERIFY(!pendant::entryIcon({"", "no such icon", "tool"}, theme).isNull());
    QVERIFY(pendant::entryIcon({"", "no such icon"}, theme).isNull());
}

PENDANT_TEST_MAIN(TestTheme)
#include "tst_style_theme.moc"
