#include "helm/vexmanager.h"
#include "program/linetypes.h"
#include "program/program.h"
#include "program/programfile.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <benchmark/benchmark.h>

#include <algorithm>

using pendant::LineTypes;
using pendant::Program;
using pendant::ProgramFile;

namespace {

const int typeCount = 1000;
const int lineCount = 10000;
const QString programPath("main.txt");

QString nameOf(int type) {
    return QString("Instruction%1").arg(type, 4, 10, QLatin1Char('0'));
}

// As a plugin registers an instruction that is its bare name.
QString patternOf(int type) {
    return QString("^\\s*%1\\s*(?://.*)?$").arg(nameOf(type));
}

void registerTypes() {
    helm::VexManager* registry = helm::VexManager::getVexManager();
    for (int type = 0; type < typeCount; ++type) {
        registry->typeKeys << nameOf(type);
        registry->patterns["c_" + nameOf(type)] = patternOf(type);
    }
}

/// No two are the same, so that none is known from before; every type has as many.
QStringList programLines() {
    QStringList lines;
    for (int i = 0; i < lineCount; ++i)
        lines << QString("%1 // step %2").arg(nameOf(i * 7 % typeCount)).arg(i);
    return lines;
}

QVector<QRegularExpression> expressions() {
    QVector<QRegularExpression> compiled;
    for (int type = 0; type < typeCount; ++type) {
        compiled << QRegularExpression(patternOf(type));
        compiled.last().optimize();
    }
    return compiled;
}

/// The matches that the rule of the first one needs, and nothing else.
int matchBare(const QVector<QRegularExpression>& compiled, const QStringList& lines) {
    int matches = 0;
    for (const QString& line : lines) {
        for (const QRegularExpression& expression : compiled) {
            ++matches;
            if (expression.match(line).hasMatch())
                break;
        }
    }
    return matches;
}

/// Reads the file, fills the model, reads and compiles what is registered, and asks for the type of every line.
int openAndClassify() {
    QStringList lines;
    QString error;
    Program program;
    if (!ProgramFile::load(programPath, &lines, &error) || !program.load(lines))
        qFatal("%s", qPrintable(error));
    const LineTypes types;
    int known = 0;
    for (int row = 0; row < program.rowCount(); ++row)
        known += !types.typeOf(program.index(row).data().toString()).isEmpty();
    if (known != lineCount)
        qFatal("%d lines of a type", known);
    return known;
}

template <typename Work> double secondsOf(const Work& work) {
    QElapsedTimer timer;
    timer.start();
    benchmark::DoNotOptimize(work());
    return double(timer.nsecsElapsed()) / 1e9;
}

double medianOf(QVector<double> values) {
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

// Both in turn, so that what else the machine does weighs on both.
void openAndClassifyAgainstBareMatches(benchmark::State& state) {
    const QStringList lines = programLines();
    const QVector<QRegularExpression> compiled = expressions();
    QVector<double> ratios;
    double bare = 0;
    int matches = 0;
    for (auto _ : state) {
        const double bareSeconds = secondsOf([&] { return matches = matchBare(compiled, lines); });
        const double seconds = secondsOf(openAndClassify);
        state.SetIterationTime(seconds);
        ratios << seconds / bareSeconds;
        bare += bareSeconds;
    }
    state.counters["bare_ms"] = bare / ratios.size() * 1000;
    state.counters["matches"] = matches;
    state.counters["ratio"] = medianOf(ratios);
}
BENCHMARK(openAndClassifyAgainstBareMatches)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);

// What is done anew when a plugin has registered something.
void readAndCompileTypes(benchmark::State& state) {
    for (auto _ : state)
        const LineTypes types;
}
BENCHMARK(readAndCompileTypes)->Unit(benchmark::kMillisecond);

void readTypesAgain(benchmark::State& state) {
    LineTypes types;
    for (auto _ : state)
        types.reload();
}
BENCHMARK(readTypesAgain)->Unit(benchmark::kMillisecond);

void askWhetherStale(benchmark::State& state) {
    const LineTypes types;
    for (auto _ : state)
        benchmark::DoNotOptimize(types.isStale());
}
BENCHMARK(askWhetherStale);

/// A screen of lines that try every pattern in vain.
QStringList screenLines() {
    QStringList lines;
    for (int i = 0; i < 30; ++i)
        lines << QString("Instruction%1 %2").arg(i * 33, 4, 10, QLatin1Char('0')).arg(i);
    return lines;
}

// It is painted for the first time, and again.
void classifyScreenOfNewLines(benchmark::State& state) {
    const QStringList lines = screenLines();
    LineTypes types;
    for (auto _ : state) {
        state.PauseTiming();
        types.reload();
        state.ResumeTiming();
        for (const QString& line : lines)
            benchmark::DoNotOptimize(types.typeOf(line));
    }
}
BENCHMARK(classifyScreenOfNewLines)->Unit(benchmark::kMicrosecond);

void classifyScreenOfKnownLines(benchmark::State& state) {
    const QStringList lines = screenLines();
    const LineTypes types;
    for (auto _ : state) {
        for (const QString& line : lines)
            benchmark::DoNotOptimize(types.typeOf(line));
    }
}
BENCHMARK(classifyScreenOfKnownLines)->Unit(benchmark::kMicrosecond);

void saveProgram(benchmark::State& state) {
    const QStringList lines = programLines();
    QString error;
    for (auto _ : state) {
        if (!ProgramFile::save("saved.txt", lines, &error))
            qFatal("%s", qPrintable(error));
    }
}
BENCHMARK(saveProgram)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    QString error;
    if (!folder.isValid() || !QDir::setCurrent(folder.path()) ||
        !ProgramFile::save(programPath, programLines(), &error))
        return 1;
    registerTypes();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QDir::rootPath());
    return 0;
}
