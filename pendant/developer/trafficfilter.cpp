#include "trafficfilter.h"

#include <QSaveFile>

namespace pendant {

TrafficFilter::TrafficFilter(TrafficModel* model, QObject* parent) : QSortFilterProxyModel(parent), m_model(model) {
    setSourceModel(model);
}

void TrafficFilter::setText(const QString& text) {
    m_text = text;
    invalidateFilter();
}

void TrafficFilter::setChannel(const QString& channel) {
    m_channel = channel;
    invalidateFilter();
}

const TrafficRow& TrafficFilter::row(int index) const {
    return m_model->row(mapToSource(QSortFilterProxyModel::index(index, 0)).row());
}

QString TrafficFilter::save(const QString& path) const {
    QSaveFile file(path);
    bool ok = file.open(QIODevice::WriteOnly);
    for (int i = 0; ok && i < rowCount(); ++i)
        ok = file.write(row(i).toJsonLine() + '\n') > 0;
    if (ok && file.commit())
        return QString();
    return tr("%1 cannot be written: %2").arg(path, file.errorString());
}

bool TrafficFilter::filterAcceptsRow(int row, const QModelIndex&) const {
    const TrafficRow& candidate = m_model->row(row);
    if (!m_channel.isEmpty() && candidate.entry.channel != m_channel)
        return false;
    return m_text.isEmpty() || candidate.contains(m_text);
}

} // namespace pendant
