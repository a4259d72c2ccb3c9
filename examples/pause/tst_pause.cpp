#include "pause.cpp" // NOLINT(bugprone-suspicious-include): the plugin is this one file

#include "pendanttest/pendant.h"

#include <kite/vexbasewidget.h>

#include <QTest>

class TestPause : public QObject {
    Q_OBJECT

private slots:
    void aNewLineIsTheName() {
        kite::VexBaseWidget editor(new PauseEditor, nullptr);
        QVERIFY(editor.CheckInsert());
        QCOMPARE(editor.ToString(), QString("Pause"));
    }

    void aLineIsGivenBackAsItWas() {
        kite::VexBaseWidget editor(new PauseEditor, nullptr);
        editor.FillWith("  Pause // the tray is full");
        QVERIFY(editor.CheckReplace());
        QCOMPARE(editor.ToString(), QString("  Pause // the tray is full"));
    }

    void thePendantStartsThePlugin() {
        pendanttest::Pendant pendant;
        pendant.start();
        QVERIFY(pendant.calls("pause").contains("init"));
    }
};

QTEST_MAIN(TestPause)
#include "tst_pause.moc"
