#pragma once

#include "style/theme.h"

#include "brisk/moduleobject.h"

#include <QList>
#include <QTabWidget>
#include <QWidget>

namespace pendant {

class DockPanel;

/// The developer's window beside the pendant: data tree, traffic and links. While it is hidden it is connected to
/// nothing of what it shows, unless watch() was called.
class DeveloperDock : public QWidget {
    Q_OBJECT

public:
    /// As it is at first, and as small as it gets.
    static QSize wantedSize() { return {800, 800}; }
    static QSize leastSize() { return {600, 420}; }

    DeveloperDock(brisk::ModuleObject* root, const Theme& theme);

    void setTheme(const Theme& theme);
    /// Looks at the pendant from now on, though it is not shown, until it is shown and closed.
    void watch() { setLive(true); }
    /// The names of the tabs in order: "tree", "traffic", "links".
    static QStringList tabNames();
    QString tabTitle(int index) const { return m_tabs->tabText(index); }
    void showTab(int index) { m_tabs->setCurrentIndex(index); }

signals:
    void shownChanged(bool shown);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void setLive(bool live);
    void retranslate();

    QTabWidget* m_tabs;
    QList<DockPanel*> m_panels;
};

} // namespace pendant
