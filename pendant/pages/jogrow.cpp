#include "jogrow.h"

#include "jogkey.h"
#include "limitbar.h"
#include "style/icons.h"

#include <QHBoxLayout>
#include <QVariant>

namespace pendant {

namespace {

const QSize keySize(88, 56);

QString symbolOf(const QString& unit) {
    return unit == QLatin1String("deg") ? QStringLiteral("°") : unit;
}

} // namespace

JogRow::JogRow(const QString& name, const QString& unit, const Theme& theme, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_value(new QLabel(this)), m_minus(addKey(name, -1)), m_plus(addKey(name, 1)) {
    setObjectName(QStringLiteral("jog:") + name);
    setProperty("jogRow", true);
    setAttribute(Qt::WA_StyledBackground);
    auto* title = new QLabel(name, this);
    title->setProperty("strong", true);
    title->setTextFormat(Qt::PlainText);
    title->setMinimumWidth(40);
    m_value->setObjectName(QStringLiteral("jogValue"));
    m_value->setProperty("value", true);
    m_value->setProperty("live", true);
    m_value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_value->setMinimumWidth(184);
    auto* symbol = new QLabel(symbolOf(unit), this);
    symbol->setObjectName(QStringLiteral("jogUnit"));
    symbol->setMinimumWidth(40);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 4, 0, 4);
    row->setSpacing(8);
    row->addWidget(title);
    row->addWidget(m_value);
    row->addWidget(symbol);
    row->addStretch(0);
    row->addWidget(m_minus);
    row->addWidget(m_plus);
    setTheme(theme);
}

void JogRow::setLimits(double minimum, double maximum) {
    m_bar = new LimitBar(minimum, maximum, m_theme, this);
    auto* row = static_cast<QHBoxLayout*>(layout());
    const int beforeKeys = row->indexOf(m_minus);
    row->insertSpacing(beforeKeys, 16);
    row->insertWidget(beforeKeys, m_bar, 1);
}

void JogRow::setTheme(const Theme& theme) {
    m_theme = theme;
    m_minus->setIcon(lineIcon(QStringLiteral("minus"), theme.color(QStringLiteral("text")), theme));
    m_plus->setIcon(lineIcon(QStringLiteral("plus"), theme.color(QStringLiteral("text")), theme));
    if (m_bar)
        m_bar->setTheme(theme);
}

void JogRow::setValue(double value) {
    // A value that rounds to nothing has no sign.
    const QString text = QString::number(value, 'f', 3);
    m_value->setText(text == QLatin1String("-0.000") ? text.mid(1) : text);
    if (m_bar)
        m_bar->setValue(value);
}

JogKey* JogRow::addKey(const QString& name, int direction) {
    auto* key = new JogKey(this);
    key->setObjectName(
        QStringLiteral("jog:%1:%2").arg(name, direction < 0 ? QStringLiteral("minus") : QStringLiteral("plus")));
    key->setAccessibleName(name + (direction < 0 ? QLatin1Char('-') : QLatin1Char('+')));
    key->setFixedSize(keySize);
    key->setIconSize({28, 28});
    connect(key, &JogKey::held, this, [this, direction](bool isHeld) { emit held(isHeld ? direction : 0); });
    return key;
}

} // namespace pendant
