#pragma once

#include "trafficmodel.h"

#include <QSortFilterProxyModel>

namespace pendant {

/// The entries of the traffic that contain a text and went over a channel.
class TrafficFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    TrafficFilter(TrafficModel* model, QObject* parent = nullptr);

    /// Part of key, sender, kind or value; empty for all.
    void setText(const QString& text);
    /// "bus" or "controller"; empty for both.
    void setChannel(const QString& channel);

    const TrafficRow& row(int index) const;
    /// What is shown, one JSON object a line.
    /// \return what went wrong, a sentence; empty when it is done
    QString save(const QString& path) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    TrafficModel* m_model;
    QString m_text;
    QString m_channel;
};

} // namespace pendant
