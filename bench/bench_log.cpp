#include "kite/log.h"
#include "kite/logfilemanager.h"
#include "kite/logtime.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>
#include <glog/logging.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

// A line of 80 bytes with its line break, by kite::FLog and by others. So many lines a run that no file gets full. The
// figures are medians of several runs; --benchmark_repetitions and the like say otherwise.

namespace {

using kite::PluginLogFileManager;

const int linesARun = 60000;

const QString tag = QStringLiteral("[I|03/14 09:26:53.058]");
const QString module = QStringLiteral("<bench>");
const QString text = QString(QLatin1Char('x')).repeated(50);
const QString ext = QStringLiteral("log");
const QByteArray wholeLine = (tag + module + text).toUtf8() + '\n';

const qint64 mostBytes = 209715200;

/// The folder that the lines of one run go to. What they added is taken out of the manager's sum again.
class Folder {
public:
    /// \param fullFiles of today, to look through
    explicit Folder(int fullFiles = 0) {
        for (int i = 0; i < fullFiles; ++i)
            QFile(fullFile(i + 1)).open(QIODevice::WriteOnly);
    }
    ~Folder() { PluginLogFileManager::instance()->updateFileSize(file(), 0); }

    QString path() const { return m_folder.filePath("kite"); }
    QString file() const { return start() + ".log"; }
    QString fullFile(int index) const { return start() + QString("_%1.log").arg(index); }
    QString root() const { return m_folder.path(); }

private:
    Q_DISABLE_COPY(Folder)
    QString start() const { return path() + '_' + QDate::currentDate().toString("yyyyMMdd"); }

    QTemporaryDir m_folder;
};

std::unique_ptr<Folder> folder;

void makeFolder(const benchmark::State&) {
    folder = std::make_unique<Folder>();
}

void makeFullFolder(const benchmark::State& state) {
    folder = std::make_unique<Folder>(int(state.range(0)));
    kite::FLog("", "", folder->path(), ext);
}

void removeFolder(const benchmark::State&) {
    folder.reset();
}

void countLines(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations());
}

void asLines(benchmark::internal::Benchmark* bench) {
    bench->Setup(makeFolder)->Teardown(removeFolder)->UseRealTime();
    for (int threads : {1, 2})
        bench->Threads(threads)->Iterations(linesARun);
}

void lineByFLog(benchmark::State& state) {
    const QString path = folder->path();
    for (auto _ : state)
        kite::FLog(tag, module, path, ext) << text;
    countLines(state);
}
BENCHMARK(lineByFLog)->Apply(asLines);

void lineByFLogWithTheTime(benchmark::State& state) {
    const QString path = folder->path();
    for (auto _ : state)
        kite::FLog("[I|" + kite::logTime() + ']', module, path, ext) << text;
    countLines(state);
}
BENCHMARK(lineByFLogWithTheTime)->Apply(asLines);

