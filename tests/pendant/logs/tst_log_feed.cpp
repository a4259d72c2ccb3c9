#include "logfixture.h"
#include "logs/logfeed.h"

#include <QSignalSpy>

using pendant::LogFeed;

class TestLogFeed : public QObject {
    Q_OBJECT

private slots:
    void filesAreListedWhenItBecomesActive();
    void aFileThatComesOrGoesIsToldOf();
    void aFolderThatComesLaterIsFound();
    void aFolderWithinIsWatchedToo();
    void aFileThatIsWrittenToIsToldOf();
    void whatIsNotActiveIsSilent();
};

void TestLogFeed::filesAreListedWhenItBecomesActive() {
    const LogFixture logs;
    logs.write("kite_20250314.log", "a\n");
    LogFeed feed(logs.folder());
    QVERIFY(feed.files().isEmpty());
    QSignalSpy listed(&feed, &LogFeed::listed);
    feed.setActive(true);
    QCOMPARE(listed.count(), 1);
    QCOMPARE(feed.files(), logs.files());
    QCOMPARE(feed.folder(), logs.folder());
}

void TestLogFeed::aFileThatComesOrGoesIsToldOf() {
    const LogFixture logs;
    LogFeed feed(logs.folder());
    feed.setActive(true);
    logs.write("kite_20250314.log", "a\n");
    QTRY_COMPARE(feed.files().size(), 1);
    logs.write("kite_20250314_1.log", "a\n");
    QTRY_COMPARE(feed.files().size(), 2);
    QFile::remove(logs.path("kite_20250314.log"));
    QTRY_COMPARE(feed.files().size(), 1);
}

void TestLogFeed::aFolderThatComesLaterIsFound() {
    const LogFixture logs;
    LogFeed feed(logs.path("later"));
    feed.setActive(true);
    QVERIFY(!feed.folderExists());
    logs.write("later/kite_20250314.log", "a\n");
    QTRY_COMPARE(feed.files().size(), 1);
    QVERIFY(QDir(logs.path("later")).removeRecursively());
    QTRY_COMPARE(feed.files().size(), 0);
}

void TestLogFeed::aFolderWithinIsWatchedToo() {
    const LogFixture logs;
    logs.write("cell/kite_20250314.log", "a\n");
    LogFeed feed(logs.folder());
    feed.setActive(true);
    QCOMPARE(feed.files().size(), 1);
    logs.write("cell/kite_20250314_1.log", "a\n");
    QTRY_COMPARE(feed.files().size(), 2);
}

void TestLogFeed::aFileThatIsWrittenToIsToldOf() {
    const LogFixture logs;
    logs.write("kite_20250314.log", "a\n");
    LogFeed feed(logs.folder());
    feed.setActive(true);
    feed.watchFile(logs.path("kite_20250314.log"));
    QSignalSpy stirred(&feed, &LogFeed::stirred);
    logs.append("kite_20250314.log", "b\n");
    QTRY_VERIFY(!stirred.isEmpty());
}

void TestLogFeed::whatIsNotActiveIsSilent() {
    const LogFixture logs;
    logs.write("kite_20250314.log", "a\n");
    LogFeed feed(logs.folder());
    feed.setActive(true);
    feed.watchFile(logs.path("kite_20250314.log"));
    feed.setActive(false);
    QSignalSpy listed(&feed, &LogFeed::listed);
    QSignalSpy stirred(&feed, &LogFeed::stirred);
    logs.append("kite_20250314.log", "b\n");
    logs.write("kite_20250314_1.log", "a\n");
    // Another one hears of both; by then this one would have.
    LogFeed other(logs.folder());
    other.setActive(true);
    QSignalSpy otherListed(&other, &LogFeed::listed);
    logs.write("kite_20250314_2.log", "a\n");
    QTRY_VERIFY(!otherListed.isEmpty());
    QCOMPARE(listed.count() + stirred.count(), 0);
    feed.setActive(true);
    QCOMPARE(feed.files().size(), 3);
}

QTEST_GUILESS_MAIN(TestLogFeed)
#include "tst_log_feed.moc"
