#include "plugincard.h"

#include "frame/elidedlabel.h"
#include "style/icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace pendant {

namespace {

QLabel* label(QWidget* parent, const QString& text, const char* property, const QVariant& value) {
    auto* result = new QLabel(text, parent);
    result->setTextFormat(Qt::PlainText);
    result->setProperty(property, value);
    return result;
}

QLabel* elided(QWidget* parent, const QString& text, const char* property) {
    auto* result = new ElidedLabel(parent);
    result->setText(text);
    result->setProperty(property, true);
    return result;
}

} // namespace

PluginCard::PluginCard(const Content& content, const Theme& theme, QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("card"));
    setAccessibleName(content.title + QStringLiteral(": ") + content.word);
    auto* icon = new QLabel(this);
    icon->setPixmap(linePixmap(content.icon, theme.color(content.token), 24));
    auto* word = label(this, content.word, "state", content.token);
    word->setObjectName(QStringLiteral("pluginState"));

    auto* words = new QVBoxLayout;
    words->setSpacing(4);
    words->addWidget(elided(this, content.title, "strong"));
    if (!content.file.isEmpty())
        words->addWidget(elided(this, content.file, "mono"));
    if (!content.reason.isEmpty()) {
        QLabel* reason = label(this, content.reason, "reason", true);
        reason->setWordWrap(true);
        words->addWidget(reason);
    }

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 12, 12, 12);
    row->setSpacing(16);
    row->addWidget(icon);
    row->addLayout(words, 1);
    row->addWidget(word);
    if (content.page.isEmpty())
        return;
    auto* open = new QPushButton(content.openWord, this);
    open->setObjectName(QStringLiteral("open:") + content.page);
    open->setAccessibleName(content.openWord + QLatin1Char(' ') + content.title);
    connect(open, &QPushButton::clicked, this, &PluginCard::openPressed);
    row->addWidget(open);
}

} // namespace pendant
