#include "trafficpanel.h"

#include "jsontext.h"
#include "pages/emptystate.h"

#include <QDateTime>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

namespace pendant {

namespace {

// A text field is slow with more; what is saved is whole.
const int mostDetail = 200000;

QString detailText(const TrafficRow& row) {
    const QString value = row.json.isEmpty() ? QString() : indentedJson(readJson(QString::fromUtf8(row.json)));
    const QString head = QStringList{row.entry.channel, row.entry.kind, row.entry.key}.join(QLatin1Char(' '));
    return value.isEmpty() ? head : head + QLatin1Char('\n') + value;
}

} // namespace

TrafficPanel::TrafficPanel(const Theme& theme, QWidget* parent)
    : DockPanel(QStringLiteral("trafficPanel"), theme, parent), m_model(theme), m_filter(&m_model),
      m_text(new QLineEdit(this)), m_channel(new QComboBox(this)),
      m_pause(addButton(QStringLiteral("trafficPause"), QStringLiteral("pause"))),
      m_clear(addButton(QStringLiteral("trafficClear"), QStringLiteral("clear"))),
      m_save(addButton(QStringLiteral("trafficSave"), QStringLiteral("save"))), m_state(new QLabel(this)),
      m_stack(new QStackedWidget(this)), m_table(new QTableView(this)), m_empty(new EmptyState(this)),
      m_detail(new QPlainTextEdit(this)) {
    m_text->setObjectName(QStringLiteral("trafficFilter"));
    addClearing(m_text);
    m_channel->setObjectName(QStringLiteral("trafficChannel"));
    m_channel->addItem(QString(), QString());
    m_channel->addItem(QString(), QStringLiteral("bus"));
    m_channel->addItem(QString(), QStringLiteral("controller"));
    m_channel->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_state->setObjectName(QStringLiteral("trafficState"));
    m_state->setWordWrap(true);
    m_pause->setCheckable(true);
    m_detail->setObjectName(QStringLiteral("trafficDetail"));
    m_detail->setReadOnly(true);
    m_detail->setLineWrapMode(QPlainTextEdit::NoWrap);
    makeTable();
    arrange();
    connectParts();
    retranslate();
}

void TrafficPanel::setLive(bool live) {
    m_live = live;
    record();
}

void TrafficPanel::setTheme(const Theme& theme) {
    DockPanel::setTheme(theme);
    m_model.setTheme(theme);
}

void TrafficPanel::makeTable() {
    m_table->setObjectName(QStringLiteral("traffic"));
    m_table->setModel(&m_filter);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setWordWrap(false);
    m_table->setShowGrid(false);
    m_table->setTabKeyNavigation(false);
    m_table->setIconSize({12, 12});
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setMinimumSectionSize(20);
    m_table->verticalHeader()->setDefaultSectionSize(22);
    QHeaderView* header = m_table->horizontalHeader();
    header->setMinimumSectionSize(24);
    const int widths[] = {104, 56, 84, 124, 156, 72, 100, 60};
    for (int column = 0; column < TrafficModel::ColumnCount; ++column)
        header->resizeSection(column, widths[column]);
    // The value last, for it takes what room there is.
    header->moveSection(TrafficModel::DurationColumn, TrafficModel::ValueColumn);
    header->setStretchLastSection(true);
}

void TrafficPanel::arrange() {
    auto* split = new QSplitter(Qt::Vertical, this);
    split->addWidget(m_stack);
    split->addWidget(m_detail);
    split->setStretchFactor(0, 1);
    split->setSizes({480, 120});
    split->setChildrenCollapsible(false);
    m_stack->addWidget(m_table);
    m_stack->addWidget(m_empty);
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(m_text, 1);
    row->addWidget(m_channel);
    for (QToolButton* button : {m_pause, m_clear, m_save})
        row->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(4);
    column->addLayout(row);
    column->addWidget(m_state);
    column->addWidget(split, 1);
}

void TrafficPanel::connectParts() {
    connect(m_text, &QLineEdit::textChanged, this, [this](const QString& text) { m_filter.setText(text); });
    connect(m_channel, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { m_filter.setChannel(m_channel->currentData().toString()); });
    connect(m_pause, &QToolButton::toggled, this, &TrafficPanel::record);
    connect(m_clear, &QToolButton::clicked, &m_model, &TrafficModel::clear);
    connect(m_save, &QToolButton::clicked, this, &TrafficPanel::askAndSave);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &TrafficPanel::showDetail);
    connect(&m_filter, &QAbstractItemModel::modelReset, this, &TrafficPanel::showDetail);
    for (QAbstractItemModel* rows :
         {static_cast<QAbstractItemModel*>(&m_filter), static_cast<QAbstractItemModel*>(&m_model)}) {
        connect(rows, &QAbstractItemModel::rowsInserted, this, &TrafficPanel::showState);
        connect(rows, &QAbstractItemModel::rowsRemoved, this, &TrafficPanel::showState);
        connect(rows, &QAbstractItemModel::modelReset, this, &TrafficPanel::showState);
    }
    connect(&m_filter, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar* bar = m_table->verticalScrollBar();
        m_atEnd = bar->value() == bar->maximum();
    });
    connect(&m_filter, &QAbstractItemModel::rowsInserted, this, &TrafficPanel::followNewest);
}

