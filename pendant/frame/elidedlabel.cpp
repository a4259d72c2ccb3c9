#include "elidedlabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace pendant {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ElidedLabel::setShownWhole(bool whole) {
    m_shownWhole = whole;
    updateGeometry();
}

QSize ElidedLabel::minimumSizeHint() const {
    if (m_shownWhole)
        return QLabel::sizeHint();
    return {fontMetrics().horizontalAdvance(QStringLiteral("XX...")), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    showToolTip();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), option.palette, isEnabled(), shown,
                          foregroundRole());
}

void ElidedLabel::showToolTip() {
    const bool fits = fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
    const QString tip = fits ? QString() : text();
    if (toolTip() != tip)
        setToolTip(tip);
}

} // namespace pendant
