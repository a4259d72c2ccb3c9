#pragma once

#include "style/theme.h"
#include "tarp/containers.h"

#include <QScrollArea>
#include <QToolButton>
#include <QVariantAnimation>
#include <QWidget>

namespace pendant {

/// The top of the side bar: a tab for each of its pages and the button that closes it. Slides the side bar in and out.
class SideBarHeader : public QWidget {
    Q_OBJECT

public:
    static const int sideBarWidth = 320;

    SideBarHeader(tarp::ExpandSideBar* bar, const Theme& theme);

    void setTheme(const Theme& theme);
    /// Shows the side bar and slides it into view.
    void open();
    /// Slides the side bar out of view, then hides it.
    void close();
    /// Whether the side bar is shown and not on its way out.
    bool isOpen() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeTabs();
    void rebuild();
    void markCurrent();
    void slideTo(int width);
    void dress();
    QString titleOf(const QString& key) const;

    tarp::ExpandSideBar* m_bar;
    Theme m_theme;
    QScrollArea* m_tabs;
    QToolButton* m_close;
    QVariantAnimation m_slide;
};

} // namespace pendant
