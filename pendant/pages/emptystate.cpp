#include "emptystate.h"

#include <QVBoxLayout>
#include <QVariant>

namespace pendant {

EmptyState::EmptyState(QWidget* parent)
    : QWidget(parent), m_title(new QLabel(this)), m_text(new QLabel(this)), m_lines(new QLabel(this)) {
    setObjectName(QStringLiteral("emptyState"));
    setAttribute(Qt::WA_StyledBackground);
    m_title->setProperty("title", true);
    m_lines->setProperty("mono", true);
    m_lines->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 32, 32, 32);
    column->setSpacing(16);
    column->addStretch();
    for (QLabel* label : {m_title, m_text, m_lines}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignHCenter);
        column->addWidget(label);
    }
    column->addStretch();
    m_lines->hide();
}

void EmptyState::setTexts(const QString& title, const QString& text) {
    m_title->setText(title);
    m_text->setText(text);
}

void EmptyState::setLines(const QStringList& lines) {
    m_lines->setText(lines.join(QLatin1Char('\n')));
    m_lines->setVisible(!lines.isEmpty());
}

} // namespace pendant
