#include "iosignalspart.h"

#include "iodelegate.h"
#include "iosignaldetails.h"

#include <QScroller>
#include <QTimer>
#include <QVBoxLayout>
#include <QVariant>

namespace pendant {

IoSignalsPart::IoSignalsPart(const Theme& theme, QWidget* parent)
    : QWidget(parent), m_model(new IoSignalsModel(this)), m_list(new QListView(this)),
      m_delegate(new IoDelegate(theme, this)), m_hint(new QLabel(this)), m_details(new IoSignalDetails(this)) {
    m_hint->setObjectName(QStringLiteral("ioHint"));
    m_hint->setProperty("caption", true);
    makeList();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_list, 1);
    column->addWidget(m_hint);
    column->addWidget(m_details);
    connect(m_model, &IoSignalsModel::refreshed, this, &IoSignalsPart::showSelected);
}

void IoSignalsPart::makeList() {
    m_list->setObjectName(QStringLiteral("ioSignals"));
    m_list->setModel(m_model);
    m_list->setItemDelegate(m_delegate);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(m_list->viewport(), QScroller::LeftMouseButtonGesture);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, &IoSignalsPart::select);
}

void IoSignalsPart::showInputs(bool inputs) {
    m_showsInputs = inputs;
    m_selected.clear();
    m_model->showInputs(inputs);
    retranslate();
}

// The rows are made anew by the filter; the selection is somebody's.
void IoSignalsPart::select(const QModelIndex& index) {
    const QString name = index.data(IoSignalsModel::NameRole).toString();
    if (name.isEmpty())
        return;
    m_selected = name;
    showSelected();
    // The details have taken room from the list by then.
    QTimer::singleShot(0, m_list, [this] { m_list->scrollTo(m_list->currentIndex()); });
}

void IoSignalsPart::showSelected() {
    const int row = m_model->rowOf(m_selected);
    if (row >= 0 && m_list->currentIndex().row() != row)
        m_list->setCurrentIndex(m_model->index(row));
    m_details->setSignal(row < 0 ? Signal() : ioSignals::named(m_selected));
    m_hint->setVisible(row < 0);
}

void IoSignalsPart::setOnline(bool online) {
    m_details->setOnline(online);
    showSelected();
}

void IoSignalsPart::setTheme(const Theme& theme) {
    m_delegate->setTheme(theme);
    m_details->setTheme(theme);
    m_list->viewport()->update();
}

void IoSignalsPart::retranslate() {
    m_hint->setText(m_showsInputs ? tr("Select an input to force it.") : tr("Select an output to switch it."));
    m_details->retranslate();
    showSelected();
}

} // namespace pendant
