#pragma once

#include "page.h"
#include "plugincard.h"

#include <QPointer>
#include <QScrollArea>
#include <QStringList>

namespace pendant {

class EmptyState;
class PluginLoader;
class PluginSession;

/// The first page: the plugins with how they stand, and what could not be loaded and why.
class StartPage : public Page {
    Q_OBJECT

public:
    explicit StartPage(const Theme& theme, QWidget* parent = nullptr);

    /// What the page tells of; both must outlive the page or be taken back with null. `folders` are those in which
    /// plugins were looked for.
    void follow(const PluginSession* session, const PluginLoader* loader, const QStringList& folders);
    void setTheme(const Theme& theme) override;

signals:
    /// The page of a plugin is to be shown.
    void openPressed(const QString& key);

protected:
    void retranslate() override;

private:
    void refresh();
    QList<PluginCard::Content> pluginCards() const;
    QList<PluginCard::Content> fileCards() const;
    void showCards(const QList<PluginCard::Content>& cards);
    void showEmpty();
    void showCount(int running, int failed);

    QPointer<const PluginSession> m_session;
    const PluginLoader* m_loader = nullptr;
    QStringList m_folders;
    QLabel* m_count;
    QLabel* m_folder;
    QScrollArea* m_scroll;
    EmptyState* m_empty;
};

} // namespace pendant
