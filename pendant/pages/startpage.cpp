#include "startpage.h"

#include "emptystate.h"
#include "plugins/pluginloader.h"
#include "plugins/pluginsession.h"

#include <QDir>
#include <QScrollBar>
#include <QScroller>

#include <algorithm>

namespace pendant {

namespace {

bool isFailed(const PluginCard::Content& card) {
    return card.token == QLatin1String("error");
}

} // namespace

StartPage::StartPage(const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("startPage"), theme, parent), m_count(new QLabel(this)), m_folder(new QLabel(this)),
      m_scroll(new QScrollArea(this)), m_empty(new EmptyState(this)) {
    m_count->setObjectName(QStringLiteral("pluginCount"));
    m_count->setProperty("caption", true);
    m_folder->setProperty("caption", true);
    m_folder->setWordWrap(true);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(m_scroll->viewport(), QScroller::LeftMouseButtonGesture);
    actions()->addWidget(m_count);
    content()->addWidget(m_empty, 1);
    content()->addWidget(m_scroll, 1);
    content()->addWidget(m_folder);
    retranslate();
}

void StartPage::follow(const PluginSession* session, const PluginLoader* loader, const QStringList& folders) {
    if (m_session)
        disconnect(m_session, nullptr, this, nullptr);
    m_session = session;
    m_loader = loader;
    m_folders = folders;
    if (session)
        connect(session, &PluginSession::changed, this, &StartPage::refresh);
    refresh();
}

void StartPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    refresh();
}

void StartPage::retranslate() {
    setTitle(tr("Start"));
    m_folder->setText(tr("Working folder: %1").arg(QDir::toNativeSeparators(QDir::currentPath())));
    refresh();
}

void StartPage::refresh() {
    const QList<PluginCard::Content> cards = fileCards() + pluginCards();
    m_empty->setVisible(cards.isEmpty());
    m_scroll->setVisible(!cards.isEmpty());
    const int failed = static_cast<int>(std::count_if(cards.begin(), cards.end(), isFailed));
    showCount(cards.size() - failed, failed);
    if (cards.isEmpty())
        showEmpty();
    else
        showCards(cards);
}

void StartPage::showEmpty() {
    const QString text = m_folders.isEmpty()
                             ? tr("The plugins of this pendant are listed here. Start the pendant with --plugins and "
                                  "the folder that holds them (files *.so).")
                             : tr("The plugins of this pendant are listed here. Copy a plugin (a file *.so) into one "
                                  "of the folders below and start the pendant again, or name its folder with "
                                  "--plugins.");
    m_empty->setTexts(tr("No plugins loaded"), text);
    m_empty->setLines(m_folders);
}

QList<PluginCard::Content> StartPage::pluginCards() const {
    QList<PluginCard::Content> failed;
    QList<PluginCard::Content> running;
    for (const PluginInfo& info : m_session ? m_session->plugins() : QList<PluginInfo>()) {
        PluginCard::Content card{info.title == info.name ? info.name
                                                         : QStringLiteral("%1 (%2)").arg(info.title, info.name),
                                 info.file,
                                 tr("Running"),
                                 QStringLiteral("good"),
                                 QStringLiteral("good"),
                                 info.reason,
                                 info.page,
                                 tr("Open")};
        if (info.state == PluginState::Stopped) {
            card.word = tr("Stopped");
            card.token = QStringLiteral("text");
        }
        if (info.state == PluginState::Failed) {
            card.word = tr("Failed");
            card.icon = card.token = QStringLiteral("error");
            card.page.clear();
        }
        (isFailed(card) ? failed : running).append(card);
    }
    return failed + running;
}

QList<PluginCard::Content> StartPage::fileCards() const {
    QList<PluginCard::Content> cards;
    for (const PluginFile& file : m_loader ? m_loader->files() : QList<PluginFile>()) {
        if (!file.error.isEmpty())
            cards.append({QFileInfo(file.path).fileName(), file.path, tr("Not loaded"), QStringLiteral("error"),
                          QStringLiteral("error"), file.error, QString(), QString()});
    }
    return cards;
}

void StartPage::showCards(const QList<PluginCard::Content>& cards) {
    const int scrolled = m_scroll->verticalScrollBar()->value();
    if (QWidget* old = m_scroll->takeWidget()) {
        old->hide();
        old->deleteLater();
    }
    auto* list = new QWidget;
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    for (const PluginCard::Content& content : cards) {
        auto* card = new PluginCard(content, theme(), list);
        connect(card, &PluginCard::openPressed, this, [this, content] { emit openPressed(content.page); });
        column->addWidget(card);
    }
    column->addStretch();
    m_scroll->setWidget(list);
    column->activate();
    m_scroll->verticalScrollBar()->setValue(scrolled);
}

void StartPage::showCount(int running, int failed) {
    QStringList parts;
    if (running > 0)
        parts << tr("Running: %1").arg(running);
    if (failed > 0)
        parts << tr("Failed: %1").arg(failed);
    m_count->setText(parts.join(QStringLiteral("    ")));
}

} // namespace pendant