void TrafficPanel::record() {
    m_model.setRecording(m_live && !m_pause->isChecked());
    setIcon(m_pause, m_pause->isChecked() ? QStringLiteral("play") : QStringLiteral("pause"));
    retranslate();
}

void TrafficPanel::followNewest() {
    if (m_atEnd)
        m_table->scrollToBottom();
}

void TrafficPanel::showDetail() {
    const QModelIndex current = m_table->currentIndex();
    const QString text = current.isValid() ? detailText(m_filter.row(current.row())) : QString();
    const bool cut = text.size() > mostDetail;
    m_detail->setPlainText(cut ? text.left(mostDetail) + QLatin1Char('\n') + tr("… cut here; what you save is whole.")
                               : text);
}

void TrafficPanel::showState() {
    const int all = m_model.rowCount();
    const int shown = m_filter.rowCount();
    m_stack->setCurrentWidget(shown > 0 ? static_cast<QWidget*>(m_table) : m_empty);
    if (all == 0)
        m_empty->setTexts(tr("No traffic yet"),
                          tr("What the pendant and its plugins send over the bus and to the controller is listed here "
                             "from the moment this window is open. Use the pendant, and it fills."));
    else
        m_empty->setTexts(tr("Nothing matches the filter"),
                          tr("Other text, or all channels, brings back what is hidden."));
    const QLocale locale;
    const QString count = all == shown ? tr("%1 entries").arg(locale.toString(all))
                                       : tr("%1 of %2 entries").arg(locale.toString(shown), locale.toString(all));
    m_state->setText(m_pause->isChecked() ? tr("%1. Paused: nothing is recorded.").arg(count) : count);
    m_clear->setEnabled(all > 0);
    m_save->setEnabled(shown > 0);
}

void TrafficPanel::askAndSave() {
    const QString proposed = QDateTime::currentDateTime().toString(QStringLiteral("'traffic-'yyyyMMdd-HHmmss'.jsonl'"));
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save the traffic"), proposed, tr("JSON lines (*.jsonl)"));
    if (path.isEmpty())
        return;
    const QString error = m_filter.save(path);
    m_state->setText(error.isEmpty() ? tr("Saved as %1.").arg(path) : error);
}

void TrafficPanel::retranslate() {
    m_text->setPlaceholderText(tr("Filter"));
    m_text->setToolTip(tr("Part of key, sender, kind or value"));
    m_text->setAccessibleName(m_text->placeholderText());
    m_channel->setItemText(0, tr("All channels"));
    m_channel->setItemText(1, tr("Bus"));
    m_channel->setItemText(2, tr("Controller"));
    m_channel->setAccessibleName(tr("Channel"));
    m_pause->setText(m_pause->isChecked() ? tr("Resume") : tr("Pause"));
    m_clear->setText(tr("Clear"));
    m_save->setText(tr("Save"));
    m_save->setToolTip(tr("Save what is shown, one JSON object a line"));
    m_detail->setPlaceholderText(tr("Choose an entry to see its whole value."));
    showState();
}

} // namespace pendant
