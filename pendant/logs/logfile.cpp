#include "logfile.h"

#include <QDir>
#include <QDirIterator>

#include <algorithm>
#include <tuple>

namespace pendant {

namespace {

QDate dayOf(const QString& part) {
    return part.size() == 8 ? QDate::fromString(part, QStringLiteral("yyyyMMdd")) : QDate();
}

// "kite_20250314_2" -> "kite", 2025-03-14, 2. A last part of eight digits is an index when a day stands before it.
void takeApart(const QString& name, LogFile* file) {
    QStringList parts = name.split(QLatin1Char('_'));
    file->log = name;
    bool isIndex = false;
    const int index = parts.last().toInt(&isIndex);
    if (parts.size() > 2 && isIndex && dayOf(parts.at(parts.size() - 2)).isValid()) {
        file->index = index;
        parts.removeLast();
    }
    file->day = parts.size() > 1 ? dayOf(parts.last()) : QDate();
    if (!file->day.isValid())
        return;
    parts.removeLast();
    file->log = parts.join(QLatin1Char('_'));
}

} // namespace

LogFile logFileOf(const QString& folder, const QString& path) {
    LogFile file;
    file.path = path;
    const QString inside = QDir(folder).relativeFilePath(path);
    const int slash = inside.lastIndexOf(QLatin1Char('/')) + 1;
    takeApart(inside.mid(slash).chopped(4), &file);
    file.log.prepend(inside.left(slash));
    return file;
}

bool isWrittenBefore(const LogFile& left, const LogFile& right) {
    return std::tie(left.log, left.day, left.index, left.path) <
           std::tie(right.log, right.day, right.index, right.path);
}

QVector<LogFile> findLogFiles(const QString& folder) {
    QVector<LogFile> files;
    QDirIterator walk(folder, {QStringLiteral("*.log")}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files.append(logFileOf(folder, walk.next()));
    std::sort(files.begin(), files.end(), isWrittenBefore);
    return files;
}

} // namespace pendant
