#pragma once

#include "style/theme.h"
#include "tarp/containers.h"

#include <QLayout>
#include <QWidget>

namespace pendant {

class DeveloperButton;
class KeyColumn;
class MessageLine;
class Navigation;
class PageTitle;
class SideBarButton;
class SideBarHeader;
class StatusItems;

/// The pendant's window: status bar on top, navigation, centre and side bar, the physical keys at the right edge and
/// the line of messages at the bottom.
class PendantWindow : public QWidget {
    Q_OBJECT

public:
    explicit PendantWindow(const Theme& theme, QWidget* parent = nullptr);
    ~PendantWindow() override;

    tarp::CenterWidget* center() const { return m_center; }
    tarp::StatusBar* statusBar() const { return m_statusBar; }
    tarp::ExpandSideBar* sideBar() const { return m_sideBar; }
    Navigation* navigation() const { return m_navigation; }
    KeyColumn* keys() const { return m_keys; }

    const Theme& theme() const { return m_theme; }
    /// Dresses the frame, the pages that stand in it and what plugins put into its bars.
    void setTheme(const Theme& theme);
    /// Shows the centre page of `key`; says in the message list when there is none.
    void showPage(const QString& key);
    /// Shows at its button whether the developer dock is open.
    void setDeveloperOpen(bool open);

signals:
    void themeChanged(const pendant::Theme& theme);
    /// The developer dock is to be opened, or closed when it is open.
    void developerAsked();

private:
    void fillStatusBar();
    void arrange();
    QLayout* arrangePage();
    void connectParts();
    void open(const QString& title, const QString& nav);
    void toggleMessages();

    Theme m_theme;
    tarp::StatusBar* m_statusBar;
    Navigation* m_navigation;
    tarp::CenterWidget* m_center;
    PageTitle* m_pageTitle;
    tarp::ExpandSideBar* m_sideBar;
    SideBarHeader* m_sideBarHeader;
    KeyColumn* m_keys;
    MessageLine* m_messageLine;
    StatusItems* m_statusItems;
    DeveloperButton* m_developerButton = nullptr;
    SideBarButton* m_sideBarButton = nullptr;
    QString m_pageBeforeMessages;
};

} // namespace pendant
