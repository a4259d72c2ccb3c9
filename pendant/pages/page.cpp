#include "page.h"

#include "style/stylesheet.h"

#include <QEvent>

namespace pendant {

Page::Page(const QString& name, const Theme& theme, QWidget* parent)
    : QWidget(parent), m_theme(theme), m_title(new QLabel(this)), m_actions(new QHBoxLayout),
      m_content(new QVBoxLayout) {
    setObjectName(name);
    m_title->setObjectName(QStringLiteral("pageTitle"));
    auto* head = new QHBoxLayout;
    head->addWidget(m_title, 1);
    head->addLayout(m_actions);
    m_actions->setSpacing(8);
    m_actions->setContentsMargins(0, 0, 8, 0);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addLayout(head);
    column->addLayout(m_content, 1);
    // As far in as a layout with the style's own margins.
    m_content->setContentsMargins(8, 0, 8, 0);
    m_content->setSpacing(8);
    setStyleSheet(frameStyleSheet(theme));
}

void Page::setTheme(const Theme& theme) {
    m_theme = theme;
    setStyleSheet(frameStyleSheet(theme));
}

void Page::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

} // namespace pendant
