#pragma once

#include "kite/export.h"

#include <QMap>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QStringList>

namespace kite {

/// Says which file a line of the log goes to, begins a new file when one is full, and deletes old ones when there are
/// too many. kite::FLog asks it for each line; a plugin that only writes lines never meets it.
///
/// A log is named by a path without extension, for example "./log/kite", and an extension, for example "log". Its files
/// stand in the folder of the path:
///
///     kite_20250314.log       the first of the day
///     kite_20250314_1.log     the next, once that one held 10 MiB, and so on
///
/// Once the files that it knows of come to more than 200 MiB, the oldest "*.log" files of that folder and those below
/// it are deleted, whoever wrote them and whatever the extension of the log that is being written, the file that is
/// about to be written not excepted. The sum is counted upwards: on each new day the log's older files are added again,
/// so that deleting begins sooner than the disk holds 200 MiB.
///
/// Nothing is saved: after a restart the files on disk tell where the day's log goes on. For that, the name of a log
/// should hold no '_'. With one in it ("my_mod"), a restart takes the date of the day's first file for the number of
/// the last one and goes on in my_mod_20250314_20250314.log; with two or more it goes on in the first file, or in
/// number 1, full or not, when the first is full.
///
/// What is kept of a log is kept under its name and the day: logs of one name in two folders, or with two extensions,
/// share the number of the file and its size, and only the one that is asked for first has its older files counted.
///
/// Nothing is reported: a folder that is missing is made, a file that cannot be measured counts as empty, one that
/// cannot be deleted stays. Any thread may call, save where an operation says otherwise.
/// \since 0.1
class KITE_EXPORT PluginLogFileManager : public QObject {
    Q_OBJECT

public:
    /// The one that all log streams of the process ask; made on the first call, from any thread, and never destroyed,
    /// so that lines may be written until the process is gone.
    static PluginLogFileManager* instance();

    /// One that knows of no files yet. Use instance() instead: two that work in the same folder do not know of each
    /// other.
    explicit PluginLogFileManager(QObject* parent);
    ~PluginLogFileManager() override;

    /// Tells the file that the next line goes to. The first call for a log and a day looks through its folder, which it
    /// makes when it is missing. When the file holds 10 MiB or more, the name is that of the next one, and old files
    /// are deleted if there are too many. So this is the only moment at which a file is found to be full: the line that
    /// fills it is written whole.
    ///
    /// The lock is held meanwhile, and the message handler must not write to a log file then, see cleanupOldFiles().
    ///
    /// \param path the log's path without extension
    /// \param ext  the extension without the dot
    /// \return the file's name, with the folder as `path` has it. The file need not be there
    QString getProperLogFileName(const QString& path, const QString& ext);

    /// Takes note of the size of a file that a line has been appended to. Deletes old files if there are too many now.
    /// Ignores a file whose name does not follow the pattern above, "my_mod_20250314.log" included: of two '_' the
    /// second is taken to stand before a number.
    ///
    /// \param filePath as getProperLogFileName() said
    /// \param size     in bytes; how much has been added is worked out in 32 bits
    void updateFileSize(const QString& filePath, qint64 size);

    /// The name of a file: "prefix_date.ext" for index 0, else "prefix_date_index.ext".
    /// \param prefix the log's path
    /// \param date   "yyyyMMdd"
    QString buildFileName(const QString& prefix, const QString& date, int index, const QString& ext);

    /// Deletes the oldest "*.log" files of the folder of `path` and those below it while more than 200 MiB are counted.
    /// Each goes with a debug message, `Cleaned old log file: "kite_20250301.log" size: 10485812`.
    ///
    /// Called by the two operations above, which hold the lock for the whole of their run, also while the message
    /// handler runs; a message handler that writes to a log file for any message that comes while the lock is held,
    /// this one or one of Qt's own, waits for ever. Takes no lock itself, so nobody else may call it while others
    /// write.
    void cleanupOldFiles(const QString& path);

private:
    Q_DISABLE_COPY(PluginLogFileManager)

    QMutex lock;
    QStringList scannedKeys;
    QMap<QString, int> currentIndex;
    QMap<QString, qint64> currentSize;
    qint64 totalSize = 0;
};

} // namespace kite
