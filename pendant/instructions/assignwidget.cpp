#include "assignwidget.h"

#include "assignline.h"
#include "projectnames.h"

namespace pendant {

AssignWidget::AssignWidget(QWidget* parent)
    : InstructionWidget(AssignLine::grammar(), parent),
      m_variable(nameField(QStringLiteral("assignVariable"), projectnames::variables())), m_value(new QLineEdit),
      m_variableCaption(addField(m_variable)), m_valueCaption(addField(m_value)) {
    m_value->setObjectName(QStringLiteral("assignValue"));
    retranslate();
}

void AssignWidget::show(const LineParts& parts) {
    const AssignLine line = AssignLine::of(parts);
    m_variable->setCurrentText(line.variable);
    m_value->setText(line.value);
}

QString AssignWidget::text() const {
    return AssignLine{nameIn(m_variable), m_value->text()}.text();
}

QString AssignWidget::missing() const {
    if (nameIn(m_variable).isEmpty())
        return tr("Choose the variable, or type its name.");
    return m_value->text().trimmed().isEmpty() ? tr("Type the value that the variable gets.") : QString();
}

void AssignWidget::retranslate() {
    m_variableCaption->setText(tr("Variable"));
    m_variable->lineEdit()->setPlaceholderText(tr("Name of a variable"));
    m_valueCaption->setText(tr("Value"));
    m_value->setPlaceholderText(tr("Such as 5, parts + 1 or \"text\""));
}

} // namespace pendant
