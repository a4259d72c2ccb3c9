#include "treepanel.h"

#include "frame/elidedlabel.h"
#include "jsontext.h"
#include "searchbar.h"
#include "valuedelegate.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>

#include <functional>

namespace pendant {

namespace {

// Writes without notice show within that time.
const int silentRepaintMs = 1000;

} // namespace

TreePanel::TreePanel(brisk::ModuleObject* root, const Theme& theme, QWidget* parent)
    : DockPanel(QStringLiteral("treePanel"), theme, parent), m_root(root), m_view(new QTreeView(this)),
      m_delegate(new ValueDelegate(&m_model, this)), m_search(new SearchBar(theme, this)), m_key(new ElidedLabel(this)),
      m_refusal(new QLabel(this)), m_editButton(addButton(QStringLiteral("treeEdit"), QStringLiteral("edit"))),
      m_copyKeyButton(addButton(QStringLiteral("treeCopyKey"), QStringLiteral("copy"))),
      m_copyJsonButton(addButton(QStringLiteral("treeCopyJson"), QStringLiteral("copy"))) {
    m_key->setObjectName(QStringLiteral("treeKey"));
    m_key->setProperty("mono", true);
    m_refusal->setObjectName(QStringLiteral("treeRefusal"));
    m_refusal->setProperty("state", "error");
    m_refusal->setWordWrap(true);
    m_repaint.setInterval(silentRepaintMs);
    connect(&m_repaint, &QTimer::timeout, this, [this] { m_view->viewport()->update(); });
    m_refusal->hide();
    connect(m_delegate, &ValueDelegate::refused, m_refusal, [label = m_refusal](const QString& sentence) {
        label->setText(sentence);
        label->setVisible(!sentence.isEmpty());
    });
    connect(m_search, &SearchBar::chosen, this, &TreePanel::reveal);
    makeView();
    makeActions();
    arrange();
    TreePanel::setTheme(theme);
    retranslate();
}

void TreePanel::setLive(bool live) {
    if (live == m_repaint.isActive())
        return;
    if (!live)
        keepOpen();
    m_search->clear();
    m_search->setRoot(live ? m_root.data() : nullptr);
    m_model.follow(live ? m_root.data() : nullptr);
    if (!live)
        return m_repaint.stop();
    m_repaint.start();
    reopen();
    showCurrent();
}

void TreePanel::setTheme(const Theme& theme) {
    DockPanel::setTheme(theme);
    m_search->setTheme(theme);
    m_model.setDimColor(theme.color(QStringLiteral("textDim")));
}

void TreePanel::makeView() {
    m_view->setObjectName(QStringLiteral("tree"));
    m_view->setModel(&m_model);
    m_view->setUniformRowHeights(true);
    m_view->setIndentation(18);
    m_view->setItemDelegateForColumn(TreeModel::ValueColumn, m_delegate);
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    QHeaderView* header = m_view->header();
    header->setStretchLastSection(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->resizeSection(TreeModel::NameColumn, 220);
    header->resizeSection(TreeModel::WhoColumn, 112);
    header->resizeSection(TreeModel::WhenColumn, 108);
    header->setSectionResizeMode(TreeModel::ValueColumn, QHeaderView::Stretch);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &TreePanel::showCurrent);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &TreePanel::showCurrent);
}

void TreePanel::makeActions() {
    m_edit = makeAction(QStringLiteral("edit"), QKeySequence(Qt::Key_F2), &TreePanel::edit);
    m_copyKey = makeAction(QStringLiteral("copyKey"), QKeySequence::Copy, &TreePanel::copyKey);
    m_copyJson =
        makeAction(QStringLiteral("copyJson"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C), &TreePanel::copyJson);
    connect(m_editButton, &QToolButton::clicked, m_edit, &QAction::trigger);
    connect(m_copyKeyButton, &QToolButton::clicked, m_copyKey, &QAction::trigger);
    connect(m_copyJsonButton, &QToolButton::clicked, m_copyJson, &QAction::trigger);
    const auto addSearch = [this](const QKeySequence& keys, const std::function<void()>& call) {
        auto* action = new QAction(this);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(action);
        connect(action, &QAction::triggered, this, call);
    };
    addSearch(QKeySequence::Find, [this] { m_search->focusField(); });
    addSearch(QKeySequence(Qt::Key_F3), [this] { m_search->next(1); });
    addSearch(QKeySequence(Qt::SHIFT + Qt::Key_F3), [this] { m_search->next(-1); });
}

QAction* TreePanel::makeAction(const QString& name, const QKeySequence& keys, void (TreePanel::*slot)()) {
    auto* action = new QAction(this);
    action->setObjectName(name);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, slot);
    m_view->addAction(action);
    return action;
}

void TreePanel::arrange() {
    auto* lists = new QSplitter(Qt::Vertical, this);
    lists->addWidget(m_search->list());
    lists->addWidget(m_view);
    lists->setStretchFactor(1, 1);
    lists->setSizes({160, 480});
    lists->setChildrenCollapsible(false);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(4);
    buttons->addWidget(m_editButton);
    buttons->addWidget(m_copyKeyButton);
    buttons->addWidget(m_copyJsonButton);
    buttons->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(4);
    column->addWidget(m_search);
    column->addWidget(lists, 1);
    column->addWidget(m_key);
    column->addWidget(m_refusal);
    column->addLayout(buttons);
}

void TreePanel::reveal(brisk::ModuleObject* node) {
    const QModelIndex index = m_model.reveal(node);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

void TreePanel::showCurrent() {
    const brisk::ModuleObject* node = current();
    const QModelIndex value = m_view->currentIndex().siblingAtColumn(TreeModel::ValueColumn);
    m_key->setText(node ? node->key() : QString());
    m_edit->setEnabled(node && m_model.flags(value) & Qt::ItemIsEditable);
    m_copyKey->setEnabled(node);
    m_copyJson->setEnabled(node);
    m_editButton->setEnabled(m_edit->isEnabled());
    m_copyKeyButton->setEnabled(node);
    m_copyJsonButton->setEnabled(node);
}

brisk::ModuleObject* TreePanel::current() const {
    return m_model.node(m_view->currentIndex());
}

void TreePanel::edit() {
    m_view->edit(m_view->currentIndex().siblingAtColumn(TreeModel::ValueColumn));
}

void TreePanel::copyKey() {
    if (const brisk::ModuleObject* node = current())
        QGuiApplication::clipboard()->setText(node->key());
}

void TreePanel::copyJson() {
    if (const brisk::ModuleObject* node = current())
        QGuiApplication::clipboard()->setText(indentedJson(node->exportToJson(true)));
}

void TreePanel::retranslate() {
    m_edit->setText(tr("Edit value"));
    m_copyKey->setText(tr("Copy key"));
    m_copyJson->setText(tr("Copy JSON"));
    m_editButton->setText(m_edit->text());
    m_copyKeyButton->setText(m_copyKey->text());
    m_copyJsonButton->setText(m_copyJson->text());
    m_editButton->setToolTip(tr("Edit the value of the chosen leaf (F2)"));
    m_copyKeyButton->setToolTip(tr("Copy the key of the chosen node (Ctrl+C)"));
    m_copyJsonButton->setToolTip(tr("Copy the chosen node with everything below it as JSON (Ctrl+Shift+C)"));
}

} // namespace pendant
