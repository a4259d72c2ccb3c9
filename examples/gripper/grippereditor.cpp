#include "grippereditor.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

// A finger in a glove.
const int touchHeightPx = 56;
const int spacingPx = 8;

QString number(double value) {
    return QString::number(value);
}

} // namespace

GripperEditor::GripperEditor(const LineForm& form, const QString& title, QWidget* parent)
    : VexContentBase(parent), m_form(form), m_title(title), m_value(new QDoubleSpinBox), m_wait(new QSpinBox),
      m_comment(new QLineEdit), m_reason(new QLabel) {
    makeFields();
    layOut();
    showLine(GripperLine());
    showReason(QString());
    // Whatever was wrong is being put right.
    connect(m_value, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this] { showReason(QString()); });
    connect(m_comment, &QLineEdit::textChanged, this, &GripperEditor::keepOnOneLine);
}

void GripperEditor::makeFields() {
    m_value->setObjectName(QStringLiteral("value"));
    m_value->setRange(0.0, m_form.most);
    m_value->setSpecialValueText(tr("not set"));
    m_value->setSingleStep(5.0);
    m_value->setDecimals(1);
    m_value->setSuffix(QLatin1Char(' ') + m_form.unit);
    m_wait->setObjectName(QStringLiteral("wait"));
    m_wait->setRange(0, longestWaitMs);
    m_wait->setSingleStep(50);
    m_wait->setSuffix(QStringLiteral(" ms"));
    m_comment->setObjectName(QStringLiteral("comment"));
    m_comment->setPlaceholderText(tr("What the next person should know"));
    m_reason->setObjectName(QStringLiteral("reason"));
    m_reason->setProperty("state", QStringLiteral("error"));
    m_reason->setWordWrap(true);
}

// One below the other: how wide the program editor is, nobody knows.
void GripperEditor::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacingPx / 2);
    const QList<QPair<QString, QWidget*>> fields{{m_title, m_value}, {tr("Wait"), m_wait}, {tr("Comment"), m_comment}};
    for (const auto& field : fields) {
        auto* caption = new QLabel(field.first);
        caption->setProperty("caption", true);
        field.second->setMinimumHeight(touchHeightPx);
        column->addWidget(caption);
        column->addWidget(field.second);
        column->addSpacing(spacingPx / 2);
    }
    column->addWidget(m_reason);
    column->addStretch(1);
}

void GripperEditor::FillWith(const QString& line) {
    GripperLine read;
    m_isFilled = readLine(m_form, line, &read);
    showLine(read);
    showReason(m_isFilled ? QString() : tr("The line in the program is none of %1.").arg(m_form.type));
}

QString GripperEditor::ToString() {
    return writeLine(m_form, shownLine());
}

bool GripperEditor::CheckInsert() {
    if (!isInRange(m_form, shownValue()))
        return refuse(tr("%1: set a value from %2 to %3 %4.")
                          .arg(m_title, number(m_form.least), number(m_form.most), m_form.unit));
    showReason(QString());
    return true;
}

bool GripperEditor::CheckReplace() {
    if (!m_isFilled)
        return refuse(tr("The line in the program is none of %1 and stays.").arg(m_form.type));
    return CheckInsert();
}

// A comment that is pasted may have several lines.
void GripperEditor::keepOnOneLine(const QString& comment) {
    const QString kept = onOneLine(comment);
    if (kept != comment)
        m_comment->setText(kept);
}

// What is shown nowhere is kept beside.
void GripperEditor::showLine(const GripperLine& line) {
    m_value->setValue(line.value);
    m_wait->setValue(line.waitMs);
    m_comment->setText(line.comment);
    ownText = line.indent;
}

GripperLine GripperEditor::shownLine() const {
    GripperLine line;
    line.value = shownValue();
    line.waitMs = m_wait->value();
    line.comment = m_comment->text();
    line.indent = ownText;
    return line;
}

// A field that has been emptied still has its last value until it is left.
double GripperEditor::shownValue() const {
    return m_value->cleanText().isEmpty() ? 0.0 : m_value->value();
}

bool GripperEditor::refuse(const QString& reason) {
    showReason(reason);
    return false;
}

void GripperEditor::showReason(const QString& reason) {
    m_reason->setText(reason);
    m_reason->setVisible(!reason.isEmpty());
}
