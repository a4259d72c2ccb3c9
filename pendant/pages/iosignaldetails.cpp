#include "iosignaldetails.h"

#include "frame/elidedlabel.h"
#include "iosignalsmodel.h"
#include "style/icons.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QVariant>

#include <cmath>

namespace pendant {

namespace {

const int placesOfAnalogue = 3;
const int stepsOfAnalogue = 100;

// Steps through an analogue range in round numbers.
double stepOf(const Signal& signal) {
    return isGroup(signal.type) ? 1 : (signal.maximum - signal.minimum) / stepsOfAnalogue;
}

} // namespace

IoSignalDetails::IoSignalDetails(QWidget* parent)
    : QWidget(parent), m_name(new ElidedLabel(this)), m_type(new QLabel(this)), m_number(new QDoubleSpinBox(this)) {
    setObjectName(QStringLiteral("card"));
    setAttribute(Qt::WA_StyledBackground);
    m_name->setObjectName(QStringLiteral("ioName"));
    m_name->setProperty("strong", true);
    m_type->setProperty("caption", true);
    m_number->setObjectName(QStringLiteral("ioNumber"));
    // As the list writes them.
    m_number->setLocale(QLocale::c());
    m_number->setMinimumWidth(208);
    connect(m_number, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this] { setEdited(true); });
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addStretch();
    words->addWidget(m_name);
    words->addWidget(m_type);
    words->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 12, 12, 12);
    row->setSpacing(8);
    row->addLayout(words, 1);
    row->addWidget(m_number);
    m_undo = addButton(QStringLiteral("ioUndo"), [this] {
        setEdited(false);
        showNumber();
    });
    m_off = addButton(QStringLiteral("ioOff"), [this] { ask(false); });
    m_on = addButton(QStringLiteral("ioOn"), [this] { ask(true); });
    m_set = addButton(QStringLiteral("ioSet"), [this] { ask(m_number->value()); });
    m_release = addButton(QStringLiteral("ioRelease"), [this] { ioSignals::release(this, m_signal.name); });
    retranslate();
    hide();
}

QPushButton* IoSignalDetails::addButton(const QString& name, const std::function<void()>& press) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, press);
    layout()->addWidget(button);
    return button;
}

void IoSignalDetails::setSignal(const Signal& signal) {
    const bool isOther = signal.name != m_signal.name || signal.type != m_signal.type;
    m_signal = signal;
    setEdited(m_isEdited && !isOther && !showsWhatIsTyped());
    if (isOther)
        retranslate();
    showSignal();
}

void IoSignalDetails::setOnline(bool online) {
    setEnabled(online);
}

void IoSignalDetails::setTheme(const Theme& theme) {
    m_undo->setIcon(lineIcon(QStringLiteral("undo"), theme.color(QStringLiteral("text")), theme));
    m_undo->setIconSize({24, 24});
}

void IoSignalDetails::retranslate() {
    const bool forces = isInput(m_signal.type);
    m_type->setText(IoSignalsModel::typeText(m_signal.type));
    m_off->setText(forces ? tr("Force off") : tr("Off", "switch"));
    m_on->setText(forces ? tr("Force on") : tr("On", "switch"));
    m_set->setText(forces ? tr("Force") : tr("Set"));
    m_release->setText(tr("Release"));
    // Its words would leave no room for the name.
    m_undo->setToolTip(tr("Undo: the value of the signal"));
    m_undo->setAccessibleName(m_undo->toolTip());
}

void IoSignalDetails::showSignal() {
    const bool digital = isDigital(m_signal.type);
    m_name->setText(m_signal.name);
    m_off->setVisible(digital);
    m_on->setVisible(digital);
    m_number->setVisible(!digital);
    m_set->setVisible(!digital);
    showUndo();
    m_release->setEnabled(isEnabled() && m_signal.isForced);
    setVisible(!m_signal.name.isEmpty());
    if (!digital && !m_isEdited)
        showNumber();
}

void IoSignalDetails::showNumber() {
    const QSignalBlocker quietly(m_number);
    m_number->setDecimals(isGroup(m_signal.type) ? 0 : placesOfAnalogue);
    m_number->setRange(m_signal.minimum, m_signal.maximum);
    m_number->setSingleStep(stepOf(m_signal));
    m_number->setValue(m_signal.value.toDouble());
}

void IoSignalDetails::setEdited(bool edited) {
    m_isEdited = edited;
    m_undo->setEnabled(edited);
    showUndo();
}

// On a small screen there is room for one of the two.
void IoSignalDetails::showUndo() {
    const bool canUndo = m_isEdited && !isDigital(m_signal.type);
    m_undo->setVisible(canUndo);
    m_release->setVisible(!canUndo && isInput(m_signal.type));
}

bool IoSignalDetails::showsWhatIsTyped() const {
    return qAbs(m_number->value() - m_signal.value.toDouble()) < std::pow(0.1, placesOfAnalogue) / 2;
}

// What the controller refuses stays in the field.
void IoSignalDetails::ask(const QVariant& value) {
    const QVariant wanted = isGroup(m_signal.type) ? QVariant(value.toInt()) : value;
    if (isInput(m_signal.type))
        ioSignals::force(this, m_signal.name, wanted);
    else
        ioSignals::set(this, m_signal.name, wanted);
}

} // namespace pendant
