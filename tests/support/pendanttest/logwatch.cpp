#include "pendanttest/logwatch.h"

#include <QMutex>
#include <QMutexLocker>
#include <QTest>

#include <cstdio>

namespace pendanttest {

namespace {

QMutex mutex;
QtMessageHandler handlerBefore = nullptr;
bool watching = false;
QStringList seen;
QStringList expected;
QStringList problems;

bool isRoutine(const QString& line) {
    return line.contains(QLatin1String("~Kite begin")) || line.contains(QLatin1String("~Kite end!"));
}

// The platform without a screen says this of itself, whatever the plugin does.
bool isOfThePlatform(const QString& line) {
    return line.startsWith(QLatin1String("This plugin does not support "));
}

bool isProblem(QtMsgType type, const QString& line) {
    const bool ofQt = type == QtWarningMsg || type == QtCriticalMsg;
    return (ofQt || line.contains(QLatin1String("[E|"))) && !isRoutine(line);
}

bool takeExpectation(const QString& line) {
    for (int i = 0; i < expected.size(); ++i) {
        if (!line.contains(expected.at(i)))
            continue;
        expected.removeAt(i);
        return true;
    }
    return false;
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& line) {
    if (type == QtFatalMsg)
        return handlerBefore(type, context, line);
    if (isOfThePlatform(line))
        return;
    const QMutexLocker lock(&mutex);
    seen.append(line);
    if (!takeExpectation(line) && isProblem(type, line))
        problems.append(QStringLiteral("Unexpected line: ") + line);
}

} // namespace

LogWatch::LogWatch() {
    if (watching)
        qFatal("There is a LogWatch already.");
    watching = true;
    handlerBefore = qInstallMessageHandler(handle);
}

LogWatch::~LogWatch() {
    verify();
    qInstallMessageHandler(handlerBefore);
    watching = false;
    forgetLines();
}

void LogWatch::expect(const QString& part) {
    const QMutexLocker lock(&mutex);
    expected.append(part);
}

void LogWatch::take(const QString& problem) {
    const QMutexLocker lock(&mutex);
    if (!takeExpectation(problem))
        problems.append(problem);
}

QStringList LogWatch::lines() const {
    const QMutexLocker lock(&mutex);
    return seen;
}

int LogWatch::count(const QString& part) const {
    return lines().filter(part).size();
}

void LogWatch::forgetLines() {
    const QMutexLocker lock(&mutex);
    seen.clear();
}

QStringList LogWatch::takeProblems() {
    const QMutexLocker lock(&mutex);
    QStringList taken = problems;
    for (const QString& part : expected)
        taken.append(QStringLiteral("Expected line that did not come: ") + part);
    problems.clear();
    expected.clear();
    return taken;
}

bool LogWatch::verify() {
    // QTest puts its own handler in place when it starts, so a watch from before that hears nothing.
    if (qInstallMessageHandler(handle) != handle)
        QTest::qFail("This LogWatch was made before the test began; make it in init().", __FILE__, __LINE__);
    const QStringList taken = takeProblems();
    for (const QString& problem : taken)
        QTest::qFail(qPrintable(problem), __FILE__, __LINE__);
    return taken.isEmpty();
}

} // namespace pendanttest
