#pragma once

#include "logs/logfile.h"
#include "logs/logtext.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

/// A folder "log" in a place of its own, and files in it.
class LogFixture {
public:
    LogFixture() { QDir(m_folder.path()).mkdir("log"); }

    QString folder() const { return m_folder.filePath("log"); }
    QString path(const QString& name) const { return folder() + '/' + name; }

    void write(const QString& name, const QByteArray& bytes) const { put(name, bytes, QIODevice::WriteOnly); }
    void append(const QString& name, const QByteArray& bytes) const {
        put(name, bytes, QIODevice::WriteOnly | QIODevice::Append);
    }
    /// Another name for the file: many files that need the room of one.
    void link(const QString& name, const QString& other) const {
        QVERIFY(::link(QFile::encodeName(path(name)), QFile::encodeName(path(other))) == 0);
    }
    /// Others may go into the folder and list it.
    void letOthersIn() const {
        for (const QString& folder : {m_folder.path(), this->folder()})
            QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7755)));
    }
    QVector<pendant::LogFile> files() const { return pendant::findLogFiles(folder()); }

    /// "[I|03/14 09:00:00.000]<weld>text\n"
    static QByteArray line(const char* tag, const char* time, const QByteArray& rest) {
        return QByteArray("[") + tag + "|03/14 " + time + ']' + rest + '\n';
    }
    static QByteArray info(const QByteArray& text) { return line("I", "09:00:00.000", "<weld>" + text); }

private:
    void put(const QString& name, const QByteArray& bytes, QIODevice::OpenMode mode) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        QVERIFY(file.open(mode | QIODevice::Unbuffered));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    QTemporaryDir m_folder;
};

/// The rows from the first to the last.
inline QList<QByteArray> rowsForwards(const pendant::LogText& text, const pendant::LogRows& rows) {
    QList<QByteArray> result;
    for (pendant::LogPlace row = rows.first(); row < rows.end(); row = rows.next(row))
        result.append(text.row(row));
    return result;
}

/// The rows as they are met from the last to the first, in the order of the text.
inline QList<QByteArray> rowsBackwards(const pendant::LogText& text, const pendant::LogRows& rows) {
    QList<QByteArray> result;
    for (pendant::LogPlace row = rows.previous(rows.end()); row.isValid(); row = rows.previous(row))
        result.prepend(text.row(row));
    return result;
}

/// How many bytes this process has asked the system for so far.
inline qint64 bytesRead() {
    QFile file("/proc/self/io");
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readLine().split(':').value(1).trimmed().toLongLong();
}
