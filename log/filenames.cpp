#include "log/filenames.h"

#include <QStringBuilder>
#include <QStringRef>

namespace kite {

namespace {

const QLatin1Char separator('_');
const int dateLength = 8;

/// As QFileInfo::baseName() has it: the name up to its first dot.
QStringRef baseName(const QString& filePath) {
    const int start = filePath.lastIndexOf(QLatin1Char('/')) + 1;
    const int dot = filePath.indexOf(QLatin1Char('.'), start);
    return filePath.midRef(start, dot < 0 ? -1 : dot - start);
}

} // namespace

QString lastPart(const QString& path) {
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

QString dayKey(const QString& path, const QString& date) {
    return path.midRef(path.lastIndexOf(QLatin1Char('/')) + 1) % separator % date;
}

// What stands behind the second separator or a later one is an index. For a log with a separator in its own name that
// is wrong, and intended: its first file of a day is not counted.
QString dayKeyOfFile(const QString& filePath) {
    QStringRef key = baseName(filePath);
    if (key.count(separator) > 1)
        key.truncate(key.lastIndexOf(separator));
    const int beforeDate = key.lastIndexOf(separator);
    const bool hasDate = beforeDate >= 0 && key.size() - beforeDate - 1 == dateLength;
    return hasDate ? key.toString() : QString();
}

// Misreads logs with a separator in their own name, which is intended: of "my_mod_20250314.log" the date is the index,
// and of "my_mod_20250314_1.log" there is none.
int indexInFileName(const QString& fileName) {
    const QStringRef base = baseName(fileName);
    if (base.count(separator) != 2)
        return 0;
    bool isNumber = false;
    const int index = base.mid(base.lastIndexOf(separator) + 1).toInt(&isNumber);
    return isNumber && index > 0 ? index : 0;
}

} // namespace kite
