#include "outputwidget.h"

#include "outputline.h"
#include "projectnames.h"

#include <QHBoxLayout>
#include <QLineEdit>

namespace pendant {

namespace {

QPushButton* choice(const QString& name, QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setObjectName(name);
    button->setCheckable(true);
    button->setAutoExclusive(true);
    return button;
}

} // namespace

OutputWidget::OutputWidget(QWidget* parent)
    : InstructionWidget(OutputLine::grammar(), parent),
      m_signal(nameField(QStringLiteral("outputSignal"), projectnames::digitalOutputs())) {
    auto* states = new QWidget;
    m_on = choice(QStringLiteral("outputOn"), states);
    m_off = choice(QStringLiteral("outputOff"), states);
    m_on->setChecked(true);
    auto* row = new QHBoxLayout(states);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_on);
    row->addWidget(m_off);
    m_signalCaption = addField(m_signal);
    m_stateCaption = addField(states);
    retranslate();
}

void OutputWidget::show(const LineParts& parts) {
    const OutputLine line = OutputLine::of(parts);
    m_signal->setCurrentText(line.signal);
    (line.isOn ? m_on : m_off)->setChecked(true);
}

QString OutputWidget::text() const {
    return OutputLine{nameIn(m_signal), m_on->isChecked()}.text();
}

QString OutputWidget::missing() const {
    return nameIn(m_signal).isEmpty() ? tr("Choose the output, or type its name.") : QString();
}

void OutputWidget::retranslate() {
    m_signalCaption->setText(tr("Digital output"));
    m_signal->lineEdit()->setPlaceholderText(tr("Name of the signal"));
    m_stateCaption->setText(tr("State"));
    m_on->setText(tr("On"));
    m_off->setText(tr("Off"));
}

} // namespace pendant
