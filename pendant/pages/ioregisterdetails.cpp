#include "ioregisterdetails.h"

#include "frame/elidedlabel.h"
#include "state/registers.h"

#include <QGridLayout>
#include <QVariant>

namespace pendant {

namespace {

const int editHeight = 112;
const int mostOfOthers = 60;

// One value, an empty one, looks as none at all does.
bool isOneEmpty(const QStringList& values) {
    return values.size() == 1 && values.first().isEmpty();
}

} // namespace

IoRegisterDetails::IoRegisterDetails(QWidget* parent)
    : QWidget(parent), m_name(new ElidedLabel(this)), m_hint(new QLabel(this)), m_edit(new QPlainTextEdit(this)),
      m_note(new QLabel(this)), m_undo(new QPushButton(this)), m_set(new QPushButton(this)) {
    setObjectName(QStringLiteral("card"));
    setAttribute(Qt::WA_StyledBackground);
    m_name->setObjectName(QStringLiteral("registerName"));
    m_name->setProperty("strong", true);
    m_hint->setProperty("caption", true);
    m_edit->setObjectName(QStringLiteral("registerValues"));
    m_edit->setFixedHeight(editHeight);
    m_edit->setTabChangesFocus(true);
    m_note->setObjectName(QStringLiteral("registerNote"));
    m_note->setProperty("state", QStringLiteral("warning"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_undo->setObjectName(QStringLiteral("registerUndo"));
    m_set->setObjectName(QStringLiteral("registerSet"));
    connect(m_edit, &QPlainTextEdit::textChanged, this, [this] {
        m_isEdited = true;
        showState();
    });
    connect(m_undo, &QPushButton::clicked, this, &IoRegisterDetails::showValues);
    connect(m_set, &QPushButton::clicked, this, &IoRegisterDetails::ask);
    arrange();
    retranslate();
    hide();
}

void IoRegisterDetails::arrange() {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 12, 12);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    grid->addWidget(m_name, 0, 0);
    grid->addWidget(m_hint, 0, 1, 1, 2, Qt::AlignRight);
    grid->addWidget(m_edit, 1, 0, 1, 3);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_note, 1);
    buttons->addWidget(m_undo);
    buttons->addWidget(m_set);
    grid->setRowMinimumHeight(2, 4);
    grid->addLayout(buttons, 3, 0, 1, 3);
    grid->setColumnStretch(0, 1);
}

void IoRegisterDetails::setRegister(const QString& name, const QStringList& values) {
    const bool isOther = name != m_register;
    const bool isNew = values != m_values;
    m_register = name;
    m_values = values;
    m_name->setText(name);
    setVisible(!name.isEmpty());
    m_isEdited = m_isEdited && !isOther;
    if (isOther || (isNew && !m_isEdited))
        showValues();
    // Set by this or by somebody else, it says what was typed.
    if (m_isEdited && typed() == values)
        showValues();
    showState();
}

void IoRegisterDetails::setOnline(bool online) {
    setEnabled(online);
}

void IoRegisterDetails::retranslate() {
    m_hint->setText(tr("One value a line"));
    m_undo->setText(tr("Undo"));
    m_set->setText(tr("Set"));
    showState();
}

void IoRegisterDetails::showState() {
    m_undo->setEnabled(m_isEdited);
    m_set->setEnabled(m_isEdited);
    m_edit->setReadOnly(m_isLocked);
    m_edit->setPlaceholderText(!m_isEdited && isOneEmpty(m_values) ? tr("One value, an empty one") : tr("No value"));
    m_note->setText(noteText());
}

QString IoRegisterDetails::noteText() const {
    if (m_isLocked)
        return tr("A value has a line break in it: these values cannot be changed here.");
    if (!isOvertaken())
        return QString();
    const QString others = m_values.join(QStringLiteral(", "));
    const bool isLong = others.size() > mostOfOthers;
    return tr("“Set” overwrites what came meanwhile: %1")
        .arg(isLong ? others.left(mostOfOthers) + QChar(0x2026) : others);
}

void IoRegisterDetails::showValues() {
    if (typed() != m_values)
        m_edit->setPlainText(m_values.join(QLatin1Char('\n')));
    m_isLocked = typed() != m_values && !isOneEmpty(m_values);
    m_before = m_values;
    m_isEdited = false;
    showState();
}

void IoRegisterDetails::ask() {
    registers::set(this, m_register, typed());
}

// An empty field is no value at all; an empty line among others is an empty value.
QStringList IoRegisterDetails::typed() const {
    // The plain text would have ordinary spaces for those that do not break.
    QString text = m_edit->document()->toRawText();
    text.replace(QChar::LineSeparator, QChar::ParagraphSeparator);
    return text.isEmpty() ? QStringList() : text.split(QChar::ParagraphSeparator);
}

} // namespace pendant
