#include "kite/logfilemanager.h"

#include "log/filenames.h"
#include "log/hold.h"
#include "log/logfiles.h"

#include "kite/logtime.h"

#include <QDateTime>
#include <QDebug>
#include <QFile>
#include <QStringBuilder>

#include <limits>

namespace kite {

namespace {

const qint64 fullFileBytes = 10 * 1024 * 1024;
const qint64 mostBytes = 200 * 1024 * 1024;

QString today() {
    return QString::fromLatin1(detail::localSecond(detail::secondOf(QDateTime::currentMSecsSinceEpoch())).day);
}

// The difference is worked out in 32 bits, and wraps; intended.
qint32 growth(qint64 before, qint64 now) {
    return static_cast<qint32>(static_cast<quint32>(now) - static_cast<quint32>(before));
}

// Asked once a day, so each new day adds the files of the days before once more. The sum outgrows the disk by that, and
// deleting begins sooner; intended.
qint64 sizeOfLog(const QString& path, const QString& ext) {
    makeFolderOf(path);
    return sumOfSizesBeside(path, lastPart(path) + QLatin1String("*.") + ext);
}

int greatestIndex(const QString& path, const QString& key, const QString& ext) {
    makeFolderOf(path);
    int index = 0;
    for (const QString& name : fileNamesBeside(path, key + QLatin1String("*.") + ext))
        index = qMax(index, indexInFileName(name));
    return index;
}

void countUp(int* index) {
    if (*index < std::numeric_limits<int>::max())
        ++*index;
}

} // namespace

// Left to the operating system: plugins write lines from their last destructors, and other threads may still be at it.
PluginLogFileManager* PluginLogFileManager::instance() {
    static auto* const manager = new PluginLogFileManager(nullptr);
    return manager;
}

PluginLogFileManager::PluginLogFileManager(QObject* parent) : QObject(parent) {}

PluginLogFileManager::~PluginLogFileManager() = default;

QString PluginLogFileManager::getProperLogFileName(const QString& path, const QString& ext) {
    const Hold hold(&lock);
    const QString date = today();
    const QString key = dayKey(path, date);
    // One look for both: what has an index has been scanned, and the reverse.
    auto indexOfDay = currentIndex.find(key);
    if (indexOfDay == currentIndex.end()) {
        totalSize += sizeOfLog(path, ext);
        scannedKeys.append(key);
        indexOfDay = currentIndex.insert(key, greatestIndex(path, key, ext));
        currentSize[key] = 0;
    }

    int& index = *indexOfDay;
    qint64& size = currentSize[key];
    const QString fileName = buildFileName(path, date, index, ext);
    const qint64 onDisk = sizeOnDisk(fileName);
    if (onDisk >= 0)
        size = onDisk;
    if (size < fullFileBytes)
        return fileName;
    countUp(&index);
    size = 0;
    cleanupOldFiles(path);
    return buildFileName(path, date, index, ext);
}

void PluginLogFileManager::updateFileSize(const QString& filePath, qint64 size) {
    const Hold hold(&lock);
    const QString key = dayKeyOfFile(filePath);
    if (key.isEmpty())
        return;
    qint64& known = currentSize[key];
    totalSize += growth(known, size);
    known = size;
    if (totalSize > mostBytes)
        cleanupOldFiles(filePath);
}

QString PluginLogFileManager::buildFileName(const QString& prefix, const QString& date, int index, const QString& ext) {
    const QLatin1Char separator('_');
    const QLatin1Char dot('.');
    if (index == 0)
        return prefix % separator % date % dot % ext;
    return prefix % separator % date % separator % QString::number(index) % dot % ext;
}

void PluginLogFileManager::cleanupOldFiles(const QString& path) {
    if (totalSize <= mostBytes)
        return;
    const QVector<OldFile> files = logFilesByAge(path);
    for (const OldFile& file : files) {
        if (totalSize <= mostBytes)
            return;
        if (!QFile::remove(file.absolutePath))
            continue;
        totalSize -= file.size;
        qDebug() << "Cleaned old log file:" << lastPart(file.absolutePath) << "size:" << file.size;
    }
}

} // namespace kite
