#include "limitbar.h"

#include <QPainter>

#include <algorithm>

namespace pendant {

namespace {

const int barHeight = 6;
const int markWidth = 6;
const int markHeight = 18;

QFont captionFont(const QFont& font) {
    QFont caption = font;
    caption.setPixelSize(13);
    return caption;
}

} // namespace

LimitBar::LimitBar(double minimum, double maximum, const Theme& theme, QWidget* parent)
    : QWidget(parent), m_minimum(minimum), m_maximum(maximum), m_theme(theme) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LimitBar::setTheme(const Theme& theme) {
    m_theme = theme;
    update();
}

void LimitBar::setValue(double value) {
    m_value = value;
    update();
}

double LimitBar::place() const {
    if (m_maximum <= m_minimum)
        return 0;
    return std::min(1.0, std::max(0.0, (m_value - m_minimum) / (m_maximum - m_minimum)));
}

QSize LimitBar::sizeHint() const {
    return {160, 56};
}

void LimitBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int middle = height() / 2;
    const QRect bar(0, middle - barHeight / 2, width(), barHeight);
    painter.setBrush(m_theme.color(QStringLiteral("pressed")));
    painter.drawRoundedRect(bar, barHeight / 2, barHeight / 2);
    painter.setBrush(m_theme.color(QStringLiteral("accent")));
    painter.drawRoundedRect(QRectF(place() * (width() - markWidth), middle - markHeight / 2, markWidth, markHeight), 2,
                            2);
    painter.setPen(m_theme.color(QStringLiteral("textDim")));
    painter.setFont(captionFont(font()));
    const QRect captions(0, middle + markHeight / 2, width(), middle - markHeight / 2);
    painter.drawText(captions, Qt::AlignLeft | Qt::AlignTop, QString::number(m_minimum));
    painter.drawText(captions, Qt::AlignRight | Qt::AlignTop, QString::number(m_maximum));
}

} // namespace pendant
