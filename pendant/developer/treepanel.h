#pragma once

#include "dockpanel.h"
#include "treemodel.h"

#include "brisk/moduleobject.h"

#include <QAction>
#include <QLabel>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QTreeView>

namespace pendant {

class ElidedLabel;
class SearchBar;
class ValueDelegate;

/// The data tree: read, searched, edited and copied.
class TreePanel : public DockPanel {
    Q_OBJECT

public:
    TreePanel(brisk::ModuleObject* root, const Theme& theme, QWidget* parent = nullptr);

    QString title() const override { return tr("Tree"); }
    void setLive(bool live) override;
    void setTheme(const Theme& theme) override;
    TreeModel* model() { return &m_model; }

protected:
    void retranslate() override;

private:
    void makeView();
    void makeActions();
    QAction* makeAction(const QString& name, const QKeySequence& keys, void (TreePanel::*slot)());
    void arrange();
    void reveal(brisk::ModuleObject* node);
    void showCurrent();
    void expandFirst();
    void keepOpen();
    void reopen();
    brisk::ModuleObject* current() const;

    void edit();
    void copyKey();
    void copyJson();

    QPointer<brisk::ModuleObject> m_root;
    TreeModel m_model;
    QTreeView* m_view;
    ValueDelegate* m_delegate;
    SearchBar* m_search;
    ElidedLabel* m_key;
    QLabel* m_refusal;
    QAction* m_edit;
    QAction* m_copyKey;
    QAction* m_copyJson;
    QToolButton* m_editButton;
    QToolButton* m_copyKeyButton;
    QToolButton* m_copyJsonButton;
    QTimer m_repaint;
    QStringList m_open; ///< keys of the rows that were open
    QString m_currentKey;
    bool m_wasShown = false;
};

} // namespace pendant
