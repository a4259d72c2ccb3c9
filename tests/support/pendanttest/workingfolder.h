#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace pendanttest {

/// An empty folder that is the process's working directory while this lives, and is removed afterwards.
class WorkingFolder {
public:
    WorkingFolder();
    ~WorkingFolder();

    QString path() const { return m_folder.path(); }
    /// Lines of the log files in "log" beneath the folder, files in the order of their names.
    QStringList logLines() const;

private:
    Q_DISABLE_COPY(WorkingFolder)
    QString m_before;
    QTemporaryDir m_folder;
};

} // namespace pendanttest
