#include "navigation.h"

#include "navigationentry.h"
#include "style/icons.h"

#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QScroller>
#include <QTimer>

using ot::gyre::standin::Entry;
using ot::gyre::standin::Group;
using ot::gyre::standin::NavigationModel;

namespace pendant {

Navigation::Navigation(const Theme& theme, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_scroll(new QScrollArea(this)) {
    setObjectName(QStringLiteral("navigation"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedWidth(216);

    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(m_scroll->viewport(), QScroller::LeftMouseButtonGesture);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 1, 0);
    layout->addWidget(m_scroll);

    connect(NavigationModel::instance(), &NavigationModel::changed, this, &Navigation::rebuild);
    rebuild();
}

void Navigation::setTheme(const Theme& theme) {
    m_theme = theme;
    rebuild();
}

void Navigation::setCurrent(const QString& nav) {
    m_current = nav;
    markCurrent();
}

void Navigation::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        rebuild();
}

void Navigation::rebuild() {
    const int scrolled = m_scroll->verticalScrollBar()->value();
    m_entries.clear();
    // The press that leads here may come from an entry.
    if (QWidget* old = m_scroll->takeWidget()) {
        old->hide();
        old->deleteLater();
    }
    m_content = new QWidget;
    m_content->setObjectName(QStringLiteral("navigationContent"));
    m_column = new QVBoxLayout(m_content);
    m_column->setContentsMargins(0, 0, 0, 16);
    m_column->setSpacing(0);
    for (const Group& group : NavigationModel::instance()->groups())
        addGroup(group);
    m_column->addStretch();
    m_scroll->setWidget(m_content);
    m_column->activate();
    m_scroll->verticalScrollBar()->setValue(scrolled);
    markCurrent();
}

void Navigation::addGroup(const Group& group) {
    auto* caption = new QLabel(group.title, m_content);
    caption->setObjectName(QStringLiteral("navGroup:") + group.path);
    caption->setWordWrap(true);
    m_column->addWidget(caption);
    for (const Entry& entry : group.entries)
        addEntry(group, entry);
    if (!group.entries.isEmpty())
        return;
    auto* hint = new QLabel(tr("No pages yet. “Start” shows how to add a plugin."), m_content);
    hint->setObjectName(QStringLiteral("navEmpty:") + group.path);
    hint->setProperty("hint", true);
    hint->setWordWrap(true);
    m_column->addWidget(hint);
}

void Navigation::addEntry(const Group& group, const Entry& entry) {
    auto* button = new NavigationEntry(entry.title, entry.nav, m_content);
    button->setIcon(entryIcon({entry.icon, group.icon, QStringLiteral("plugin")}, m_theme));
    connect(button, &NavigationEntry::clicked, this, [this, button] { choose(button); });
    m_entries.append(button);
    m_column->addWidget(button);
}

void Navigation::choose(NavigationEntry* entry) {
    emit chosen(entry->title(), entry->nav());
    // A press toggles the button; what is current is for the centre to say.
    markCurrent();
}

void Navigation::markCurrent() {
    for (NavigationEntry* entry : m_entries) {
        const bool current = !m_current.isEmpty() && entry->nav() == m_current;
        entry->setChecked(current);
        if (current)
            m_scroll->ensureWidgetVisible(entry, 0, 16);
    }
}

} // namespace pendant
