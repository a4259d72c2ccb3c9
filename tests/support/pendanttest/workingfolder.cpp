#include "pendanttest/workingfolder.h"

#include <QDir>
#include <QFile>

namespace pendanttest {

WorkingFolder::WorkingFolder() : m_before(QDir::currentPath()) {
    if (!m_folder.isValid() || !QDir::setCurrent(m_folder.path()))
        qFatal("There is no temporary folder to work in: %s", qPrintable(m_folder.errorString()));
}

WorkingFolder::~WorkingFolder() {
    QDir::setCurrent(m_before);
}

QStringList WorkingFolder::logLines() const {
    QStringList lines;
    const QDir folder(path() + QStringLiteral("/log"));
    for (const QString& name : folder.entryList({QStringLiteral("*.log")}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read.", qPrintable(file.fileName()));
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (!line.isEmpty())
                lines.append(QString::fromUtf8(line));
        }
    }
    return lines;
}

} // namespace pendanttest
