#pragma once

#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include <QRegularExpression>
#include <QTest>

/// Verifies that one line was written on the console and one into the log, both at the error level: red, "[E|time]",
/// then `moduleAndText`.
inline void verifyErrorLine(const pendanttest::LogWatch& log, const pendanttest::WorkingFolder& folder,
                            const QString& moduleAndText) {
    const QString line = QStringLiteral("\\[E\\|\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\]") +
                         QRegularExpression::escape(moduleAndText);
    QCOMPARE(log.lines().size(), 1);
    QVERIFY2(QRegularExpression("\\A\x1b\\[31m" + line + "\x1b\\[0m\\z").match(log.lines().at(0)).hasMatch(),
             qPrintable(log.lines().at(0)));
    const QStringList file = folder.logLines();
    QCOMPARE(file.size(), 1);
    QVERIFY2(QRegularExpression("\\A" + line + "\\z").match(file.at(0)).hasMatch(), qPrintable(file.at(0)));
}
