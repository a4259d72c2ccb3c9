#include "logfile.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace brisk {

void appendToDayFile(const QString& path, const QString& ext, const QString& line) {
    const QString day = QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
    QFile file(path + QLatin1Char('_') + day + QLatin1Char('.') + ext);
    QDir().mkpath(QFileInfo(file).path());
    // Unbuffered, so that lines of several writers do not mix: one line is one write.
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        file.write(line.toUtf8() + '\n');
}

} // namespace brisk
