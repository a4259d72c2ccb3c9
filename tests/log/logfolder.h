#pragma once

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

/// A folder with log files, gone afterwards.
class LogFolder {
public:
    LogFolder() = default;

    bool isValid() const { return m_folder.isValid(); }
    QString root() const { return m_folder.path(); }
    /// The path of a log, or of a file, in it.
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QStringList names(const QString& below = QString()) const {
        return QDir(path(below)).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::Name);
    }
    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(does not open)");
    }
    /// The lines of all files together.
    QList<QByteArray> lines() const {
        QList<QByteArray> all;
        for (const QString& name : names()) {
            QList<QByteArray> ofFile = content(name).split('\n');
            const QByteArray rest = ofFile.takeLast();
            all += ofFile;
            if (!rest.isEmpty())
                all += rest + "(without its end)";
        }
        return all;
    }

    /// Makes a file that takes no room on the disk, `ageS` seconds old.
    bool make(const QString& name, qint64 size, int ageS = 0) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        return file.open(QIODevice::ReadWrite) && file.resize(size) &&
               file.setFileTime(QDateTime::currentDateTime().addSecs(-ageS), QFileDevice::FileModificationTime);
    }

private:
    Q_DISABLE_COPY(LogFolder)
    QTemporaryDir m_folder;
};

/// Noon of a day, local time.
inline QDateTime noon(int year, int month, int day) {
    return QDateTime(QDate(year, month, day), QTime(12, 0));
}
