#pragma once

#include "logs/logfile.h"

#include <QComboBox>
#include <QWidget>

namespace pendant {

/// The choice of a log, and of one of its days or files. Without a choice it is the log with the newest day when
/// the first are listed, and all of it.
class LogChooser : public QWidget {
    Q_OBJECT

public:
    explicit LogChooser(QWidget* parent = nullptr);

    /// What there is to choose from, in the order of writing. What was chosen stays chosen while it is there.
    void setFiles(const QVector<LogFile>& files);
    /// The files that are chosen, in the order of writing.
    QVector<LogFile> chosen() const;

    void retranslate();

signals:
    void changed();

private:
    void listLogs();
    void listDays();
    QVector<QVariant> days() const;
    QString logToShow(const QStringList& logs) const;
    QString defaultLog() const;

    QVector<LogFile> m_files;
    QString m_wantedLog; ///< that somebody chose; empty for none
    QComboBox* m_logs;
    QComboBox* m_days; ///< holds a day, the path of a file, or nothing for all
};

} // namespace pendant
