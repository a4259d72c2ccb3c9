#include "controller/project/wholefile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace {

/// While it lives no file can become longer: as on a full disk, a write ends halfway.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    Q_DISABLE_COPY(FullDisk)
    rlimit m_before;
    void (*m_handler)(int);
};

} // namespace

class TestWholeFile : public QObject {
    Q_OBJECT

private slots:
    void whatIsWrittenIsThere_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("a line") << QByteArray("a\n");
        QTest::newRow("a megabyte") << QByteArray(1024 * 1024, 'x');
    }
    void whatIsWrittenIsThere() {
        QFETCH(QByteArray, bytes);
        QCOMPARE(controller::writeWhole(path(), bytes), QString());
        QCOMPARE(read(), bytes);
    }

    // A buffer passes it over as long as the bytes fit into it.
    void aWriteThatEndsHalfwayLeavesTheOldFile_data() {
        QTest::addColumn<int>("size");
        QTest::newRow("small") << 5000;
        QTest::newRow("large") << 100000;
    }
    void aWriteThatEndsHalfwayLeavesTheOldFile() {
        QFETCH(int, size);
        QCOMPARE(controller::writeWhole(path(), "before"), QString());
        {
            const FullDisk full(4096);
            QVERIFY(!controller::writeWhole(path(), QByteArray(size, 'x')).isEmpty());
        }
        QCOMPARE(read(), QByteArray("before"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
    }

    void aFolderInItsPlaceStays() {
        QVERIFY(QDir().mkpath(path() + "/inside"));
        QVERIFY(!controller::writeWhole(path(), "x").isEmpty());
        QVERIFY(QFileInfo(path() + "/inside").isDir());
    }

    void itsFolderIsNotMade() {
        QVERIFY(!controller::writeWhole(m_folder->filePath("none/file"), "x").isEmpty());
        QVERIFY(!QFile::exists(m_folder->filePath("none")));
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    QString path() const { return m_folder->filePath("file"); }
    QByteArray read() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestWholeFile)
#include "tst_wholefile.moc"
