#include "ioregisterspart.h"

#include "ioregisterdetails.h"
#include "ioregistersmodel.h"
#include "rowdelegate.h"
#include "rowtable.h"
#include "state/registers.h"

#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>

namespace pendant {

namespace {

const int nameWidth = 224;

} // namespace

IoRegistersPart::IoRegistersPart(const Theme& theme, QWidget* parent)
    : QWidget(parent), m_model(new IoRegistersModel(this)), m_filter(new QSortFilterProxyModel(this)),
      m_table(new QTableView(this)), m_delegate(new RowDelegate(theme, this)), m_hint(new QLabel(this)),
      m_details(new IoRegisterDetails(this)) {
    m_filter->setSourceModel(m_model);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_hint->setProperty("caption", true);
    makeTable();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_table, 1);
    column->addWidget(m_hint);
    column->addWidget(m_details);
    connect(m_model, &RecordsModel::refreshed, this, &IoRegistersPart::showSelected);
}

void IoRegistersPart::makeTable() {
    m_table->setObjectName(QStringLiteral("ioRegisters"));
    m_table->setModel(m_filter);
    m_table->setItemDelegate(m_delegate);
    setUpRowTable(m_table);
    m_table->setColumnWidth(IoRegistersModel::Name, nameWidth);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        showSelected();
        // The details have taken room from the table by then.
        QTimer::singleShot(0, m_table, [this] { m_table->scrollTo(m_table->currentIndex()); });
    });
}

void IoRegistersPart::showSelected() {
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    const QString node = rows.isEmpty() ? QString() : rows.first().data(RecordsModel::NodeRole).toString();
    brisk::ModuleObject* record = m_model->record(node);
    m_details->setRegister(registers::nameOf(record), registers::valuesOf(record));
    m_hint->setVisible(!record);
}

void IoRegistersPart::setFilter(const QString& text) {
    m_filter->setFilterFixedString(text);
    showSelected();
}

void IoRegistersPart::setOnline(bool online) {
    m_details->setOnline(online);
}

void IoRegistersPart::setTheme(const Theme& theme) {
    m_delegate->setTheme(theme);
    m_table->viewport()->update();
}

void IoRegistersPart::retranslate() {
    m_hint->setText(tr("Select a register to change its values."));
    m_details->retranslate();
    // The headings are asked for anew.
    emit m_model->headerDataChanged(Qt::Horizontal, 0, m_model->columnCount() - 1);
}

} // namespace pendant
