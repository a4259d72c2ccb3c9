#include "jogstate.h"

#include "style/icons.h"

#include <QHBoxLayout>
#include <QVariant>

namespace pendant {

JogState::JogState(const Theme& theme, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_icon(new QLabel(this)), m_text(new QLabel(this)) {
    m_text->setObjectName(QStringLiteral("jogState"));
    m_text->setProperty("strong", true);
    m_text->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    setFixedHeight(32);
    draw();
}

void JogState::setTheme(const Theme& theme) {
    m_theme = theme;
    draw();
}

void JogState::setState(bool isMoving, const QString& stoppedBy) {
    m_isMoving = isMoving;
    // The end of a move hinders nobody.
    m_stoppedBy = stoppedBy == QLatin1String("arrived") ? QString() : stoppedBy;
    draw();
}

void JogState::retranslate() {
    draw();
}

void JogState::draw() {
    const bool isHindered = !m_isMoving && !m_stoppedBy.isEmpty();
    const QString moving = m_isMoving ? QStringLiteral("moving") : QStringLiteral("stop");
    const QString token = isHindered ? QStringLiteral("warning") : QStringLiteral("text");
    m_icon->setPixmap(linePixmap(isHindered ? QStringLiteral("warning") : moving, m_theme.color(token), 24));
    m_text->setText(words());
}

QString JogState::words() const {
    const QString limit = QStringLiteral("limit ");
    if (m_isMoving)
        return tr("The robot is moving.");
    if (m_stoppedBy.isEmpty())
        return tr("The robot stands still.");
    if (m_stoppedBy.startsWith(limit))
        return tr("%1 is at its limit. Jog it the other way.").arg(m_stoppedBy.mid(limit.size()));
    if (m_stoppedBy == QLatin1String("out of reach"))
        return tr("The arm does not reach further.");
    if (m_stoppedBy == QLatin1String("singularity"))
        return tr("The arm is near a singularity. Jog the joints to get past it.");
    if (m_stoppedBy == QLatin1String("not renewed"))
        return tr("The robot stopped because the pendant was too busy to hold the key.");
    if (m_stoppedBy == QLatin1String("drives off"))
        return tr("The robot stopped because its drives went off.");
    return tr("The robot stopped: %1").arg(m_stoppedBy);
}

} // namespace pendant
