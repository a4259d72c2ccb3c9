#include "linkbanner.h"

#include "livestate.h"

#include <QStyle>

LinkBanner::LinkBanner(LiveState* live) : m_live(live) {
    setObjectName(QStringLiteral("links"));
    setWordWrap(true);
    connect(live, &LiveState::linksChanged, this, &LinkBanner::display);
    display();
}

void LinkBanner::display() {
    QString text = m_live->linkText();
    if (!m_live->isConnected()) {
        text += QLatin1Char(' ');
        text += m_live->downAt().isValid() ? tr("What stands here is what was there at %1.")
                                                 .arg(m_live->downAt().toString(QStringLiteral("hh:mm:ss")))
                                           : tr("There are no live values yet.");
    }
    setText(text);
    setProperty("state", m_live->isConnected() ? QStringLiteral("good") : QStringLiteral("error"));
    style()->unpolish(this);
    style()->polish(this);
}
