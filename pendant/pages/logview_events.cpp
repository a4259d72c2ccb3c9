#include "logs/logline.h"
#include "logs/logrows.h"
#include "logs/logtext.h"
#include "logview.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollEvent>
#include <QScrollPrepareEvent>
#include <QWheelEvent>

namespace pendant {

namespace {

const int rowHeight = LogRowPainter::rowHeight;
const int rowsPerNotch = 3;
const int unitsPerNotch = 120;
// A finger starts in the middle of a content that is longer than any throw.
const double dragMiddle = 1e6;

} // namespace

bool LogView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ScrollPrepare && event->type() != QEvent::Scroll)
        return QAbstractScrollArea::viewportEvent(event);
    drag(event);
    return true;
}

void LogView::drag(QEvent* event) {
    if (event->type() == QEvent::ScrollPrepare) {
        auto* prepare = static_cast<QScrollPrepareEvent*>(event);
        prepare->setViewportSize(viewport()->size());
        prepare->setContentPosRange({0, 0, 0, 2 * dragMiddle});
        prepare->setContentPos({0, dragMiddle});
        m_dragged = dragMiddle;
        return prepare->accept();
    }
    const double wanted = static_cast<QScrollEvent*>(event)->contentPos().y();
    const auto px = static_cast<int>(wanted - m_dragged);
    m_dragged += px;
    if (px != 0)
        scrollBy(px);
    event->accept();
}

void LogView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    int y = -m_hidden;
    for (const LogPlace& row : shownRows()) {
        const LogLine line = parseLogLine(m_text->row(row));
        m_painter.paint(&painter, QRect(0, y, viewport()->width(), rowHeight), line, row == m_current);
        remember(line.module);
        y += rowHeight;
    }
}

void LogView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const bool shown = m_current.isValid() && rowsIn(event->oldSize().height()).contains(m_current);
    settle();
    if (shown)
        bringIntoView(m_current);
}

void LogView::wheelEvent(QWheelEvent* event) {
    emit handled();
    scrollBy(-event->angleDelta().y() * rowsPerNotch * rowHeight / unitsPerNotch);
    event->accept();
}

void LogView::keyPressEvent(QKeyEvent* event) {
    emit handled();
    const int page = viewport()->height() - rowHeight;
    switch (event->key()) {
    case Qt::Key_Up:
        return moveCurrent(-1);
    case Qt::Key_Down:
        return moveCurrent(1);
    case Qt::Key_PageUp:
        return scrollBy(-page);
    case Qt::Key_PageDown:
        return scrollBy(page);
    case Qt::Key_Home:
        if (m_rows)
            showRow(m_rows->first());
        return;
    case Qt::Key_End:
        return follow();
    case Qt::Key_Escape:
        return setCurrent(LogPlace());
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void LogView::mousePressEvent(QMouseEvent* event) {
    emit handled();
    m_pressed = rowUnder(event->pos().y());
}

// Pressed again, a row is no longer the current one.
void LogView::mouseReleaseEvent(QMouseEvent* event) {
    const LogPlace row = viewport()->rect().contains(event->pos()) ? rowUnder(event->pos().y()) : LogPlace();
    if (row.isValid() && row == m_pressed)
        setCurrent(row == m_current ? LogPlace() : row);
    m_pressed = LogPlace();
}

void LogView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    m_painter.retranslate();
    viewport()->update();
}

} // namespace pendant
