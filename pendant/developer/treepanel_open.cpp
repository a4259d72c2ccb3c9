#include "treepanel.h"

#include <QPersistentModelIndex>

namespace pendant {

namespace {

const int mostRowsAtFirst = 30;

} // namespace

// What was open when the dock was closed is open when it comes back.

void TreePanel::keepOpen() {
    m_open.clear();
    const brisk::ModuleObject* chosen = current();
    m_currentKey = chosen ? chosen->key() : QString();
    QModelIndex index = m_model.index(0, 0);
    while (index.isValid()) {
        const brisk::ModuleObject* node = m_model.node(index);
        if (node && m_view->isExpanded(index))
            m_open.append(node->key());
        index = m_view->indexBelow(index);
    }
}

void TreePanel::reopen() {
    if (!m_wasShown)
        return expandFirst();
    for (const QString& key : qAsConst(m_open)) {
        if (const brisk::ModuleObject* node = m_root ? m_root->r(key) : nullptr)
            m_view->expand(m_model.reveal(node));
    }
    const brisk::ModuleObject* node = m_root && !m_currentKey.isEmpty() ? m_root->r(m_currentKey) : nullptr;
    if (node)
        m_view->setCurrentIndex(m_model.reveal(node));
}

// Level by level, as far as a screen goes.
void TreePanel::expandFirst() {
    m_wasShown = true;
    QList<QPersistentModelIndex> level{QModelIndex()};
    int rows = m_model.rowCount();
    while (!level.isEmpty()) {
        const QPersistentModelIndex at = level.takeFirst();
        for (int row = 0; row < m_model.rowCount(at); ++row) {
            const QModelIndex index = m_model.index(row, 0, at);
            const brisk::ModuleObject* node = m_model.node(index);
            const int count = node ? node->cmobjCount() : 0;
            if (count == 0 || rows + count > mostRowsAtFirst)
                continue;
            rows += count;
            m_view->expand(index);
            m_model.fetchMore(index);
            level.append(index);
        }
    }
}

} // namespace pendant
