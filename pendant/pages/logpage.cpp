#include "logpage.h"

#include "emptystate.h"
#include "frame/elidedlabel.h"
#include "logchooser.h"
#include "logfilterbar.h"
#include "logs/logentries.h"
#include "logs/logseek.h"
#include "logtimebar.h"
#include "logview.h"
#include "style/icons.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QUrl>

namespace pendant {

namespace {

const int detailHeight = 104;
const int overlayMargin = 16;
const int barWidth = 24;

} // namespace

LogPage::LogPage(const QString& folder, const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("logPage"), theme, parent), m_feed(folder), m_search(&m_text),
      m_chooser(new LogChooser(this)), m_filter(new LogFilterBar(this)), m_timeBar(new LogTimeBar(this)),
      m_time(new QPushButton(this)), m_folder(new QPushButton(this)), m_newest(new QPushButton(this)),
      m_view(new LogView(theme, this)), m_empty(new EmptyState(this)), m_detail(new QPlainTextEdit(this)),
      m_notice(new QLabel(this)), m_where(new ElidedLabel(this)), m_state(new QLabel(this)) {
    makeParts();
    arrange();
    connectParts();
    m_view->setRows(&m_text, &m_text);
    setTheme(theme);
    retranslate();
    m_search.setPaused(!isVisible());
}

void LogPage::makeParts() {
    m_time->setObjectName(QStringLiteral("logGoTo"));
    m_time->setCheckable(true);
    m_folder->setObjectName(QStringLiteral("logFolder"));
    m_newest->setObjectName(QStringLiteral("logNewest"));
    m_detail->setObjectName(QStringLiteral("logDetail"));
    m_detail->setReadOnly(true);
    m_detail->setFixedHeight(detailHeight);
    m_where->setObjectName(QStringLiteral("logWhere"));
    m_state->setObjectName(QStringLiteral("logState"));
    for (QLabel* label : {static_cast<QLabel*>(m_where), m_state})
        label->setProperty("caption", true);
    m_state->setTextFormat(Qt::PlainText);
    m_notice->setObjectName(QStringLiteral("logNotice"));
    m_notice->setProperty("state", QStringLiteral("warning"));
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    for (QWidget* later : {static_cast<QWidget*>(m_timeBar), static_cast<QWidget*>(m_detail),
                           static_cast<QWidget*>(m_newest), static_cast<QWidget*>(m_notice)})
        later->hide();
    // Lies over the view, at its lower right.
    m_newest->setParent(m_view);
    m_view->installEventFilter(this);
}

void LogPage::arrange() {
    actions()->addWidget(m_chooser);
    actions()->addWidget(m_time);
    actions()->addWidget(m_folder);
    content()->addWidget(m_timeBar);
    content()->addWidget(m_filter);
    content()->addWidget(m_view, 1);
    content()->addWidget(m_empty, 1);
    content()->addWidget(m_detail);
    content()->addWidget(m_notice);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(16);
    foot->addWidget(m_where, 1);
    foot->addWidget(m_state);
    content()->addLayout(foot);
}

void LogPage::connectParts() {
    connect(&m_feed, &LogFeed::listed, this, &LogPage::readFiles);
    connect(&m_feed, &LogFeed::stirred, this, [this] { take(m_text.refresh()); });
    connect(m_chooser, &LogChooser::changed, this, [this] {
        take(m_text.setFiles(m_chooser->chosen()));
        m_view->follow();
    });
    connect(m_filter, &LogFilterBar::changed, this, &LogPage::applyFilter);
    connect(m_filter, &LogFilterBar::stopPressed, this, [this] {
        m_search.stop();
        showState();
    });
    connect(&m_search, &LogSearch::progressed, this, [this] {
        const bool hasMoved = m_sought.hasMoved(*m_view);
        m_view->refresh();
        showFound(hasMoved);
        showState();
    });
    connect(m_time, &QPushButton::toggled, this, &LogPage::showTimeBar);
    connect(m_timeBar, &LogTimeBar::wanted, this, &LogPage::showTime);
    connect(m_folder, &QPushButton::clicked, this, &LogPage::openFolder);
    const auto goOn = [this] { m_sought = LogSought(); };
    connect(m_newest, &QPushButton::clicked, this, goOn);
    connect(m_newest, &QPushButton::clicked, m_view, &LogView::follow);
    connect(m_view, &LogView::handled, this, goOn);
    connect(m_view, &LogView::currentChanged, this, &LogPage::showDetail);
    connect(m_view, &LogView::followingChanged, this, [this](bool following) {
        m_nothingThatLate = m_nothingThatLate && following;
        m_newest->setVisible(!following);
        showState();
    });
}

void LogPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    const QColor ink = theme.color(QStringLiteral("text"));
    m_time->setIcon(lineIcon(QStringLiteral("clock"), ink, theme));
    m_folder->setIcon(lineIcon(QStringLiteral("folder"), ink, theme));
    m_newest->setIcon(lineIcon(QStringLiteral("down"), ink, theme));
    for (QPushButton* button : {m_time, m_folder, m_newest})
        button->setIconSize({24, 24});
    m_filter->setTheme(theme);
    m_view->setTheme(theme);
}

