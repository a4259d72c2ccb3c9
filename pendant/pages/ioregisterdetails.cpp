#include "ioregisterdetails.h"

#include "frame/elidedlabel.h"
#include "state/registers.h"

#include <QGridLayout>
#include <QVariant>

namespace pendant {

namespace {

const int editHeight = 112;

} // namespace

IoRegisterDetails::IoRegisterDetails(QWidget* parent)
    : QWidget(parent), m_name(new ElidedLabel(this)), m_hint(new QLabel(this)), m_edit(new QPlainTextEdit(this)),
      m_undo(new QPushButton(this)), m_set(new QPushButton(this)) {
    setObjectName(QStringLiteral("card"));
    setAttribute(Qt::WA_StyledBackground);
    m_name->setObjectName(QStringLiteral("registerName"));
    m_name->setProperty("strong", true);
    m_hint->setProperty("caption", true);
    m_edit->setObjectName(QStringLiteral("registerValues"));
    m_edit->setFixedHeight(editHeight);
    m_edit->setTabChangesFocus(true);
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
    buttons->addStretch();
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
    if (isOther || (isNew && !m_isEdited))
        showValues();
    // Set by this or by somebody else, it says what was typed.
    if (m_isEdited && typed() == values)
        showValues();
}

void IoRegisterDetails::setOnline(bool online) {
    setEnabled(online);
}

void IoRegisterDetails::retranslate() {
    m_hint->setText(tr("One value a line"));
    m_undo->setText(tr("Undo"));
    m_set->setText(tr("Set"));
}

void IoRegisterDetails::showState() {
    m_undo->setEnabled(m_isEdited);
    m_set->setEnabled(m_isEdited);
}

void IoRegisterDetails::showValues() {
    if (typed() != m_values)
        m_edit->setPlainText(m_values.join(QLatin1Char('\n')));
    m_isEdited = false;
    showState();
}

void IoRegisterDetails::ask() {
    registers::set(this, m_register, typed());
}

// An empty field is no value at all; an empty line among others is an empty value.
QStringList IoRegisterDetails::typed() const {
    const QString text = m_edit->toPlainText();
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char('\n'));
}

} // namespace pendant
