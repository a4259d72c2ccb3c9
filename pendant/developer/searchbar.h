#pragma once

#include "dockpart.h"
#include "searchhits.h"
#include "treesearch.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTableView>
#include <QTimer>

namespace pendant {

/// The search of the tree: a field, a list of what was found, and a way from hit to hit.
class SearchBar : public DockPart {
    Q_OBJECT

public:
    SearchBar(const Theme& theme, QWidget* parent = nullptr);

    /// Ends the search and forgets what was found.
    void clear();
    void setRoot(brisk::ModuleObject* root) { m_root = root; }
    /// The list of what was found; it stands elsewhere and is hidden while there is none.
    QTableView* list() const { return m_list; }

    void start();
    void stop();
    void next(int by);
    void focusField();

signals:
    void chosen(brisk::ModuleObject* node);

protected:
    void retranslate() override;

private:
    void makeList();
    void arrange();
    void choose(int row);
    void showState();
    QString stateText() const;

    QPointer<brisk::ModuleObject> m_root;
    TreeSearch m_search;
    SearchHits m_hits;
    QTimer m_typing;
    QLineEdit* m_field;
    QToolButton* m_previous;
    QToolButton* m_next;
    QToolButton* m_stop;
    QLabel* m_state;
    QTableView* m_list;
};

} // namespace pendant
