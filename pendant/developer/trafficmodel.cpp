#include "trafficmodel.h"

#include "style/icons.h"

using brisk::standin::Traffic;
using brisk::standin::TrafficEntry;

namespace pendant {

namespace {

const int flushMs = 100;
// More than any column shows.
const int mostShown = 400;

} // namespace

TrafficModel::TrafficModel(const Theme& theme, QObject* parent) : QAbstractTableModel(parent), m_theme(theme) {
    m_flush.setInterval(flushMs);
    m_flush.setSingleShot(true);
    connect(&m_flush, &QTimer::timeout, this, &TrafficModel::flush);
    setTheme(theme);
}

void TrafficModel::setTheme(const Theme& theme) {
    m_theme = theme;
    m_out = lineIcon(QStringLiteral("out"), theme.color(QStringLiteral("accent")), theme);
    m_in = lineIcon(QStringLiteral("in"), theme.color(QStringLiteral("good")), theme);
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void TrafficModel::setRecording(bool on) {
    if (on == m_recording)
        return;
    m_recording = on;
    if (on)
        connect(Traffic::instance(), &Traffic::recorded, this, &TrafficModel::record);
    else
        Traffic::instance()->disconnect(this);
    flush();
}

void TrafficModel::clear() {
    beginResetModel();
    m_rows.clear();
    m_pending.clear();
    m_bytes = 0;
    m_pendingBytes = 0;
    endResetModel();
}

void TrafficModel::record(const TrafficEntry& entry) {
    m_pending.push_back(TrafficRow::of(entry));
    m_pendingBytes += m_pending.back().json.size();
    dropPending();
    if (!m_flush.isActive())
        m_flush.start();
}

// A burst may be more than is kept at all.
void TrafficModel::dropPending() {
    while (m_pending.size() > capacity || (m_pendingBytes > mostBytes && m_pending.size() > 1)) {
        m_pendingBytes -= m_pending.front().json.size();
        m_pending.pop_front();
    }
}

void TrafficModel::flush() {
    m_flush.stop();
    if (m_pending.empty())
        return;
    const int first = rowCount();
    beginInsertRows(QModelIndex(), first, first + static_cast<int>(m_pending.size()) - 1);
    m_rows.insert(m_rows.end(), std::make_move_iterator(m_pending.begin()), std::make_move_iterator(m_pending.end()));
    m_bytes += m_pendingBytes;
    m_pending.clear();
    m_pendingBytes = 0;
    endInsertRows();
    dropOldest();
}

void TrafficModel::dropOldest() {
    int count = 0;
    qint64 bytes = m_bytes;
    while (rowCount() - count > capacity || (bytes > mostBytes && rowCount() - count > 1))
        bytes -= row(count++).json.size();
    if (count == 0)
        return;
    beginRemoveRows(QModelIndex(), 0, count - 1);
    m_rows.erase(m_rows.begin(), m_rows.begin() + count);
    m_bytes = bytes;
    endRemoveRows();
}

int TrafficModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int TrafficModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrafficModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return QVariant();
    const TrafficRow& at = row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(at, index.column());
    case Qt::DecorationRole:
        if (index.column() == DirectionColumn)
            return at.entry.direction == TrafficEntry::Direction::Out ? m_out : m_in;
        return QVariant();
    case Qt::ForegroundRole:
        return color(at, index.column());
    case Qt::TextAlignmentRole:
        return static_cast<int>((index.column() == DurationColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QString TrafficModel::text(const TrafficRow& row, int column) {
    switch (column) {
    case TimeColumn:
        return row.entry.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case DirectionColumn:
        return TrafficWords::direction(row.entry.direction);
    case ChannelColumn:
        return row.entry.channel;
    case KindColumn:
        return TrafficWords::kind(row);
    case KeyColumn:
        return row.entry.key;
    case SenderColumn:
        return row.entry.sender;
    case ValueColumn:
        return QString::fromUtf8(row.json.left(mostShown));
    case DurationColumn:
        return row.entry.durationMs < 0 ? QString() : QString::number(row.entry.durationMs, 'f', 2);
    default:
        return QString();
    }
}

QVariant TrafficModel::color(const TrafficRow& row, int column) const {
    switch (row.failure()) {
    case TrafficRow::Failure::NotSent:
    case TrafficRow::Failure::TimedOut:
        return column == KindColumn ? m_theme.color(QStringLiteral("error")) : QVariant();
    case TrafficRow::Failure::TooLate:
        return column == KindColumn ? m_theme.color(QStringLiteral("warning")) : QVariant();
    case TrafficRow::Failure::None:
        break;
    }
    return column == TimeColumn || column == ChannelColumn ? m_theme.color(QStringLiteral("textDim")) : QVariant();
}

QVariant TrafficModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return QVariant();
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>((section == DurationColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    const QStringList titles{tr("Time"), tr("Way"),    tr("Channel"), tr("Kind"),
                             tr("Key"),  tr("Sender"), tr("Value"),   tr("ms")};
    return role == Qt::DisplayRole ? QVariant(titles.value(section)) : QVariant();
}

} // namespace pendant
