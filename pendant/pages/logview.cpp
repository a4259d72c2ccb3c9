#include "logview.h"

#include "logs/logtext.h"

#include <QScrollBar>
#include <QScroller>

#include <algorithm>

namespace pendant {

namespace {

const int rowHeight = LogRowPainter::rowHeight;
// The bar has so many steps, however long the log is.
const int barSteps = 1000000;
const int mostModules = 100;

} // namespace

LogView::LogView(const Theme& theme, QWidget* parent) : QAbstractScrollArea(parent), m_painter(theme) {
    setObjectName(QStringLiteral("logView"));
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // The bar tells where the text is; it does not move it by its own numbers.
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, &LogView::barMoved);
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
}

void LogView::setTheme(const Theme& theme) {
    m_painter.setTheme(theme);
    viewport()->update();
}

void LogView::setRows(const LogText* text, const LogRows* rows) {
    m_text = text;
    m_rows = rows;
    m_hidden = 0;
    refresh();
}

void LogView::refresh() {
    if (!m_rows)
        return;
    if (!m_following)
        m_top = m_rows->rowAt(m_top);
    settle();
}

void LogView::startAnew() {
    setCurrent(LogPlace());
    m_modules.clear();
    follow();
}

void LogView::follow() {
    setFollowing(true);
    settle();
}

void LogView::showRow(const LogPlace& row) {
    if (!m_rows)
        return;
    m_top = m_rows->rowAt(row);
    m_hidden = 0;
    setCurrent(m_top == m_rows->end() ? LogPlace() : m_top);
    setFollowing(false);
    settle();
}

void LogView::setCurrent(const LogPlace& row) {
    if (row == m_current)
        return;
    m_current = row;
    viewport()->update();
    emit currentChanged();
}

QVector<LogPlace> LogView::rowsIn(int height) const {
    QVector<LogPlace> rows;
    if (!m_rows)
        return rows;
    int y = -m_hidden;
    for (LogPlace row = m_top; y < height && row < m_rows->end(); row = m_rows->next(row)) {
        rows.append(row);
        y += rowHeight;
    }
    return rows;
}

LogView::Top LogView::lowest() const {
    LogPlace row = m_rows->end();
    int filled = 0;
    while (filled < viewport()->height()) {
        const LogPlace above = m_rows->previous(row);
        if (!above.isValid())
            break;
        row = above;
        filled += rowHeight;
    }
    return {row, std::max(0, filled - viewport()->height())};
}

void LogView::scrollBy(int px) {
    if (!m_rows)
        return;
    m_hidden += px;
    while (m_hidden >= rowHeight && m_top < m_rows->end()) {
        m_top = m_rows->next(m_top);
        m_hidden -= rowHeight;
    }
    while (m_hidden < 0) {
        const LogPlace above = m_rows->previous(m_top);
        m_hidden = above.isValid() ? m_hidden + rowHeight : 0;
        m_top = above.isValid() ? above : m_top;
    }
    setFollowing(false);
    settle();
}

// Never shows less than a full page, and follows where the last row is the lowest.
void LogView::settle() {
    if (!m_rows)
        return;
    const Top low = lowest();
    const bool atEnd = low.row < m_top || (low.row == m_top && m_hidden >= low.hidden);
    if (m_following || atEnd) {
        m_top = low.row;
        m_hidden = low.hidden;
        setFollowing(true);
    }
    showPosition(low);
    viewport()->update();
}

void LogView::setFollowing(bool following) {
    if (following == m_following)
        return;
    m_following = following;
    emit followingChanged(following);
}

void LogView::showPosition(const Top& low) {
    QScrollBar* bar = verticalScrollBar();
    const double most = m_rows->fractionBefore(low.row);
    const bool all = !m_rows->previous(low.row).isValid() && low.hidden == 0;
    bar->setRange(0, all ? 0 : barSteps);
    bar->setPageStep(std::max(barSteps / 50, static_cast<int>(barSteps * (1 - most))));
    if (bar->isSliderDown())
        return;
    const double part = most > 0 ? m_rows->fractionBefore(m_top) / most : 1;
    bar->setValue(m_following ? bar->maximum() : static_cast<int>(part * (barSteps - 1)));
}

void LogView::barMoved(int action) {
    QScrollBar* bar = verticalScrollBar();
    const int page = viewport()->height() - rowHeight;
    const int wanted = bar->sliderPosition();
    if (action != QAbstractSlider::SliderMove) {
        bar->setSliderPosition(bar->value());
        const bool up = wanted < bar->value();
        const bool single =
            action == QAbstractSlider::SliderSingleStepAdd || action == QAbstractSlider::SliderSingleStepSub;
        return scrollBy((single ? rowHeight : page) * (up ? -1 : 1));
    }
    if (!m_rows || wanted >= bar->maximum())
        return follow();
    m_top = m_rows->rowAtFraction(m_rows->fractionBefore(lowest().row) * wanted / barSteps);
    m_hidden = 0;
    setFollowing(false);
    settle();
}

void LogView::moveCurrent(int by) {
    const QVector<LogPlace> shown = shownRows();
    if (shown.isEmpty())
        return;
    LogPlace row = m_rows->rowAt(m_current);
    if (!m_current.isValid())
        row = shown.last();
    else if (by > 0)
        row = m_rows->next(row);
    else
        row = m_rows->previous(row);
    if (!row.isValid() || !(row < m_rows->end()))
        return;
    setCurrent(row);
    bringIntoView(row);
}

void LogView::bringIntoView(const LogPlace& row) {
    const QVector<LogPlace> shown = shownRows();
    const int index = shown.indexOf(row);
    const int lower = (index + 1) * rowHeight - m_hidden - viewport()->height();
    if (index > 0 && lower > 0)
        return scrollBy(lower);
    if (index > 0 || (index == 0 && m_hidden == 0))
        return;
    if (index < 0 && !shown.isEmpty() && shown.last() < row)
        return scrollBy(rowHeight);
    m_top = row;
    m_hidden = 0;
    setFollowing(false);
    settle();
}

LogPlace LogView::rowUnder(int y) const {
    return shownRows().value((y + m_hidden) / rowHeight);
}

void LogView::remember(const QString& module) {
    if (!module.isEmpty() && m_modules.size() < mostModules && !m_modules.contains(module))
        m_modules.append(module);
}

} // namespace pendant
