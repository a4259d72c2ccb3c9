#include "waitwidget.h"

#include "waitline.h"

namespace pendant {

WaitWidget::WaitWidget(QWidget* parent)
    : InstructionWidget(WaitLine::grammar(), parent), m_time(new QSpinBox), m_caption(addField(m_time)) {
    m_time->setObjectName(QStringLiteral("waitTime"));
    m_time->setRange(0, WaitLine::longestMs);
    m_time->setSuffix(QStringLiteral(" ms"));
    m_time->setSingleStep(100);
    retranslate();
}

void WaitWidget::show(const LineParts& parts) {
    m_time->setValue(WaitLine::of(parts).timeMs);
}

QString WaitWidget::text() const {
    return WaitLine{m_time->value()}.text();
}

void WaitWidget::retranslate() {
    m_caption->setText(tr("Time"));
}

} // namespace pendant
