#pragma once

#include "style/theme.h"
#include "trafficrow.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QTimer>

#include <deque>

namespace pendant {

/// What went over the channels while it was recording, oldest first. The oldest go when there are more than `capacity`
/// entries or more than `mostBytes` of values. New rows come at most ten times a second.
class TrafficModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        TimeColumn,
        DirectionColumn,
        ChannelColumn,
        KindColumn,
        KeyColumn,
        SenderColumn,
        ValueColumn,
        DurationColumn,
        ColumnCount
    };
    static const int capacity = 5000;
    static const int mostBytes = 64 * 1024 * 1024;

    TrafficModel(const Theme& theme, QObject* parent = nullptr);

    void setTheme(const Theme& theme);
    /// Listens to the traffic, or to nothing.
    void setRecording(bool on);
    bool isRecording() const { return m_recording; }
    void clear();
    const TrafficRow& row(int index) const { return m_rows[static_cast<size_t>(index)]; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void record(const brisk::standin::TrafficEntry& entry);
    void flush();
    void dropOldest();
    void dropPending();
    static QString text(const TrafficRow& row, int column);
    QVariant color(const TrafficRow& row, int column) const;

    Theme m_theme;
    QIcon m_out;
    QIcon m_in;
    std::deque<TrafficRow> m_rows;
    std::deque<TrafficRow> m_pending;
    qint64 m_bytes = 0;
    qint64 m_pendingBytes = 0;
    QTimer m_flush;
    bool m_recording = false;
};

} // namespace pendant
