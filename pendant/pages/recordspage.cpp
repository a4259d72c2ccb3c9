#include "recordspage.h"

#include "emptystate.h"
#include "recordsmodel.h"
#include "rowdelegate.h"
#include "rowtable.h"

namespace pendant {

RecordsPage::RecordsPage(const QString& name, RecordsModel* model, const Theme& theme, QWidget* parent)
    : Page(name, theme, parent), m_model(model), m_filter(new QSortFilterProxyModel(this)), m_count(new QLabel(this)),
      m_find(new QLineEdit(this)), m_table(new QTableView(this)), m_delegate(new RowDelegate(theme, this)),
      m_empty(new EmptyState(this)) {
    m_model->setParent(this);
    m_filter->setSourceModel(m_model);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_count->setObjectName(QStringLiteral("recordCount"));
    m_count->setProperty("caption", true);
    m_find->setObjectName(QStringLiteral("findRecord"));
    m_find->setFixedWidth(260);
    m_find->setClearButtonEnabled(true);
    connect(m_find, &QLineEdit::textChanged, m_filter, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_find, &QLineEdit::textChanged, this, &RecordsPage::showState);
    actions()->addWidget(m_count);
    actions()->addSpacing(8);
    actions()->addWidget(m_find);
    makeTable();
    content()->addWidget(m_table, 1);
    content()->addWidget(m_empty, 1);
    connect(m_model, &RecordsModel::refreshed, this, &RecordsPage::showState);
}

void RecordsPage::makeTable() {
    m_table->setModel(m_filter);
    m_table->setItemDelegate(m_delegate);
    setUpRowTable(m_table);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &RecordsPage::selectionChanged);
}

void RecordsPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    m_delegate->setTheme(theme);
}

void RecordsPage::setColumnWidths(const QVector<int>& widths) {
    for (int column = 0; column < widths.size(); ++column)
        m_table->setColumnWidth(column, widths.at(column));
}

QString RecordsPage::selected() const {
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : rows.first().data(RecordsModel::NodeRole).toString();
}

void RecordsPage::retranslate() {
    m_find->setPlaceholderText(tr("Find by name"));
    // The headings are asked for anew.
    emit m_model->headerDataChanged(Qt::Horizontal, 0, m_model->columnCount() - 1);
    showState();
}

void RecordsPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    m_model->setActive(true);
}

void RecordsPage::hideEvent(QHideEvent* event) {
    Page::hideEvent(event);
    m_model->setActive(false);
}

void RecordsPage::showState() {
    const int all = m_model->rowCount();
    const int shown = m_filter->rowCount();
    m_table->setVisible(shown > 0);
    m_empty->setVisible(shown == 0);
    m_find->setEnabled(all > 0);
    m_count->setText(shown == all ? QString::number(all) : tr("%1 of %2").arg(shown).arg(all));
    if (all > 0)
        m_empty->setTexts(tr("Nothing of this name"), tr("Clear the field above to see all."));
    else
        m_empty->setTexts(emptyTitle(), emptyText());
}

} // namespace pendant
