#pragma once

#include "helm/messagelist.h"

#include <QSortFilterProxyModel>

namespace pendant {

/// The messages of at least one level, the newest first.
class MessageFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit MessageFilter(QObject* parent = nullptr);

    void setLowest(helm::standin::MessageLevel level);
    helm::standin::MessageLevel lowest() const { return m_lowest; }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    helm::standin::MessageLevel m_lowest = helm::standin::MessageLevel::Information;
};

} // namespace pendant
