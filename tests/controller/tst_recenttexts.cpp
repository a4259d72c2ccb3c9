#include "controller/recenttexts.h"

#include <QTest>

using controller::RecentTexts;

class TestRecentTexts : public QObject {
    Q_OBJECT

private slots:
    void aTextIsHeldOnce() {
        RecentTexts texts;
        QVERIFY(texts.add("a"));
        QVERIFY(texts.add("b"));
        QVERIFY(!texts.add("a"));
        QVERIFY(texts.contains("a"));
        QVERIFY(!texts.contains("c"));
        QCOMPARE(texts.size(), 2);
    }

    void theOldestComesFirstAndIsGone() {
        RecentTexts texts;
        for (const char* text : {"b", "a", "b"})
            texts.add(text);
        QCOMPARE(texts.takeOldest(), QString("b"));
        QVERIFY(!texts.contains("b"));
        QCOMPARE(texts.takeOldest(), QString("a"));
        QCOMPARE(texts.size(), 0);
        QVERIFY(texts.add("b"));
    }

    void theOldestGoesWhenThereAreTooMany() {
        RecentTexts texts;
        for (int i = 0; i <= RecentTexts::capacity; ++i)
            QVERIFY(texts.add(QString::number(i)));
        QCOMPARE(texts.size(), int(RecentTexts::capacity));
        QVERIFY(!texts.contains("0"));
        QVERIFY(texts.contains("1"));
    }
};

QTEST_GUILESS_MAIN(TestRecentTexts)
#include "tst_recenttexts.moc"
