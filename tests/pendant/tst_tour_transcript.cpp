#include "tour/markdown.h"
#include "tour/tourname.h"
#include "tour/transcript.h"

#include <QTest>

using helm::standin::MessageLevel;
using pendant::PluginState;
using pendant::Transcript;

class TestTranscript : public QObject {
    Q_OBJECT

private slots:
    void picturesHaveReadableNames_data() {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("subject");
        QTest::addColumn<QString>("name");
        QTest::newRow("a plugin") << 2 << "page"
                                  << "weld"
                                  << "02-page-weld.png";
        QTest::newRow("words") << 10 << "keys"
                               << "weld Wire and gas"
                               << "10-keys-weld-wire-and-gas.png";
        QTest::newRow("signs") << 3 << "page"
                               << " ../A|B: \"c\"/ "
                               << "03-page-a-b-c.png";
        QTest::newRow("other letters") << 4 << "page" << QString::fromUtf8("Schweißen 焊接")
                                       << QString::fromUtf8("04-page-schweißen-焊接.png");
        QTest::newRow("no subject") << 1 << "start"
                                    << ""
                                    << "01-start.png";
        QTest::newRow("nothing readable") << 1 << "page"
                                          << "..."
                                          << "01-page.png";
        QTest::newRow("many") << 123 << "page"
                              << "weld"
                              << "123-page-weld.png";
    }

    void picturesHaveReadableNames() {
        QFETCH(int, number);
        QFETCH(QString, kind);
        QFETCH(QString, subject);
        QFETCH(QString, name);
        QCOMPARE(pendant::pictureName(number, kind, subject), name);
    }

    void textIsNotTakenForMarkup_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("markdown");
        QTest::newRow("plain") << "A robot."
                               << "A robot.";
        QTest::newRow("a cell's end") << "a|b"
                                      << "a\\|b";
        QTest::newRow("emphasis") << "*a* _b_ `c`"
                                  << "\\*a\\* \\_b\\_ \\`c\\`";
        QTest::newRow("a tag") << "<b>"
                               << "\\<b\\>";
        QTest::newRow("a backslash") << "a\\b"
                                     << "a\\\\b";
        QTest::newRow("lines") << "a\nb\r\n  c"
                               << "a b c";
        QTest::newRow("nothing") << ""
                                 << "";
    }

    void textIsNotTakenForMarkup() {
        QFETCH(QString, text);
        QFETCH(QString, markdown);
        QCOMPARE(pendant::markdownText(text), markdown);
    }

    void aTableHasAHeadAndRows() {
        QCOMPARE(pendant::markdownTableHead({"Plugin", "ms|"}), QString("| Plugin | ms |\n| --- | --: |\n"));
        QCOMPARE(pendant::markdownTableRow({"a|b", ""}), QString("| a\\|b |  |\n"));
    }

    void aFailureIsToldOnce() {
        Transcript transcript;
        QVERIFY(transcript.failures().isEmpty());
        transcript.addFailure("b");
        transcript.addFailure("a");
        transcript.addFailure("b");
        QCOMPARE(transcript.failures(), QStringList({"b", "a"}));
    }

    void theTranscriptTellsWhatWasDoneAndWhatFailed() {
        Transcript transcript;
        transcript.addStep("The pendant has started.", "01-start.png");
        transcript.addStep("Nothing to see.");
        transcript.addFailure("It did not go away.");
        const QString text = transcript.toMarkdown(
            {{"/p/b.so", {}, "is empty."}}, {{"a", "A", "", "", PluginState::Stopped, ""}},
            {{"a", "init", 1.234, "no gas"}}, {{QDateTime(), MessageLevel::Warning, "a", "The spool is empty."}});
        const QStringList parts{"# Tour of the pendant",
                                "## Result",
                                "- It did not go away.",
                                "## Steps",
                                "1. The pendant has started.",
                                "![01-start.png](01-start.png)",
                                "2. Nothing to see.",
                                "## Plugin files",
                                "| /p/b.so |  | is empty. |",
                                "## Plugins",
                                "| a | A | stopped |  |",
                                "## Calls into plugins",
                                "| a | init | 1.23 | no gas |",
                                "## Messages",
                                "| warning | a | The spool is empty. |"};
        int at = -1;
        for (const QString& part : parts) {
            const int next = text.indexOf(part, at + 1);
            QVERIFY2(next > at, qPrintable(part + "\n\nis not next in\n\n" + text));
            at = next;
        }
        QVERIFY(!text.contains("Nothing failed."));
    }

    void aTourWithoutFailuresSaysSo() {
        const QString text = Transcript().toMarkdown({}, {}, {}, {});
        QVERIFY(text.contains("Nothing failed."));
        QCOMPARE(text.count("None."), 4);
    }
};

QTEST_APPLESS_MAIN(TestTranscript)
#include "tst_tour_transcript.moc"
