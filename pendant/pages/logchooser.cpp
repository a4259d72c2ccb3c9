#include "logchooser.h"

#include <QFileInfo>
#include <QHBoxLayout>

#include <algorithm>

namespace pendant {

namespace {

// What the library and the pendant write themselves.
const QLatin1String ownLog("kite");

bool isChosen(const LogFile& file, const QVariant& choice) {
    if (choice.type() == QVariant::String)
        return file.path == choice.toString();
    return !choice.isValid() || file.day == choice.toDate();
}

QString fileLabel(const LogFile& file) {
    if (!file.day.isValid())
        return QFileInfo(file.path).fileName();
    return QStringLiteral("%1 · %2").arg(file.day.toString(Qt::ISODate)).arg(file.index);
}

} // namespace

LogChooser::LogChooser(QWidget* parent) : QWidget(parent), m_logs(new QComboBox(this)), m_days(new QComboBox(this)) {
    m_logs->setObjectName(QStringLiteral("logName"));
    m_days->setObjectName(QStringLiteral("logDay"));
    m_logs->setMinimumWidth(152);
    m_days->setMinimumWidth(208);
    m_logs->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_logs);
    row->addWidget(m_days);
    connect(m_logs, QOverload<int>::of(&QComboBox::activated), this, [this] {
        m_wantedLog = m_logs->currentText();
        m_days->clear();
        listDays();
        emit changed();
    });
    connect(m_days, QOverload<int>::of(&QComboBox::activated), this, &LogChooser::changed);
}

void LogChooser::setFiles(const QVector<LogFile>& files) {
    m_files = files;
    listLogs();
    listDays();
}

QVector<LogFile> LogChooser::chosen() const {
    const QString log = m_logs->currentText();
    const QVariant choice = m_days->currentData();
    QVector<LogFile> result;
    std::copy_if(m_files.cbegin(), m_files.cend(), std::back_inserter(result),
                 [&](const LogFile& file) { return file.log == log && isChosen(file, choice); });
    return result;
}

void LogChooser::retranslate() {
    m_logs->setAccessibleName(tr("Log"));
    m_days->setAccessibleName(tr("Day"));
    if (m_days->count() > 0)
        m_days->setItemText(0, tr("All days"));
}

void LogChooser::listLogs() {
    QStringList logs;
    for (const LogFile& file : qAsConst(m_files)) {
        if (logs.isEmpty() || logs.last() != file.log)
            logs.append(file.log);
    }
    const QString shown = logToShow(logs);
    QStringList before;
    for (int i = 0; i < m_logs->count(); ++i)
        before.append(m_logs->itemText(i));
    // An open list is not taken from under the finger for nothing.
    if (before != logs) {
        m_logs->clear();
        m_logs->addItems(logs);
    }
    if (m_logs->currentText() != shown)
        m_days->clear();
    m_logs->setCurrentText(shown);
    m_logs->setEnabled(!logs.isEmpty());
}

void LogChooser::listDays() {
    const QVector<QVariant> wanted = days();
    QVector<QVariant> before;
    for (int i = 0; i < m_days->count(); ++i)
        before.append(m_days->itemData(i));
    if (before != wanted) {
        const QVariant chosen = m_days->currentData();
        m_days->clear();
        for (const QVariant& day : wanted)
            m_days->addItem(day.type() == QVariant::String ? fileLabel(logFileOf(QString(), day.toString()))
                                                           : day.toDate().toString(Qt::ISODate),
                            day);
        m_days->setCurrentIndex(std::max(0, wanted.indexOf(chosen)));
    }
    m_days->setEnabled(wanted.size() > 1);
    retranslate();
}

// All, then the newest first; where a day has several files, each of them too.
QVector<QVariant> LogChooser::days() const {
    QVector<LogFile> files;
    std::copy_if(m_files.crbegin(), m_files.crend(), std::back_inserter(files),
                 [this](const LogFile& file) { return file.log == m_logs->currentText(); });
    QVector<QVariant> result{QVariant()};
    for (auto file = files.cbegin(); file != files.cend();) {
        const auto next = std::find_if(file, files.cend(), [&](const LogFile& f) { return f.day != file->day; });
        if (file->day.isValid())
            result.append(file->day);
        const bool several = next - file > 1;
        for (; file != next; ++file) {
            if (several)
                result.append(file->path);
        }
    }
    return result;
}

// Somebody may be reading the one that is shown.
QString LogChooser::logToShow(const QStringList& logs) const {
    for (const QString& log : {m_wantedLog, m_logs->currentText()}) {
        if (logs.contains(log))
            return log;
    }
    return defaultLog();
}

QString LogChooser::defaultLog() const {
    const LogFile* best = nullptr;
    for (const LogFile& file : m_files) {
        const bool newer = !best || best->day < file.day;
        if (newer || (best->day == file.day && file.log == ownLog))
            best = &file;
    }
    return best ? best->log : QString();
}

} // namespace pendant
