#pragma once

#include "controller/content.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace controller {

/// The records of a list in the pendant's tree, under the names of their nodes, in the order in which they came.
class RecordList {
public:
    int size() const { return m_nodes.size(); }
    /// The names of the nodes.
    const QStringList& nodes() const { return m_nodes; }
    /// Null when there is none.
    Content record(const QString& node) const { return m_records.value(node); }

    /// Replaces the one under that name, or appends; null takes it away.
    void put(const QString& node, const Content& record);
    /// Appends under the next name that is free, "#" and a number.
    void append(const Content& record);
    void clear();

    /// A list of the records under the names of their nodes.
    Content content() const;

private:
    QStringList m_nodes;
    QHash<QString, Content> m_records;
};

/// The text at `path` of a record; empty when there is none.
QString textAt(const Content& record, const QString& path);

} // namespace controller
