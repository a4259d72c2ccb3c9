#include "framefixture.h"

#include "app/language.h"
#include "frame/navigationentry.h"
#include "frame/pagekeys.h"
#include "frame/statusitem.h"

#include <QLabel>
#include <QPushButton>
#include <QXmlStreamReader>

class TestLanguage : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { app()->setLanguage("en"); }
    void everyTextOfAReleaseIsTranslated_data();
    void everyTextOfAReleaseIsTranslated();
    void placesForValuesSurviveTheTranslation_data();
    void placesForValuesSurviveTheTranslation();
    void theFrameChangesItsLanguageWhileItRuns();
    void aLanguageThatIsNotThereChangesNothing();
    void noButtonOfThePendantIsCut_data();
    void noButtonOfThePendantIsCut();

private:
    static pendant::Application* app() { return static_cast<pendant::Application*>(qApp); }
    static void addLanguages() {
        QTest::addColumn<QString>("code");
        QTest::newRow("German") << "de";
        QTest::newRow("Simplified Chinese") << "zh_CN";
    }
    /// (source, translation) of every message in the file; the translation is empty for one that is not finished.
    static QList<QPair<QString, QString>> texts(const QString& code) {
        QFile file(QString(PENDANT_TRANSLATIONS "/pendant_%1.ts").arg(code));
        QList<QPair<QString, QString>> result;
        if (!file.open(QIODevice::ReadOnly))
            return result;
        QXmlStreamReader xml(&file);
        QString source;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            else if (xml.name() == QLatin1String("translation"))
                result.append({source, xml.readElementText()});
        }
        return result;
    }
};

void TestLanguage::everyTextOfAReleaseIsTranslated_data() {
    addLanguages();
}

void TestLanguage::everyTextOfAReleaseIsTranslated() {
    QFETCH(QString, code);
    const auto all = texts(code);
    QVERIFY(all.size() > 80);
    for (const auto& text : all)
        QVERIFY2(!text.second.isEmpty(), qPrintable(text.first));
}

void TestLanguage::placesForValuesSurviveTheTranslation_data() {
    addLanguages();
}

void TestLanguage::placesForValuesSurviveTheTranslation() {
    QFETCH(QString, code);
    for (const auto& text : texts(code)) {
        for (const char* place : {"%1", "%2", "%3"})
            QVERIFY2(text.first.contains(place) == text.second.contains(place), qPrintable(text.first));
    }
}

void TestLanguage::theFrameChangesItsLanguageWhileItRuns() {
    Frame frame;
    QVERIFY(app()->setLanguage("de"));
    Frame::settle();
    const auto title = [&](const QString& nav) { return frame.find<pendant::NavigationEntry>("nav:" + nav)->title(); };
    QCOMPARE(title(pendant::pagekeys::messages()), QString("Meldungen"));
    QCOMPARE(frame.find<pendant::StatusItem>("status:bus")->text(), QString("Getrennt"));
    QCOMPARE(frame.find<QLabel>("messageText")->text(), QString("Keine Meldungen"));
    QVERIFY(app()->setLanguage("en"));
    Frame::settle();
    QCOMPARE(title(pendant::pagekeys::messages()), QString("Messages"));
    QCOMPARE(frame.find<QLabel>("messageText")->text(), QString("No messages"));
}

void TestLanguage::aLanguageThatIsNotThereChangesNothing() {
    QVERIFY(app()->setLanguage("de"));
    QVERIFY(!app()->setLanguage("tlh"));
    QCOMPARE(app()->language(), QString("de"));
}

void TestLanguage::noButtonOfThePendantIsCut_data() {
    addLanguages();
    QTest::newRow("English") << "en";
}

void TestLanguage::noButtonOfThePendantIsCut() {
    QFETCH(QString, code);
    Frame frame;
    QVERIFY(app()->setLanguage(code));
    const QStringList pages{pendant::pagekeys::start(),   pendant::pagekeys::jog(),      pendant::pagekeys::variables(),
                            pendant::pagekeys::points(),  pendant::pagekeys::messages(), pendant::pagekeys::log(),
                            pendant::pagekeys::settings()};
    for (const QString& page : pages) {
        frame.window->showPage(page);
        Frame::settle();
        for (const QPushButton* button : frame.window->center()->page(page)->findChildren<QPushButton*>())
            QVERIFY2(!button->isVisible() || button->width() >= button->sizeHint().width(), qPrintable(button->text()));
    }
    for (const pendant::NavigationEntry* entry : frame.window->findChildren<pendant::NavigationEntry*>())
        QVERIFY2(entry->toolTip().isEmpty(), qPrintable(entry->title()));
}

PENDANT_TEST_MAIN(TestLanguage)
#include "tst_app_language.moc"
