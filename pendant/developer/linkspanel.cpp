#include "linkspanel.h"

#include "linkcard.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using brisk::standin::Channel;

namespace pendant {

LinksPanel::LinksPanel(const Theme& theme, QWidget* parent)
    : DockPanel(QStringLiteral("linksPanel"), theme, parent), m_bus(new LinkCard(Channel::bus(), theme, this)),
      m_controller(new LinkCard(Channel::controller(), theme, this)), m_hint(new QLabel(this)),
      m_bothDown(new QPushButton(this)), m_bothUp(new QPushButton(this)) {
    m_hint->setWordWrap(true);
    m_bothDown->setObjectName(QStringLiteral("bothDown"));
    m_bothUp->setObjectName(QStringLiteral("bothUp"));
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (QPushButton* button : {m_bothDown, m_bothUp}) {
        button->setProperty("big", true);
        row->addWidget(button);
    }
    row->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(8);
    column->addWidget(m_hint);
    column->addWidget(m_bus);
    column->addWidget(m_controller);
    column->addLayout(row);
    column->addStretch();
    connect(m_bothDown, &QPushButton::clicked, this, [this] { setBoth(false); });
    connect(m_bothUp, &QPushButton::clicked, this, [this] { setBoth(true); });
    retranslate();
}

void LinksPanel::setLive(bool live) {
    for (Channel* channel : {Channel::bus(), Channel::controller()}) {
        channel->disconnect(this);
        if (live)
            connect(channel, &Channel::upChanged, this, &LinksPanel::refresh);
    }
    refresh();
}

void LinksPanel::setTheme(const Theme& theme) {
    DockPanel::setTheme(theme);
    m_bus->setTheme(theme);
    m_controller->setTheme(theme);
}

// A link that comes or goes while it is down is told by nobody.
void LinksPanel::showEvent(QShowEvent* event) {
    DockPanel::showEvent(event);
    refresh();
}

void LinksPanel::setBoth(bool up) {
    m_bus->setUp(up);
    m_controller->setUp(up);
}

void LinksPanel::refresh() {
    m_bus->refresh();
    m_controller->refresh();
    const bool any = m_bus->isThere() || m_controller->isThere();
    m_bothDown->setEnabled(any);
    m_bothUp->setEnabled(any);
}

void LinksPanel::retranslate() {
    m_hint->setText(tr("Try what your plugin does when a link breaks and when it comes back."));
    m_bothDown->setText(tr("Both down"));
    m_bothUp->setText(tr("Both up"));
    refresh();
}

} // namespace pendant
