#include "pendanttest/pendant.h"

#include <QPointer>
#include <QTest>

using pendanttest::Pendant;

// A real plugin that deletes what it has handed over. The cases share one pendant and follow each other.
class TestDeleting : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        m_pendant.reset(new Pendant);
        QVERIFY(m_pendant->load(PLUGIN_fixture_deleting));
        m_pendant->start();
        QVERIFY(m_pendant->open("deleting"));
    }

    void fullScreenLiftsTheWidgetOut() {
        QVERIFY(m_pendant->press("Full screen"));
        QCOMPARE(m_pendant->fullScreenWindows().size(), 1);
        QCOMPARE(m_pendant->fullScreenWindows().first()->objectName(), QString("deletingCentre"));
    }

    void aWidgetDeletedWhileFullScreenLeavesNoWindow() {
        QVERIFY(m_pendant->press("Delete widget"));
        QTRY_VERIFY(m_pendant->fullScreenWindows().isEmpty());
        QVERIFY(m_pendant->page("deleting"));
        QVERIFY(!m_pendant->findButton("Delete page"));
    }

    void thePageCanBeLeftAndShownAgain() {
        m_pendant->leave();
        QVERIFY(m_pendant->open("deleting"));
        QCOMPARE(m_pendant->calls("deleting").filter(QRegularExpression("^render$")).size(), 2);
    }

    void aPageDeletedFromOutsideIsForgotten() {
        delete m_pendant->page("deleting");
        QVERIFY(!m_pendant->page("deleting"));
        QVERIFY(!m_pendant->open("deleting"));
        QCOMPARE(m_pendant->frame().center()->current(), QString("start"));
        QVERIFY(m_pendant->calls("deleting").endsWith("afterIdle"));
    }

    void theEndComesInGoodOrder() {
        m_pendant->close();
        QVERIFY(m_pendant->calls("deleting").endsWith("destructor"));
        QCOMPARE(m_pendant->guard().thrownCount(), 0);
    }

    void cleanup() { QVERIFY(m_pendant->verify()); }
    void cleanupTestCase() { m_pendant.reset(); }

private:
    QScopedPointer<Pendant> m_pendant;
};

QTEST_MAIN(TestDeleting)
#include "tst_session_deleting.moc"
