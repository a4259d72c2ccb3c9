#include "procedurepage.h"

#include "procedure.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

ProcedurePage::ProcedurePage(ProcedureStore* store) : m_store(store), m_list(new QListWidget) {
    setWindowTitle(tr("Procedures"));
    for (const Procedure& procedure : store->procedures())
        m_list->addItem(procedure.name);

    auto* hint = new QLabel(tr("Press a procedure to take it into use. What you changed by hand is replaced."));
    hint->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(hint);

    // The side bar keeps this page a little longer than the plugin lives: with the store as context, a press after that
    // goes nowhere.
    connect(m_list, &QListWidget::itemClicked, store, [this] { m_store->use(m_list->currentRow()); });
    connect(store, &ProcedureStore::changed, this, &ProcedurePage::showInUse);
    showInUse();
}

void ProcedurePage::showInUse() {
    const auto items = m_list->findItems(m_store->inUse().name, Qt::MatchExactly);
    m_list->setCurrentItem(items.value(0));
}
