#pragma once

#include "briskx/navigationmodel.h"
#include "style/theme.h"

#include <QList>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWidget>

namespace pendant {

class NavigationEntry;

/// The page groups at the left, as the navigation model has them.
class Navigation : public QWidget {
    Q_OBJECT

public:
    explicit Navigation(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);
    /// Marks the entry of that centre page as the current one and brings it into view.
    void setCurrent(const QString& nav);
    QList<NavigationEntry*> entries() const { return m_entries; }

signals:
    void chosen(const QString& title, const QString& nav);

protected:
    void changeEvent(QEvent* event) override;

private:
    void rebuild();
    void addGroup(const ot::gyre::standin::Group& group);
    void addEntry(const ot::gyre::standin::Group& group, const ot::gyre::standin::Entry& entry);
    void choose(NavigationEntry* entry);
    void markCurrent();

    Theme m_theme;
    QScrollArea* m_scroll;
    QWidget* m_content = nullptr;
    QVBoxLayout* m_column = nullptr;
    QList<NavigationEntry*> m_entries;
    QString m_current;
};

} // namespace pendant
