#pragma once

#include "logs/logfeed.h"
#include "logs/logsearch.h"
#include "logs/logtext.h"
#include "logsought.h"
#include "page.h"

#include <QDateTime>
#include <QPlainTextEdit>
#include <QPushButton>

namespace pendant {

class ElidedLabel;
class EmptyState;
class LogChooser;
class LogFilterBar;
class LogTimeBar;
class LogView;

/// The log files, live.
class LogPage : public Page {
    Q_OBJECT

public:
    /// \param folder where the log files are; subfolders count
    LogPage(const QString& folder, const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme) override;
    const LogText& text() const { return m_text; }
    const LogSearch& search() const { return m_search; }
    /// Shows the first line from `time` on, or says that there is none.
    void showTime(const QDateTime& time);

protected:
    void retranslate() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeParts();
    void arrange();
    void connectParts();
    void readFiles();
    void take(LogText::Change change);
    void applyFilter();
    void openFolder();
    void tellOfFolder(const QString& text);
    void showFound(bool hasMoved);
    void showTimeBar(bool visible);
    void placeNewest();
    void showDetail();
    void showState();
    void showEmptiness();
    void showWhere();
    QString stateText() const;
    QString searchText() const;

    LogFeed m_feed;
    LogText m_text;
    LogSearch m_search;
    LogFilter m_applied;
    LogSought m_sought;
    bool m_nothingThatLate = false;
    LogChooser* m_chooser;
    LogFilterBar* m_filter;
    LogTimeBar* m_timeBar;
    QPushButton* m_time;
    QPushButton* m_folder;
    QPushButton* m_newest;
    LogView* m_view;
    EmptyState* m_empty;
    QPlainTextEdit* m_detail;
    QLabel* m_notice;
    ElidedLabel* m_where;
    QLabel* m_state;
};

} // namespace pendant
