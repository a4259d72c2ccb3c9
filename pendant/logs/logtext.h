#pragma once

#include "logfile.h"
#include "logread.h"
#include "logrows.h"

#include <QCache>
#include <QPair>

namespace pendant {

/// The lines of one log over all its files, the oldest first. Of the files it reads only what is asked for, in blocks
/// of 64 KiB, and remembers few of them.
///
/// A row is a line, with or without its line break. A line longer than a block is several rows: one begins at every
/// block that has a block without any line break before it. So the rows at a place depend on the bytes near it alone.
class LogText : public LogRows {
public:
    enum Change {
        Unchanged,
        Grown, ///< there is more at the end, or less at the beginning; places stay what they are
        Anew   ///< another text; no place of before is one
    };

    static constexpr int blockSize = 65536;

    LogText();

    /// The files, in the order of writing.
    Change setFiles(const QVector<LogFile>& files);
    /// Looks whether the files are as they were: the newest two, the one that grew last, and one other each time.
    Change refresh();

    int fileCount() const { return m_files.size(); }
    /// All files together, in bytes.
    qint64 size() const { return m_size; }
    /// The number of the first file, as in LogPlace.
    int firstFile() const { return m_firstFile; }
    const LogFile& file(int number) const { return m_files.at(number - m_firstFile).file; }
    qint64 fileSize(int number) const;
    /// Why the newest file that cannot be read cannot be; empty when all can.
    QString problem(QString* path) const;

    LogPlace first() const override;
    LogPlace end() const override;
    LogPlace next(const LogPlace& row) const override;
    LogPlace previous(const LogPlace& row) const override;
    LogPlace rowAt(const LogPlace& place) const override;
    double fractionBefore(const LogPlace& row) const override;
    LogPlace rowAtFraction(double fraction) const override;

    /// The bytes of the row without its line break.
    QByteArray row(const LogPlace& row) const;
    /// Bytes of one file, read anew and not remembered.
    QByteArray bytes(const LogPlace& from, qint64 length) const;
    /// How many bytes are between two places.
    qint64 distance(const LogPlace& from, const LogPlace& to) const;
    /// The file before the last that has grown since it was first looked at; -1 for none. Whoever does not rotate goes
    /// on with an old file while others write to the next.
    int grownBefore() const { return m_grown < m_firstFile ? -1 : m_grown; }
    /// The day that a file is about: that in its name, otherwise today.
    QDate dayOf(int number) const;

private:
    struct File {
        LogFile file;
        LogFileLook look;
        qint64 before = 0; ///< bytes in the files before it
    };

    bool has(int number) const { return number >= m_firstFile && number < m_firstFile + m_files.size(); }
    Change lookAt(int index);
    void begin(const QVector<LogFile>& files, int from);
    Change startAnew();
    void sum();
    QByteArray block(int number, qint64 index) const;
    qint64 rowStart(int number, qint64 offset) const;
    qint64 rowEnd(int number, qint64 offset) const;
    LogPlace firstFrom(int number) const;

    QVector<File> m_files;
    int m_firstFile = 0;
    int m_probed = 0;
    int m_grown = -1;
    qint64 m_size = 0;
    mutable QCache<QPair<int, qint64>, QByteArray> m_blocks;
};

} // namespace pendant
