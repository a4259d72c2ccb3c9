#include "clock.h"
#include "logfolder.h"
#include "unprivileged.h"

#include "kite/log.h"
#include "pendanttest/logwatch.h"

#include <QTest>
#include <QThread>

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <memory>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using kite::FLog;

namespace {

/// While it lives, no file grows beyond so many bytes.
class FileLimit {
public:
    explicit FileLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        m_isSet = ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FileLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    bool isSet() const { return m_isSet; }

private:
    Q_DISABLE_COPY(FileLimit)
    void (*m_handler)(int);
    rlimit m_before;
    bool m_isSet = false;
};

int openDescriptors() {
    return QDir("/proc/self/fd").entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size();
}

/// A pipe that is called as a log file is, and what was written to it.
class Pipe {
public:
    explicit Pipe(const QString& name) {
        const QByteArray encoded = QFile::encodeName(name);
        m_isMade = ::mkfifo(encoded.constData(), 0666) == 0;
        m_name = encoded;
    }
    ~Pipe() {
        if (m_reader >= 0)
            ::close(m_reader);
    }

    bool isMade() const { return m_isMade; }
    /// Whoever waits to write to it may do so now.
    bool openToRead() {
        m_reader = ::open(m_name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        return m_reader >= 0;
    }
    QByteArray read() const {
        char bytes[4096];
        const ssize_t count = ::read(m_reader, bytes, sizeof bytes);
        return QByteArray(bytes, static_cast<int>(qMax<ssize_t>(0, count)));
    }

private:
    Q_DISABLE_COPY(Pipe)
    QByteArray m_name;
    bool m_isMade = false;
    int m_reader = -1;
};

std::atomic<int> interruptions{0};

/// While it lives, SIGUSR1 interrupts what waits.
class Interrupting {
public:
    Interrupting() {
        struct sigaction interrupt = {};
        interrupt.sa_handler = [](int) { ++interruptions; };
        ::sigaction(SIGUSR1, &interrupt, &m_before);
        interruptions = 0;
    }
    ~Interrupting() { ::sigaction(SIGUSR1, &m_before, nullptr); }

private:
    Q_DISABLE_COPY(Interrupting)
    struct sigaction m_before;
};

} // namespace

// What goes wrong with the disk. Whatever it is: nobody hears of it, and the first line after it is written.
class TestFaults : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_watch = std::make_unique<pendanttest::LogWatch>();
        m_folder = std::make_unique<LogFolder>();
        m_name = QString("log%1").arg(++m_logs);
        m_clock.set(noon(2025, 3, 14));
        QVERIFY(setPermissions(m_folder->root(), 0777));
    }
    void cleanup() {
        QCOMPARE(m_watch->lines(), QStringList());
        m_folder.reset();
        m_watch.reset();
    }

    void theFolderIsRemovedBetweenLines() {
        write("before");
        QVERIFY(QDir(m_folder->path("below")).removeRecursively());
        write("after");
        QCOMPARE(content(), "after\n");
    }

    void theFolderIsRemovedWithinALine() {
        {
            FLog log("", "", path(), "log");
            QVERIFY(QDir(m_folder->path("below")).removeRecursively());
            log << "lost";
        }
        write("after");
        QCOMPARE(content(), "after\n");
    }

    void theFileIsRemovedBetweenLines() {
        write("before");
        QVERIFY(QFile::remove(file()));
        write("after");
        QCOMPARE(content(), "after\n");
    }

    void theFileIsReplacedByAFolder() {
        write("before");
        QVERIFY(QFile::remove(file()) && QDir().mkdir(file()));
        write("lost");
        QVERIFY(QDir().rmdir(file()));
        write("after");
        QCOMPARE(content(), "after\n");
    }

    void theFolderIsReplacedByAFile() {
        write("before");
        QVERIFY(QDir(m_folder->path("below")).removeRecursively());
        QVERIFY(m_folder->make("below", 0));
        write("lost");
        QVERIFY(QFile::remove(m_folder->path("below")));
        write("after");
        QCOMPARE(content(), "after\n");
    }

    void theFolderCannotBeWrittenTo() {
        QVERIFY(QDir().mkpath(m_folder->path("below")) && setPermissions(m_folder->path("below"), 0555));
        Unprivileged unprivileged;
        QVERIFY(unprivileged.isBound());
        write("lost");
        unprivileged.giveBack();
        QCOMPARE(m_folder->names("below"), QStringList());
        QVERIFY(setPermissions(m_folder->path("below"), 0755));
        write("after");
        QCOMPARE(content(), "after\n");
    }

    void theFolderCannotBeMade() {
        QVERIFY(setPermissions(m_folder->root(), 0555));
        Unprivileged unprivileged;
        QVERIFY(unprivileged.isBound());
        write("lost");
        unprivileged.giveBack();
        QVERIFY(!QDir(m_folder->path("below")).exists());
        QVERIFY(setPermissions(m_folder->root(), 0755));
        write("after");
        QCOMPARE(content(), "after\n");
    }

    void theFolderCannotBeEntered() {
        write("before");
        QVERIFY(setPermissions(m_folder->path("below"), 0000));
        Unprivileged unprivileged;
        QVERIFY(unprivileged.isBound());
        write("lost");
        unprivileged.giveBack();
        QVERIFY(setPermissions(m_folder->path("below"), 0755));
        write("after");
        QCOMPARE(content(), "before\nafter\n");
    }

    void theFileMayNotBeWritten() {
        write("before");
        QVERIFY(setPermissions(file(), 0444));
        Unprivileged unprivileged;
        QVERIFY(unprivileged.isBound());
        write("lost");
        unprivileged.giveBack();
        QVERIFY(setPermissions(file(), 0644));
        write("after");
        QCOMPARE(content(), "before\nafter\n");
    }

    void theDiskIsFull() {
        write("before");
        QVERIFY(QFile::rename(file(), file() + ".kept") && QFile::link("/dev/full", file()));
        write("lost");
        QVERIFY(QFile::remove(file()) && QFile::rename(file() + ".kept", file()));
        write("after");
        QCOMPARE(content(), "before\nafter\n");
    }

    // A disk has room for part of the line: that part stays, and the next line follows it.
    void theDiskGetsFullWithinALine() {
        write("before");
        {
            const FileLimit limit(10);
            QVERIFY(limit.isSet());
            write("partly lost");
            write("lost");
        }
        write("after");
        QCOMPARE(content(), "before\nparafter\n");
    }

    void theClockIsSetBack() {
        write("of the 14th");
        m_clock.set(noon(2025, 3, 10));
        write("of the 10th");
        m_clock.set(noon(2025, 3, 14));
        write("of the 14th again");
        QCOMPARE(content(), "of the 14th\nof the 14th again\n");
        QCOMPARE(m_folder->content("below/" + m_name + "_20250310.log"), "of the 10th\n");
    }

    void tenThousandFilesAreInTheFolder() {
        for (int i = 1; i < 10000; ++i)
            QVERIFY(m_folder->make(QString("below/%1_20250314_%2.log").arg(m_name).arg(i), 0));
        write("one");
        write("two");
        QCOMPARE(m_folder->content("below/" + m_name + "_20250314_9999.log"), "one\ntwo\n");
    }

    void thereAreNoDescriptorsLeft() {
        rlimit before;
        QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
        const rlimit none{0, before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
        write("lost");
        QCOMPARE(::setrlimit(RLIMIT_NOFILE, &before), 0);
        write("after");
        QCOMPARE(content(), "after\n");
    }

    void noDescriptorIsLeftOpen() {
        const int before = openDescriptors();
        for (int i = 0; i < 100; ++i)
            write("line");
        QVERIFY(QFile::remove(file()) && QDir().mkdir(file()));
        for (int i = 0; i < 100; ++i)
            write("lost");
        QCOMPARE(openDescriptors(), before);
    }

    void aPipeInPlaceOfTheFileGetsTheLines() {
        QVERIFY(QDir().mkpath(m_folder->path("below")));
        Pipe pipe(file());
        QVERIFY(pipe.isMade() && pipe.openToRead());
        const int before = openDescriptors();
        write("one");
        write("two");
        QCOMPARE(pipe.read(), QByteArray("one\ntwo\n"));
        QCOMPARE(openDescriptors(), before);
    }

    // Opening waits for the pipe's reader, and signals come meanwhile.
    void aSignalDoesNotTakeTheLineAway() {
        QVERIFY(QDir().mkpath(m_folder->path("below")));
        Pipe pipe(file());
        QVERIFY(pipe.isMade());
        const Interrupting interrupting;
        std::atomic<bool> isWritten{false};
        std::thread writer([&] {
            write("kept");
            isWritten = true;
        });
        while (interruptions < 50 && !isWritten) {
            ::pthread_kill(writer.native_handle(), SIGUSR1);
            QThread::msleep(1);
        }
        QVERIFY(pipe.openToRead());
        writer.join();
        QCOMPARE(pipe.read(), QByteArray("kept\n"));
    }

    void aNameWithANulCharacterIsNoFiles() {
        FLog("", "", path() + QChar(0) + "x", "log") << "lost";
        FLog("", "", path() + QChar(0) + "/x", "log") << "lost";
        QVERIFY(!QDir(m_folder->path("below")).exists());
        FLog("", "", path(), QString("log") + QChar(0)) << "lost";
        QCOMPARE(m_folder->names("below"), QStringList());
        write("after");
        QCOMPARE(m_folder->names("below").size(), 1);
        QCOMPARE(content(), "after\n");
    }

private:
    void write(const char* text) { FLog("", "", path(), "log") << text; }
    QString path() const { return m_folder->path("below/") + m_name; }
    QString file() const { return path() + "_20250314.log"; }
    QByteArray content() const { return m_folder->content("below/" + m_name + "_20250314.log"); }

    Clock m_clock;
    int m_logs = 0;
    QString m_name;
    std::unique_ptr<pendanttest::LogWatch> m_watch;
    std::unique_ptr<LogFolder> m_folder;
};

QTEST_APPLESS_MAIN(TestFaults)
#include "tst_logging_faults.moc"
