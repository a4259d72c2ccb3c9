#include "iosignalsmodel.h"

#include "state/statekeys.h"

namespace pendant {

namespace {

const SignalType types[] = {SignalType::DigitalInput,  SignalType::GroupInput,  SignalType::AnalogueInput,
                            SignalType::DigitalOutput, SignalType::GroupOutput, SignalType::AnalogueOutput};
const int placesOfAnalogue = 3;

} // namespace

bool IoSignalsModel::Row::operator==(const Row& other) const {
    return type == other.type && name == other.name && count == other.count;
}

IoSignalsModel::IoSignalsModel(QObject* parent) : QAbstractListModel(parent), m_io(statekeys::io()) {
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &IoSignalsModel::refresh);
    connect(&m_io, &FollowedNode::renewed, this, &IoSignalsModel::listen);
    listen(m_io.node());
}

void IoSignalsModel::listen(brisk::ModuleObject* node) {
    connect(node, &brisk::ModuleObject::touched, this, &IoSignalsModel::refreshSoon);
    refreshSoon();
}

void IoSignalsModel::showInputs(bool inputs) {
    m_showsInputs = inputs;
    if (m_isActive)
        refresh();
}

void IoSignalsModel::setFilter(const QString& text) {
    m_filter = text;
    if (m_isActive)
        refresh();
}

void IoSignalsModel::setActive(bool active) {
    m_isActive = active;
    if (active)
        refresh();
}

void IoSignalsModel::refreshSoon() {
    if (m_isActive && !m_timer.isActive())
        m_timer.start();
}

void IoSignalsModel::refresh() {
    const QVector<Signal> all = ioSignals::all();
    m_forced.clear();
    m_allCount = 0;
    for (const Signal& signal : all) {
        m_allCount += isInput(signal.type) == m_showsInputs ? 1 : 0;
        if (signal.isForced)
            m_forced << signal.name;
    }
    takeRows(rowsOf(all));
    emit refreshed();
}

bool IoSignalsModel::isShown(const Signal& signal) const {
    return isInput(signal.type) == m_showsInputs && signal.name.contains(m_filter, Qt::CaseInsensitive);
}

QVector<IoSignalsModel::Row> IoSignalsModel::rowsOf(const QVector<Signal>& all) const {
    QVector<Row> rows;
    for (const SignalType type : types) {
        const int heading = rows.size();
        for (const Signal& signal : all) {
            if (signal.type == type && isShown(signal))
                rows.append({type, signal.name, 0});
        }
        if (rows.size() > heading)
            rows.insert(heading, {type, QString(), rows.size() - heading});
    }
    return rows;
}

void IoSignalsModel::takeRows(const QVector<Row>& rows) {
    if (rows == m_rows) {
        if (!m_rows.isEmpty())
            emit dataChanged(index(0), index(m_rows.size() - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    m_shownCount = 0;
    for (const Row& row : m_rows)
        m_shownCount += row.count;
    endResetModel();
}

int IoSignalsModel::rowOf(const QString& name) const {
    for (int row = 0; row < m_rows.size(); ++row) {
        if (!name.isEmpty() && m_rows.at(row).name == name)
            return row;
    }
    return -1;
}

int IoSignalsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows.size();
}

Qt::ItemFlags IoSignalsModel::flags(const QModelIndex& index) const {
    return index.data(HeadingRole).toBool() ? Qt::ItemIsEnabled : QAbstractListModel::flags(index);
}

QVariant IoSignalsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return QVariant();
    const Row& row = m_rows.at(index.row());
    return row.name.isEmpty() ? headingData(row, role) : signalData(row, role);
}

QVariant IoSignalsModel::headingData(const Row& row, int role) const {
    if (role == HeadingRole)
        return true;
    if (role == ValueRole)
        return QString::number(row.count);
    return role == Qt::DisplayRole ? typeText(row.type) : QVariant();
}

QVariant IoSignalsModel::signalData(const Row& row, int role) const {
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole || role == NameRole)
        return row.name;
    if (role != ValueRole && role != OnRole && role != ForcedRole && role != Qt::AccessibleTextRole)
        return QVariant();
    // The tree may be ahead of the rows: a signal that is gone is shown empty for a moment.
    const Signal signal = ioSignals::named(row.name);
    if (role == ForcedRole)
        return signal.isForced;
    if (role == OnRole)
        return isDigital(row.type) ? QVariant(signal.value.toBool()) : QVariant();
    const QString value = valueText(signal);
    return role == ValueRole ? value : row.name + QStringLiteral(": ") + value;
}

QString IoSignalsModel::typeText(SignalType type) {
    switch (type) {
    case SignalType::DigitalInput:
        return tr("Digital inputs");
    case SignalType::DigitalOutput:
        return tr("Digital outputs");
    case SignalType::GroupInput:
        return tr("Group inputs");
    case SignalType::GroupOutput:
        return tr("Group outputs");
    case SignalType::AnalogueInput:
        return tr("Analogue inputs");
    case SignalType::AnalogueOutput:
        break;
    }
    return tr("Analogue outputs");
}

QString IoSignalsModel::valueText(const Signal& signal) {
    if (!signal.value.isValid())
        return QString();
    if (isDigital(signal.type))
        return signal.value.toBool() ? tr("On", "signal") : tr("Off", "signal");
    return isGroup(signal.type) ? QString::number(signal.value.toInt())
                                : QString::number(signal.value.toDouble(), 'f', placesOfAnalogue);
}

} // namespace pendant
