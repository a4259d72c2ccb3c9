#include "statusitem.h"

#include "elidedlabel.h"
#include "style/icons.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QVariant>

namespace pendant {

namespace {

const int gap = 8;
const int iconSize = 24;
const int widestValue = 144;

QString token(StatusItem::State state) {
    switch (state) {
    case StatusItem::State::Good:
        return QStringLiteral("good");
    case StatusItem::State::Warning:
        return QStringLiteral("warning");
    case StatusItem::State::Error:
        return QStringLiteral("error");
    case StatusItem::State::Neutral:
        break;
    }
    return QStringLiteral("text");
}

} // namespace

StatusItem::StatusItem(const QString& name, const Theme& theme, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_iconLabel(new QLabel(this)), m_caption(new QLabel(this)),
      m_value(new ElidedLabel(this)) {
    setObjectName(QStringLiteral("status:") + name);
    m_iconLabel->setObjectName(QStringLiteral("statusIcon"));
    m_caption->setProperty("caption", true);
    m_value->setObjectName(QStringLiteral("statusValue"));
    m_value->setProperty("strong", true);
    m_value->setMaximumWidth(widestValue);

    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addStretch();
    words->addWidget(m_caption);
    words->addWidget(m_value);
    words->addStretch();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(gap, 0, gap, 0);
    row->setSpacing(gap);
    row->addWidget(m_iconLabel);
    row->addLayout(words);
}

void StatusItem::setTheme(const Theme& theme) {
    m_theme = theme;
    draw();
}

void StatusItem::setShownWhole(bool whole) {
    m_value->setShownWhole(whole);
}

void StatusItem::setIconShown(bool shown) {
    m_iconLabel->setVisible(shown);
}

int StatusItem::wantedWidth(bool withIcon) const {
    const int value = qMin(m_value->sizeHint().width(), widestValue);
    const int words = qMax(m_caption->sizeHint().width(), value);
    return gap + (withIcon ? iconSize + gap : 0) + words + gap;
}

void StatusItem::setCaption(const QString& caption) {
    m_caption->setText(caption);
}

void StatusItem::setValue(const QString& text, const QString& icon, State state) {
    m_value->setText(text);
    m_icon = icon;
    m_state = state;
    setAccessibleName(m_caption->text() + QStringLiteral(": ") + text);
    draw();
}

QString StatusItem::text() const {
    return m_value->text();
}

void StatusItem::draw() {
    const QString name = token(m_state);
    m_iconLabel->setPixmap(linePixmap(m_icon, m_theme.color(name), iconSize));
    if (m_value->property("state").toString() == name)
        return;
    m_value->setProperty("state", name);
    m_value->style()->unpolish(m_value);
    m_value->style()->polish(m_value);
}

} // namespace pendant
