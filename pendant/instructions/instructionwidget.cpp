#include "instructionwidget.h"

#include <QEvent>
#include <QLineEdit>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace pendant {

InstructionWidget::InstructionWidget(const LineGrammar& grammar, QWidget* parent)
    : BaseContentWidget(parent), m_grammar(grammar), m_grid(new QGridLayout), m_reason(new QLabel(this)) {
    m_reason->setObjectName(QStringLiteral("refusalReason"));
    m_reason->setProperty("state", QStringLiteral("error"));
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->setWordWrap(true);
    m_reason->hide();
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(8);
    m_grid->setColumnStretch(0, 1);
    m_grid->setColumnStretch(1, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addLayout(m_grid);
    column->addWidget(m_reason);
    column->addStretch();
}

QLabel* InstructionWidget::addField(QWidget* field, Width width) {
    auto* cell = new QWidget(this);
    auto* caption = new QLabel(cell);
    caption->setProperty("caption", true);
    caption->setBuddy(field);
    auto* column = new QVBoxLayout(cell);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(caption);
    column->addWidget(field);
    m_cells << Cell{cell, width};
    arrange(m_hasHalves);
    return caption;
}

void InstructionWidget::arrange(bool hasHalves) {
    m_hasHalves = hasHalves;
    int row = 0;
    int column = 0;
    for (const Cell& cell : qAsConst(m_cells)) {
        const bool isHalf = hasHalves && cell.width == Width::Half;
        row += isHalf ? 0 : column;
        m_grid->addWidget(cell.widget, row, isHalf ? column : 0, 1, isHalf ? 1 : 2);
        column = isHalf ? 1 - column : 0;
        row += 1 - column;
    }
}

int InstructionWidget::widest(Width width) const {
    int widest = 0;
    for (const Cell& cell : m_cells) {
        if (cell.width == width)
            widest = std::max(widest, cell.widget->minimumSizeHint().width());
    }
    return widest;
}

QSize InstructionWidget::minimumSizeHint() const {
    return {std::max(widest(Width::Whole), widest(Width::Half)), BaseContentWidget::minimumSizeHint().height()};
}

void InstructionWidget::resizeEvent(QResizeEvent* event) {
    BaseContentWidget::resizeEvent(event);
    const bool fit = event->size().width() >= 2 * widest(Width::Half) + m_grid->horizontalSpacing();
    if (fit != m_hasHalves)
        arrange(fit);
}

QComboBox* InstructionWidget::nameField(const QString& name, const QStringList& offered) {
    auto* field = new QComboBox;
    field->setObjectName(name);
    field->setEditable(true);
    field->setInsertPolicy(QComboBox::NoInsert);
    field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    field->addItems(offered);
    field->setCurrentIndex(-1);
    field->clearEditText();
    return field;
}

void InstructionWidget::FillWith(const QString& line) {
    if (!m_grammar.read(line, &m_filled))
        return say(tr("“%1” is no line of this instruction.").arg(line));
    say(QString());
    show(m_filled);
}

QString InstructionWidget::ToString() {
    return m_filled.indent + text() + m_filled.tail;
}

bool InstructionWidget::check() {
    QString reason = missing();
    // What the fields hold may not fit into a line, such as half a pair of quotation marks.
    if (reason.isEmpty() && !m_grammar.read(ToString(), nullptr))
        reason = tr("This cannot be written into a line. Quotation marks come in pairs, and “//” begins a comment.");
    say(reason);
    return reason.isEmpty();
}

void InstructionWidget::say(const QString& reason) {
    m_reason->setText(reason);
    m_reason->setVisible(!reason.isEmpty());
}

void InstructionWidget::changeEvent(QEvent* event) {
    BaseContentWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

} // namespace pendant
