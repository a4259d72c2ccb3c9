#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace pendant {

/// A program on disk: plain text in UTF-8, one line each, each ended by a line feed.
class ProgramFile {
    Q_DECLARE_TR_FUNCTIONS(pendant::ProgramFile)

public:
    /// In bytes. A file that is longer is neither read nor written.
    static constexpr qint64 maxSize = 32 * 1024 * 1024;

    /// Reads `path`. Carriage returns before line feeds, a missing last line feed and a byte order mark are accepted.
    /// What is no UTF-8, is longer than maxSize or has a line that Program refuses is left alone. \param error what is
    /// wrong, a sentence; untouched when nothing is \return false, and `lines` as they were, when it cannot be read
    /// \param fingerprint may be null; of what was read
    static bool load(const QString& path, QStringList* lines, QString* error, QByteArray* fingerprint = nullptr);

    /// Whether it is certain that there is no file at `path`: its folder, or the folder `project`, can be searched.
    /// \param error why it is not certain, a sentence; untouched when it is, and when the file is there
    static bool isMissing(const QString& path, const QString& project, QString* error);

    /// @name Fingerprints
    /// Those of two files are the same only when they hold the same.
    /// @{

    /// Of the file that these lines make.
    static QByteArray fingerprint(const QStringList& lines);
    /// Of a file; empty when none is there. \return false when it is there and cannot be read
    static bool readFingerprint(const QString& path, QByteArray* fingerprint, QString* error);
    /// @}

    /// Writes `path` aside and moves it into its place; makes the folder.
    /// \param lines such as Program takes
    /// \param error what is wrong, a sentence; untouched when nothing is
    /// \return false, and the file as it was, when it cannot be written
    static bool save(const QString& path, const QStringList& lines, QString* error);

private:
    static QByteArray fingerprintOf(const QByteArray& bytes);
    static QString readBytes(const QString& path, QByteArray* bytes);
    static QString readLines(const QByteArray& bytes, QStringList* lines);
    static QString write(const QString& path, const QByteArray& bytes);
    static QString tooLong();
};

} // namespace pendant
