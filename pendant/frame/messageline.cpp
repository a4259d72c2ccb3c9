#include "messageline.h"

#include "elidedlabel.h"
#include "messagewords.h"
#include "style/icons.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>

using helm::standin::Message;
using helm::standin::MessageList;

namespace pendant {

MessageLine::MessageLine(const Theme& theme, QWidget* parent)
    : QPushButton(parent), m_theme(theme), m_icon(new QLabel(this)), m_level(new QLabel(this)),
      m_time(new QLabel(this)), m_source(new QLabel(this)), m_text(new ElidedLabel(this)), m_count(new QLabel(this)),
      m_arrow(new QLabel(this)) {
    setObjectName(QStringLiteral("messageLine"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_level->setProperty("strong", true);
    m_source->setProperty("strong", true);
    m_time->setProperty("live", true);
    m_count->setProperty("caption", true);
    m_text->setObjectName(QStringLiteral("messageText"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 0, 16, 0);
    row->setSpacing(12);
    for (QLabel* label : {m_icon, m_level, m_time, m_source})
        row->addWidget(label);
    row->addWidget(m_text, 1);
    row->addWidget(m_count);
    row->addWidget(m_arrow);
    for (QLabel* label : findChildren<QLabel*>())
        label->setAttribute(Qt::WA_TransparentForMouseEvents);

    MessageList* list = MessageList::instance();
    connect(list, &MessageList::added, this, &MessageLine::showNewest);
    connect(list, &MessageList::modelReset, this, &MessageLine::showNewest);
    showNewest();
}

void MessageLine::setTheme(const Theme& theme) {
    m_theme = theme;
    showNewest();
}

void MessageLine::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showNewest();
}

void MessageLine::showNewest() {
    const QList<Message>& messages = MessageList::instance()->messages();
    m_arrow->setPixmap(linePixmap(QStringLiteral("up"), m_theme.color(QStringLiteral("textDim")), 24));
    m_count->setText(messages.isEmpty() ? QString() : tr("Messages: %1").arg(messages.size()));
    if (messages.isEmpty())
        showNothing();
    else
        showMessage(messages.last());
}

void MessageLine::showMessage(const Message& message) {
    const QString word = levelWord(message.level);
    setLevel(levelName(message.level), levelToken(message.level), word);
    m_time->setText(message.time.toString(QStringLiteral("HH:mm:ss")));
    m_source->setText(message.source);
    // A message of several lines stays one line here.
    m_text->setText(message.text.simplified());
    setAccessibleName(QStringLiteral("%1, %2: %3").arg(word, message.source, message.text));
}

void MessageLine::showNothing() {
    setLevel(QStringLiteral("good"), QStringLiteral("textDim"), QString());
    m_time->clear();
    m_source->clear();
    m_text->setText(tr("No messages"));
    setAccessibleName(m_text->text());
}

void MessageLine::setLevel(const QString& icon, const QString& token, const QString& word) {
    m_icon->setPixmap(linePixmap(icon, m_theme.color(token), 24));
    m_level->setText(word);
    m_level->setVisible(!word.isEmpty());
    m_time->setVisible(!word.isEmpty());
    m_source->setVisible(!word.isEmpty());
    m_level->setProperty("state", token);
    m_level->style()->unpolish(m_level);
    m_level->style()->polish(m_level);
}

} // namespace pendant
