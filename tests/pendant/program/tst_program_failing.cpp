#include "program/programfile.h"
#include "programtexts.h"

#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include <QDir>
#include <QFile>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using pendant::ProgramFile;

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

/// While it lives nothing can be made in the folder, by root neither.
class ReadOnlyFolder {
public:
    explicit ReadOnlyFolder(const QByteArray& path) : m_path(path) {
        chmod(".", 0755);
        chmod(m_path.constData(), 0555);
        if (m_user == 0 && seteuid(nobody) != 0)
            qFatal("cannot become nobody");
    }
    ~ReadOnlyFolder() {
        if (seteuid(m_user) != 0)
            qFatal("cannot become who I was");
        chmod(m_path.constData(), 0755);
    }

private:
    Q_DISABLE_COPY(ReadOnlyFolder)
    static const uid_t nobody = 65534;
    QByteArray m_path;
    uid_t m_user = geteuid();
};

} // namespace

// A program that cannot be written is told, and what was there before is there still.
class TestProgramFailing : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_log.reset(new pendanttest::LogWatch);
        m_folder.reset(new pendanttest::WorkingFolder);
    }
    void cleanup() {
        m_folder.reset();
        m_log.reset();
    }

    void aWriteThatEndsHalfwayLeavesTheOldFile_data();
    void aWriteThatEndsHalfwayLeavesTheOldFile();
    void aWriteThatEndsHalfwayLeavesNoNewFile();
    void afterAFailureTheNextWriteSucceeds();
    void inAReadOnlyFolderTheOldFileStays();
    void aReadOnlyFileStays();
    void aFolderInTheFilesPlaceStays();
    void aFileInTheFoldersPlaceStays();
    void theFolderIsMade();
    void theFileOfALinkIsWritten();

private:
    static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }
    static QStringList namesIn(const QString& path) {
        return QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    static bool save(const QStringList& lines) { return ProgramFile::save("programs/main.txt", lines, &m_error); }

    static QString m_error;
    std::unique_ptr<pendanttest::LogWatch> m_log;
    std::unique_ptr<pendanttest::WorkingFolder> m_folder;
};

QString TestProgramFailing::m_error;

void TestProgramFailing::aWriteThatEndsHalfwayLeavesTheOldFile_data() {
    QTest::addColumn<int>("room");
    QTest::newRow("no room") << 0;
    QTest::newRow("for a byte") << 1;
    QTest::newRow("for half") << 50000;
    QTest::newRow("for all but the last byte") << 98889;
}

void TestProgramFailing::aWriteThatEndsHalfwayLeavesTheOldFile() {
    QFETCH(int, room);
    QVERIFY(save({"before"}));
    bool isSaved = true;
    {
        const FullDisk disk{rlim_t(room)};
        isSaved = save(numberedLines(10000));
    }
    QVERIFY(!isSaved);
    QCOMPARE(m_error, QString("The program was not written to programs/main.txt: File too large"));
    QCOMPARE(contentOf("programs/main.txt"), QByteArray("before\n"));
    QCOMPARE(namesIn("programs"), QStringList{"main.txt"});
}

void TestProgramFailing::aWriteThatEndsHalfwayLeavesNoNewFile() {
    bool isSaved = true;
    {
        const FullDisk disk(100);
        isSaved = save(numberedLines(100));
    }
    QVERIFY(!isSaved);
    QCOMPARE(namesIn("programs"), QStringList());
}

void TestProgramFailing::afterAFailureTheNextWriteSucceeds() {
    aWriteThatEndsHalfwayLeavesNoNewFile();
    QVERIFY(save(numberedLines(2)));
    QCOMPARE(contentOf("programs/main.txt"), QByteArray("line 0\nline 1\n"));
    {
        const FullDisk disk(14);
        QVERIFY(save(numberedLines(2)));
    }
}

void TestProgramFailing::inAReadOnlyFolderTheOldFileStays() {
    QVERIFY(save({"before"}));
    bool isSaved = true;
    {
        const ReadOnlyFolder folder("programs");
        isSaved = save({"after"});
    }
    QVERIFY(!isSaved);
    QVERIFY2(m_error.startsWith("The program was not written to programs/main.txt: "), qPrintable(m_error));
    QCOMPARE(contentOf("programs/main.txt"), QByteArray("before\n"));
    QCOMPARE(namesIn("programs"), QStringList{"main.txt"});
}

void TestProgramFailing::aReadOnlyFileStays() {
    QVERIFY(save({"before"}));
    QVERIFY(QFile::setPermissions("programs/main.txt", QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    bool isSaved = true;
    {
        const ReadOnlyFolder folder("programs");
        isSaved = save({"after"});
    }
    QVERIFY(!isSaved);
    QCOMPARE(contentOf("programs/main.txt"), QByteArray("before\n"));
}

void TestProgramFailing::aFolderInTheFilesPlaceStays() {
    QVERIFY(QDir().mkpath("programs/main.txt/inside"));
    QVERIFY(!save({"after"}));
    QVERIFY2(m_error.startsWith("The program was not written to programs/main.txt: "), qPrintable(m_error));
    QCOMPARE(namesIn("programs"), QStringList{"main.txt"});
    QCOMPARE(namesIn("programs/main.txt"), QStringList{"inside"});
}

void TestProgramFailing::aFileInTheFoldersPlaceStays() {
    QFile file("programs");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("file") == 4);
    file.close();
    QVERIFY(!save({"after"}));
    QCOMPARE(m_error, QString("The program was not written to programs/main.txt: its folder cannot be made."));
    QCOMPARE(contentOf("programs"), QByteArray("file"));
}

void TestProgramFailing::theFolderIsMade() {
    QString error;
    const QString path = QString::fromUtf8("a b/größe/移动/main.txt");
    QVERIFY2(ProgramFile::save(path, {"a"}, &error), qPrintable(error));
    QCOMPARE(contentOf(path), QByteArray("a\n"));
}

void TestProgramFailing::theFileOfALinkIsWritten() {
    QVERIFY(save({"before"}));
    QVERIFY(QFile::link("programs/main.txt", "link.txt"));
    QString error;
    QVERIFY2(ProgramFile::save("link.txt", {"after"}, &error), qPrintable(error));
    QCOMPARE(contentOf("programs/main.txt"), QByteArray("after\n"));
    QVERIFY(QFileInfo("link.txt").isSymLink());
}

QTEST_GUILESS_MAIN(TestProgramFailing)
#include "tst_program_failing.moc"
