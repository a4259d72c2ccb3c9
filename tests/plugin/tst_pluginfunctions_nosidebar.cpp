#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "kite/kitemodule.h"
#include "kite/pluginfunctions.h"

#include <QScopedPointer>
#include <QTest>
#include <QWidget>

// A pendant that has no side bar.
class TestNoSideBar : public QObject {
    Q_OBJECT

private slots:
    void init() { m_log.reset(new pendanttest::LogWatch); }
    void cleanup() {
        pendanttest::resetHost();
        m_log.reset();
    }

    void thereIsNoneToTell() {
        QWidget widget;
        QWidget* told = &widget;
        QCOMPARE(kite::GetRightExpandSideBar(&told), 0);
        QVERIFY(!told);
    }

    void thereIsNoneToClose() {
        QCOMPARE(kite::SwitchRightExpandWidgte("", "left"), 0);
        m_log->expect("brisk.kite.glue unuseful");
        QCOMPARE(kite::SwitchRightExpandWidgte("glue", "left"), -2);
    }

    void thereIsNoneToAddTo() {
        const kite::Kite module("weld", nullptr);
        QWidget page;
        QCOMPARE(kite::CreateRightExpandWidgte("weld", &page, "left"), 0);
        QCOMPARE(kite::SwitchRightExpandWidgte("weld", "left"), 0);
        QCOMPARE(kite::CreateStatusBar("weld", &page, 0), 0);
    }

private:
    pendanttest::WorkingFolder m_folder;
    QScopedPointer<pendanttest::LogWatch> m_log;
};

QTEST_MAIN(TestNoSideBar)
#include "tst_pluginfunctions_nosidebar.moc"
