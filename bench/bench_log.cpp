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

// A line of 80 bytes with its line break, by kite::FLog and by others. So many lines a run that no file gets full.

namespace {

using kite::PluginLogFileManager;

const int linesARun = 60000;

const QString tag = QStringLiteral("[I|03/14 09:26:53.058]");
const QString module = QStringLiteral("<bench>");
const QString text = QString(QLatin1Char('x')).repeated(50);
const QString ext = QStringLiteral("log");
const QByteArray wholeLine = (tag + module + text).toUtf8() + '\n';

/// The folder that the lines of one run go to. What they added is taken out of the manager's sum again.
class Folder {
public:
    explicit Folder(int otherFiles = 0) {
        for (int i = 0; i < otherFiles; ++i)
            QFile(path() + QString("_19990101_%1.log").arg(i + 1)).open(QIODevice::WriteOnly);
    }
    ~Folder() { PluginLogFileManager::instance()->updateFileSize(file(), 0); }

    QString path() const { return m_folder.filePath("kite"); }
    QString file() const { return path() + '_' + QDate::currentDate().toString("yyyyMMdd") + ".log"; }

private:
    Q_DISABLE_COPY(Folder)
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

// Too little for anything to be deleted, so this is the walk.
void walkToCleanUp(benchmark::State& state) {
    const QString path = folder->path();
    PluginLogFileManager manager(nullptr);
    for (auto _ : state)
        manager.cleanupOldFiles(path);
}
BENCHMARK(walkToCleanUp)
    ->Setup(makeFullFolder)
    ->Teardown(removeFolder)
    ->Apply(folderSizes)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    FLAGS_logbuflevel = -1; // flushed after each line
    FLAGS_stderrthreshold = google::GLOG_FATAL;
    google::InitGoogleLogging(argv[0]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
