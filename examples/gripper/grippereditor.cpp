#include "grippereditor.h"

#include "emptiablefield.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include <limits>

namespace {

// A finger in a glove.
const int touchHeightPx = 56;
const int spacingPx = 8;

QString number(double value) {
    return QString::number(value);
}

} // namespace

GripperEditor::GripperEditor(const LineForm& form, const QString& title, QWidget* parent)
    : VexContentBase(parent), m_form(form), m_title(title), m_value(new EmptiableField<QDoubleSpinBox>(tr("not set"))),
      m_wait(new EmptiableField<QSpinBox>(tr("none"))), m_comment(new QLineEdit), m_reason(new QLabel) {
    makeFields();
    layOut();
    showLine(GripperLine());
    showReason(QString());
    connect(m_value, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &GripperEditor::follow);
    connect(m_comment, &QLineEdit::textChanged, this, &GripperEditor::follow);
}

void GripperEditor::makeFields() {
    m_value->setObjectName(QStringLiteral("value"));
    m_value->setDecimals(1);
    m_value->setRange(0.0, m_form.most);
    m_value->setSingleStep(5.0);
    m_wait->setObjectName(QStringLiteral("wait"));
    m_wait->setRange(0, longestWaitMs);
    m_wait->setSingleStep(50);
    m_comment->setObjectName(QStringLiteral("comment"));
    m_comment->setPlaceholderText(tr("What the next person should know"));
    // A line edit cuts a longer text without a word.
    m_comment->setMaxLength(std::numeric_limits<int>::max());
    m_reason->setObjectName(QStringLiteral("reason"));
    m_reason->setProperty("state", QStringLiteral("error"));
    m_reason->setWordWrap(true);
}

// One below the other: how wide the program editor is, nobody knows.
void GripperEditor::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacingPx / 2);
    const QList<QPair<QString, QWidget*>> fields{
        {tr("%1 (%2)").arg(m_title, m_form.unit), m_value}, {tr("Wait (ms)"), m_wait}, {tr("Comment"), m_comment}};
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
    const bool isOwn = readLine(m_form, line, &read);
    m_filled = isOwn ? Filled::WithOwnLine : Filled::WithForeignLine;
    showLine(read);
    showReason(isOwn ? whyOutOfRange(read.value) : whyForeign());
}

QString GripperEditor::ToString() {
    return writeLine(m_form, shownLine());
}

bool GripperEditor::CheckInsert() {
    return accept(whatIsAmiss());
}

bool GripperEditor::CheckReplace() {
    return accept(m_filled == Filled::WithOwnLine ? whatIsAmiss() : whyForeign());
}

// A reason that is shown stays until what it says is put right.
void GripperEditor::follow() {
    if (!m_reason->text().isEmpty())
        showReason(m_filled == Filled::WithForeignLine ? whyForeign() : whatIsAmiss());
}

// What is shown nowhere is kept beside.
void GripperEditor::showLine(const GripperLine& line) {
    m_value->setValue(isInRange(m_form, line.value) ? line.value : 0.0);
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

// While something is typed that is no number yet, the field still has its last value.
double GripperEditor::shownValue() const {
    return m_value->hasAcceptableInput() ? m_value->value() : 0.0;
}

QString GripperEditor::whyForeign() const {
    return tr("The line in the program is none of %1 and stays.").arg(m_form.type);
}

// A value that is not set in the line is nothing to complain of yet.
QString GripperEditor::whyOutOfRange(double value) const {
    if (value <= 0.0 || isInRange(m_form, value))
        return QString();
    return tr("The line says %1 %2.").arg(number(value), m_form.unit) + QLatin1Char(' ') + whatIsAmiss();
}

QString GripperEditor::whatIsAmiss() const {
    if (!isInRange(m_form, shownValue()))
        return tr("%1: set a value from %2 to %3 %4.")
            .arg(m_title, number(m_form.least), number(m_form.most), m_form.unit);
    // All that can make a line which is not this instruction's any more, such as half of a character.
    GripperLine read;
    if (!readLine(m_form, writeLine(m_form, shownLine()), &read))
        return tr("Comment: it has something in it that is no text.");
    return QString();
}

bool GripperEditor::accept(const QString& refusal) {
    showReason(refusal);
    return refusal.isEmpty();
}

void GripperEditor::showReason(const QString& reason) {
    m_reason->setText(reason);
    m_reason->setVisible(!reason.isEmpty());
}
