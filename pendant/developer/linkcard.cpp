#include "linkcard.h"

#include "style/icons.h"

#include <QGridLayout>
#include <QStyle>
#include <QVariant>

namespace pendant {

LinkCard::LinkCard(brisk::standin::Channel* channel, const Theme& theme, QWidget* parent)
    : DockPart(QStringLiteral("link:") + channel->name(), theme, parent), m_channel(channel), m_icon(new QLabel(this)),
      m_name(new QLabel(this)), m_state(new QLabel(this)), m_meaning(new QLabel(this)),
      m_button(new QPushButton(this)) {
    setAttribute(Qt::WA_StyledBackground);
    setProperty("card", true);
    m_name->setProperty("title", true);
    m_state->setObjectName(QStringLiteral("state"));
    m_state->setProperty("strong", true);
    m_meaning->setObjectName(QStringLiteral("meaning"));
    m_meaning->setWordWrap(true);
    m_button->setObjectName(QStringLiteral("switch"));
    m_button->setProperty("big", true);
    connect(m_button, &QPushButton::clicked, this, [this] { setUp(!m_channel->isUp()); });
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    grid->addWidget(m_icon, 0, 0);
    grid->addWidget(m_name, 0, 1);
    grid->addWidget(m_state, 0, 2);
    grid->addWidget(m_button, 0, 3, Qt::AlignRight);
    grid->addWidget(m_meaning, 1, 1, 1, 3);
    grid->setColumnStretch(2, 1);
    refresh();
}

void LinkCard::setTheme(const Theme& theme) {
    DockPart::setTheme(theme);
    refresh();
}

void LinkCard::setUp(bool up) {
    if (brisk::standin::Link* link = m_channel->link())
        link->setUp(up);
    refresh();
}

void LinkCard::refresh() {
    const bool up = m_channel->isUp();
    const QString token = up ? QStringLiteral("good") : QStringLiteral("error");
    m_icon->setPixmap(
        linePixmap(up ? QStringLiteral("link-up") : QStringLiteral("link-down"), theme().color(token), 24));
    m_name->setText(isBus() ? tr("Bus") : tr("Controller"));
    m_state->setText(up ? tr("Up") : tr("Down"));
    m_state->setProperty("state", token);
    m_state->style()->unpolish(m_state);
    m_state->style()->polish(m_state);
    m_button->setText(up ? tr("Take down") : tr("Bring up"));
    m_button->setAccessibleName(m_name->text() + QStringLiteral(": ") + m_button->text());
    m_button->setEnabled(isThere());
    m_meaning->setText(isThere()
                           ? meaning(up)
                           : tr("Nothing stands behind this link, so there is nothing to switch. The pendant puts "
                                "the virtual controller there when it starts."));
}

bool LinkCard::isBus() const {
    return m_channel == brisk::standin::Channel::bus();
}

QString LinkCard::meaning(bool up) const {
    if (isBus())
        return up ? tr("A plugin sees: values are read and set, commands are answered, and what changes on a watched "
                       "key "
                       "is delivered.")
                  : tr("A plugin sees: the bus says that it is not connected. Reading and commands come back at once, "
                       "with nothing in them; what is set is lost; nothing is delivered. What was watched is watched "
                       "again as soon as the link is up.");
    return up ? tr("A plugin sees: requests are answered, and the tasks for an established connection have run.")
              : tr("A plugin sees: it is told that the controller is gone, and the tasks for a lost connection have "
                   "run. "
                   "Requests are not sent and come back at once, with nothing in them.");
}

} // namespace pendant
