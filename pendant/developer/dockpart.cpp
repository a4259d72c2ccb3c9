#include "dockpart.h"

#include "style/icons.h"

#include <QEvent>

namespace pendant {

DockPart::DockPart(const QString& name, const Theme& theme, QWidget* parent) : QWidget(parent), m_theme(theme) {
    setObjectName(name);
}

void DockPart::setTheme(const Theme& theme) {
    m_theme = theme;
    for (const auto& entry : qAsConst(m_icons))
        entry.first->setIcon(icon(entry.second));
    for (QAction* action : qAsConst(m_clearing))
        action->setIcon(icon(QStringLiteral("close")));
}

void DockPart::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

QToolButton* DockPart::addButton(const QString& name, const QString& icon) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIcon(button, icon);
    return button;
}

void DockPart::setIcon(QAbstractButton* button, const QString& name) {
    for (int i = m_icons.size() - 1; i >= 0; --i) {
        if (m_icons.at(i).first == button)
            m_icons.removeAt(i);
    }
    m_icons.append({button, name});
    button->setIconSize({16, 16});
    button->setIcon(icon(name));
}

// Qt's own clear button has the colours of no theme.
void DockPart::addClearing(QLineEdit* field) {
    QAction* action = field->addAction(icon(QStringLiteral("close")), QLineEdit::TrailingPosition);
    action->setVisible(false);
    connect(action, &QAction::triggered, field, &QLineEdit::clear);
    connect(field, &QLineEdit::textChanged, action,
            [action](const QString& text) { action->setVisible(!text.isEmpty()); });
    m_clearing.append(action);
}

QIcon DockPart::icon(const QString& name) const {
    return lineIcon(name, m_theme.color(QStringLiteral("text")), m_theme);
}

} // namespace pendant