void lineBySystemCalls(benchmark::State& state) {
    const QByteArray name = QFile::encodeName(folder->file());
    for (auto _ : state) {
        const int file = ::open(name.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
        if (::write(file, wholeLine.constData(), size_t(wholeLine.size())) != wholeLine.size())
            state.SkipWithError("the line was not written");
        struct stat status;
        ::fstat(file, &status);
        benchmark::DoNotOptimize(status);
        ::close(file);
    }
    countLines(state);
}
BENCHMARK(lineBySystemCalls)->Apply(asLines);

void writeByTextStream(const QString& name, const QString& start) {
    QFile file(name);
    file.open(QIODevice::Append);
    QTextStream stream(&file);
    stream << start << module << text << '\n';
    stream.flush();
}

void lineByTextStream(benchmark::State& state) {
    const QString name = folder->file();
    for (auto _ : state)
        writeByTextStream(name, tag);
    countLines(state);
}
BENCHMARK(lineByTextStream)->Apply(asLines);

void lineByTextStreamWithTheTime(benchmark::State& state) {
    const QString name = folder->file();
    for (auto _ : state)
        writeByTextStream(name, "[I|" + QDateTime::currentDateTime().toString("MM/dd hh:mm:ss.zzz") + ']');
    countLines(state);
}
BENCHMARK(lineByTextStreamWithTheTime)->Apply(asLines);

std::shared_ptr<spdlog::logger> spdlogger;

void makeSpdlogger(const benchmark::State& state) {
    makeFolder(state);
    spdlogger = spdlog::rotating_logger_mt("bench", qPrintable(folder->path()), 10485760, 20);
    spdlogger->set_pattern("[%L|%m/%d %H:%M:%S.%e]<bench>%v");
    spdlogger->flush_on(spdlog::level::trace);
}

void removeSpdlogger(const benchmark::State& state) {
    spdlogger.reset();
    spdlog::drop_all();
    removeFolder(state);
}

void lineBySpdlog(benchmark::State& state) {
    const std::string words = text.toStdString();
    for (auto _ : state)
        spdlogger->info(words);
    countLines(state);
}
BENCHMARK(lineBySpdlog)
    ->Setup(makeSpdlogger)
    ->Teardown(removeSpdlogger)
    ->UseRealTime()
    ->Threads(1)
    ->Threads(2)
    ->Iterations(linesARun);

void startGlog(const benchmark::State& state) {
    makeFolder(state);
    google::SetLogDestination(google::GLOG_INFO, qPrintable(folder->path()));
}

void lineByGlog(benchmark::State& state) {
    const std::string words = text.toStdString();
    for (auto _ : state)
        LOG(INFO) << words;
    countLines(state);
}
BENCHMARK(lineByGlog)
    ->Setup(startGlog)
    ->Teardown(removeFolder)
    ->UseRealTime()
    ->Threads(1)
    ->Threads(2)
    ->Iterations(linesARun);

void folderSizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(10)->Arg(1000)->Arg(10000);
}

void lineBesideManyFiles(benchmark::State& state) {
    const QString path = folder->path();
    for (auto _ : state)
        kite::FLog(tag, module, path, ext) << text;
    countLines(state);
}
BENCHMARK(lineBesideManyFiles)
    ->Setup(makeFullFolder)
    ->Teardown(removeFolder)
    ->Apply(folderSizes)
    ->Iterations(linesARun);

void firstNameOfADay(benchmark::State& state) {
    const QString path = folder->path();
    for (auto _ : state) {
        PluginLogFileManager manager(nullptr);
        benchmark::DoNotOptimize(manager.getProperLogFileName(path, ext));
    }
}
BENCHMARK(firstNameOfADay)
    ->Setup(makeFullFolder)
    ->Teardown(removeFolder)
    ->Apply(folderSizes)
    ->Unit(benchmark::kMillisecond);

void setMode(const QString& path, mode_t mode) {
    if (::chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("The folder's permissions cannot be set.");
}

void setUser(uid_t user) {
    if (::seteuid(user) != 0)
        qFatal("The process cannot become another user.");
}

const bool isRoot = ::geteuid() == 0;
const uid_t nobody = 65534;

// Nothing in the folder can be deleted, by root neither.
void makeFolderOfLockedFiles(const benchmark::State& state) {
    makeFullFolder(state);
    setMode(folder->root(), 0555);
    if (isRoot)
        setUser(nobody);
}

void removeFolderOfLockedFiles(const benchmark::State& state) {
    if (isRoot)
        setUser(0);
    setMode(folder->root(), 0755);
    removeFolder(state);
}

// Too much is counted and nothing can be deleted: the walk, and an attempt at each file.
void walkToCleanUp(benchmark::State& state) {
    const QString path = folder->path();
    PluginLogFileManager manager(nullptr);
    manager.updateFileSize(folder->file(), mostBytes + 1);
    for (auto _ : state)
        manager.cleanupOldFiles(path);
    if (!QFile::exists(folder->fullFile(1)))
        state.SkipWithError("a file was deleted");
}
BENCHMARK(walkToCleanUp)
    ->Setup(makeFolderOfLockedFiles)
    ->Teardown(removeFolderOfLockedFiles)
    ->Apply(folderSizes)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    FLAGS_logbuflevel = -1; // flushed after each line
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    google::InitGoogleLogging(argv[0]);
    // In front of what the caller says, which counts more.
    char repetitions[] = "--benchmark_repetitions=5";
    char medians[] = "--benchmark_report_aggregates_only=true";
    std::vector<char*> arguments = {argv[0], repetitions, medians};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = int(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
