#include "searchbar.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace pendant {

namespace {

const int typingPauseMs = 250;

} // namespace

SearchBar::SearchBar(const Theme& theme, QWidget* parent)
    : DockPart(QStringLiteral("treeSearch"), theme, parent), m_field(new QLineEdit(this)),
      m_previous(addButton(QStringLiteral("searchPrevious"), QStringLiteral("up"))),
      m_next(addButton(QStringLiteral("searchNext"), QStringLiteral("down"))),
      m_stop(addButton(QStringLiteral("searchStop"), QStringLiteral("stop"))), m_state(new QLabel(this)),
      m_list(new QTableView) {
    m_field->setObjectName(QStringLiteral("searchField"));
    addClearing(m_field);
    m_state->setObjectName(QStringLiteral("searchState"));
    m_state->setWordWrap(true);
    m_typing.setInterval(typingPauseMs);
    m_typing.setSingleShot(true);
    makeList();
    arrange();
    connect(m_field, &QLineEdit::textChanged, &m_typing, QOverload<>::of(&QTimer::start));
    connect(m_field, &QLineEdit::returnPressed, this, [this] { m_typing.isActive() ? start() : next(1); });
    connect(&m_typing, &QTimer::timeout, this, &SearchBar::start);
    connect(m_previous, &QToolButton::clicked, this, [this] { next(-1); });
    connect(m_next, &QToolButton::clicked, this, [this] { next(1); });
    connect(m_stop, &QToolButton::clicked, this, &SearchBar::stop);
    connect(&m_search, &TreeSearch::found, this, [this](int first) { m_hits.append(m_search.hits().mid(first)); });
    connect(&m_search, &TreeSearch::progressed, this, &SearchBar::showState);
    retranslate();
}

void SearchBar::clear() {
    stop();
    m_hits.clear();
    m_search.forget();
    const QSignalBlocker quiet(m_field);
    m_field->clear();
    showState();
}

void SearchBar::start() {
    m_typing.stop();
    m_search.stop();
    m_search.forget();
    m_hits.clear();
    if (m_root && !m_field->text().isEmpty())
        m_search.start(m_root, m_field->text());
    showState();
}

void SearchBar::stop() {
    m_typing.stop();
    m_search.stop();
    showState();
}

void SearchBar::next(int by) {
    const int count = m_hits.rowCount();
    if (count == 0)
        return;
    const int current = m_list->currentIndex().isValid() ? m_list->currentIndex().row() : (by > 0 ? -1 : count);
    m_list->setCurrentIndex(m_hits.index((current + by + count) % count, 0));
}

void SearchBar::focusField() {
    m_field->setFocus();
    m_field->selectAll();
}

void SearchBar::makeList() {
    m_list->setObjectName(QStringLiteral("searchHits"));
    m_list->setModel(&m_hits);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setWordWrap(false);
    m_list->setShowGrid(false);
    m_list->setTabKeyNavigation(false);
    m_list->verticalHeader()->hide();
    m_list->verticalHeader()->setMinimumSectionSize(20);
    m_list->verticalHeader()->setDefaultSectionSize(22);
    m_list->horizontalHeader()->setStretchLastSection(true);
    m_list->horizontalHeader()->resizeSection(SearchHits::KeyColumn, 360);
    m_list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { choose(current.row()); });
    connect(m_list, &QTableView::clicked, this, [this](const QModelIndex& index) { choose(index.row()); });
}

void SearchBar::arrange() {
    auto* row = new QHBoxLayout;
    row->setSpacing(4);
    row->addWidget(m_field, 1);
    for (QToolButton* button : {m_previous, m_next, m_stop}) {
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        row->addWidget(button);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(row);
    column->addWidget(m_state);
}

void SearchBar::choose(int row) {
    if (brisk::ModuleObject* node = m_hits.node(row))
        emit chosen(node);
}

void SearchBar::showState() {
    const bool hasHits = m_hits.rowCount() > 0;
    const QString text = stateText();
    m_state->setText(text);
    m_state->setVisible(!text.isEmpty());
    m_list->setVisible(hasHits);
    m_previous->setEnabled(hasHits);
    m_next->setEnabled(hasHits);
    m_stop->setEnabled(m_search.isRunning());
}

QString SearchBar::stateText() const {
    const QLocale locale;
    const QString looked = locale.toString(m_search.looked());
    const QString found = locale.toString(m_hits.rowCount());
    if (m_search.text().isEmpty())
        return QString();
    if (m_search.isRunning())
        return tr("Searching: %1 nodes looked at, %2 found.").arg(looked, found);
    if (m_hits.rowCount() >= TreeSearch::mostHits)
        return tr("The first %1 are shown. Type more to narrow the search.").arg(found);
    if (!m_search.isComplete())
        return tr("Stopped after %1 nodes, %2 found. Press Enter to search again.").arg(looked, found);
    if (m_hits.rowCount() == 0)
        return tr("No key and no value contains “%1”. %2 nodes were looked at.").arg(m_search.text(), looked);
    return tr("%1 found in %2 nodes.").arg(found, looked);
}

void SearchBar::retranslate() {
    m_field->setPlaceholderText(tr("Search keys and values"));
    m_field->setAccessibleName(m_field->placeholderText());
    m_previous->setToolTip(tr("Previous hit (Shift+F3)"));
    m_next->setToolTip(tr("Next hit (F3)"));
    m_stop->setToolTip(tr("Stop the search"));
    for (QToolButton* button : {m_previous, m_next, m_stop})
        button->setAccessibleName(button->toolTip());
    showState();
}

} // namespace pendant