void LogPage::retranslate() {
    setTitle(tr("Log"));
    m_time->setText(tr("Time"));
    m_folder->setText(tr("Folder"));
    m_newest->setText(tr("Newest lines"));
    m_view->setAccessibleName(tr("Lines of the log"));
    m_detail->setAccessibleName(tr("The line in full"));
    m_chooser->retranslate();
    m_filter->retranslate();
    m_timeBar->retranslate();
    placeNewest();
    tellOfFolder(QString());
    showState();
}

void LogPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    m_feed.setActive(true);
    m_search.setPaused(false);
}

void LogPage::hideEvent(QHideEvent* event) {
    Page::hideEvent(event);
    m_feed.setActive(false);
    m_search.setPaused(true);
    tellOfFolder(QString());
}

bool LogPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        placeNewest();
    return Page::eventFilter(watched, event);
}

void LogPage::placeNewest() {
    m_newest->adjustSize();
    const QPoint corner(m_view->width() - barWidth - overlayMargin, m_view->height() - overlayMargin);
    m_newest->move(corner - QPoint(m_newest->width(), m_newest->height()));
}

void LogPage::readFiles() {
    m_chooser->setFiles(m_feed.files());
    take(m_text.setFiles(m_chooser->chosen()));
}

void LogPage::take(LogText::Change change) {
    if (change == LogText::Anew) {
        m_view->startAnew();
        m_applied = LogFilter();
        m_sought = LogSought();
        m_search.forget();
        m_view->setRows(&m_text, &m_text);
        applyFilter();
    } else if (change == LogText::Grown) {
        m_search.textGrown();
        m_view->refresh();
    }
    m_feed.watchFile(m_text.fileCount() > 0 ? m_text.file(m_text.end().file).path : QString());
    showState();
}

void LogPage::applyFilter() {
    const LogFilter filter = m_filter->filter();
    if (filter == m_applied)
        return;
    m_applied = filter;
    m_sought = LogSought();
    m_nothingThatLate = false;
    if (filter.isEmpty()) {
        m_view->setRows(&m_text, &m_text);
        m_search.forget();
    } else {
        m_search.start(filter);
        m_view->setRows(&m_text, &m_search.hits());
    }
    showState();
}

void LogPage::openFolder() {
    const QString path = QDir::toNativeSeparators(m_feed.folder());
    if (!QFileInfo(m_feed.folder()).isDir())
        return tellOfFolder(tr("There is no folder %1 yet. The first line that is logged makes it.").arg(path));
    const bool isOpened = QDesktopServices::openUrl(QUrl::fromLocalFile(m_feed.folder()));
    tellOfFolder(isOpened ? QString() : tr("Nothing here opens folders. The log files are in %1").arg(path));
}

void LogPage::tellOfFolder(const QString& text) {
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
}

// Opens with the time of what is on the screen.
void LogPage::showTimeBar(bool visible) {
    QDateTime time = QDateTime::currentDateTime();
    const QVector<LogPlace> rows = m_view->shownRows();
    const LogPlace row = m_view->current().isValid() ? m_view->current() : rows.value(0);
    const LogMoment moment = momentOf(parseLogLine(m_text.row(row)), m_text.dayOf(row.file));
    if (visible && moment >= 0)
        time = QDateTime::fromString(QString::number(moment / 1000), QStringLiteral("yyyyMMddHHmmss"));
    if (visible)
        m_timeBar->setTime(time);
    m_timeBar->setVisible(visible);
    // In one place, for the rows on a small screen are few.
    m_filter->setVisible(!visible);
}

void LogPage::showTime(const QDateTime& time) {
    m_sought.place = seekLogMoment(m_text, logMoment(time.date(), time.time()));
    showFound(false);
    showState();
}

// A search that still looks back may find what is nearer to the time that somebody went to.
void LogPage::showFound(bool hasMoved) {
    if (!m_sought.place.isValid())
        return;
    if (hasMoved) {
        m_sought = LogSought();
        return;
    }
    m_view->showRow(m_sought.place);
    m_sought.remember(*m_view);
    const bool isReached = !m_search.isActive() || m_search.hasReached(m_sought.place);
    const bool isEmpty = m_view->shownRows().isEmpty();
    m_nothingThatLate = isReached && !isEmpty && !m_view->current().isValid();
    if (!m_search.isRunning() || (isReached && !isEmpty))
        m_sought = LogSought();
}

void LogPage::showDetail() {
    const LogPlace row = m_view->current();
    m_detail->setVisible(row.isValid());
    m_detail->setPlainText(row.isValid() ? QString::fromUtf8(logEntryAt(m_text, row)) : QString());
}

} // namespace pendant
