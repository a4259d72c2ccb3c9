#include "workfolder.h"

#include <QCoreApplication>
#include <QDir>

namespace pendant {

QString enterWorkFolder(const QString& path) {
    const QDir folder(path);
    for (const char* name : {"log", "upgrade", "workspace"}) {
        const QString child = folder.filePath(QLatin1String(name));
        if (!QDir().mkpath(child))
            return QCoreApplication::translate("pendant::WorkFolder",
                                               "The folder %1 cannot be made. Name another one with --work.")
                .arg(child);
    }
    if (!QDir::setCurrent(path))
        return QCoreApplication::translate("pendant::WorkFolder",
                                           "The folder %1 cannot be entered. Name another one with --work.")
            .arg(path);
    return QString();
}

} // namespace pendant
