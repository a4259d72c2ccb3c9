#include "linkpanel.h"

#include "robotwatch.h"

#include <QListWidget>
#include <QStyle>
#include <QTime>
#include <QVBoxLayout>

namespace {

const int mostEvents = 50;

} // namespace

LinkPanel::LinkPanel(RobotWatch* watch)
    : QGroupBox(tr("Links")), m_watch(watch), m_state(new QLabel), m_events(new QListWidget) {
    m_state->setObjectName(QStringLiteral("linkState"));
    m_events->setObjectName(QStringLiteral("linkEvents"));
    m_events->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(m_state);
    layout->addWidget(m_events, 1);
    connect(watch, &RobotWatch::linksChanged, this, &LinkPanel::note);
    display();
}

void LinkPanel::note(const QString& text) {
    m_events->insertItem(0, QTime::currentTime().toString(QStringLiteral("hh:mm:ss  ")) + text);
    while (m_events->count() > mostEvents)
        delete m_events->takeItem(mostEvents);
    display();
}

void LinkPanel::display() {
    m_state->setText(m_watch->isConnected() ? tr("Connected") : tr("Not connected"));
    m_state->setProperty("state", m_watch->isConnected() ? QStringLiteral("good") : QStringLiteral("error"));
    m_state->style()->unpolish(m_state);
    m_state->style()->polish(m_state);
}
