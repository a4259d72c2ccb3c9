#pragma once

#include "pointvalues.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QStringList>
#include <QVector>

namespace pendant {

/// All values of a point, in columns.
class PointDetails : public QScrollArea {
    Q_OBJECT

public:
    explicit PointDetails(QWidget* parent = nullptr);

    /// Null hides it.
    void setRecord(brisk::ModuleObject* record);

private:
    void build(const QList<PointValues::Group>& groups);
    QGridLayout* columnOf(const PointValues::Group& group);

    QStringList m_built; ///< the captions that stand there
    QLabel* m_title = nullptr;
    QVector<QLabel*> m_values;
};

} // namespace pendant
