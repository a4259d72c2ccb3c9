#pragma once

#include "followednode.h"

#include <QObject>
#include <QSet>
#include <QString>

namespace pendant {

/// A list of records in the data tree, and what has changed in it since the controller was told. Records go by the
/// names of their nodes: "#0", "#7".
class RecordList : public QObject {
    Q_OBJECT

public:
    /// \param owner what it writes as a sender the controller knows already
    RecordList(const QString& key, QObject* owner);

    bool hasChanges() const { return m_isUnsure || m_namesMayDiffer || !m_changed.isEmpty(); }
    /// Nobody can say what changed: takeAll() is due.
    bool isUnsure() const { return m_isUnsure; }

    /// Puts the records that changed below `target`, each under the name of its node; one that is gone is an empty
    /// node. From now on the controller is taken to have them.
    void takeChanges(brisk::ModuleObject* target);
    /// The same with every record that is there.
    void takeAll(brisk::ModuleObject* target);
    /// The controller has the records "#0" to one less than `count`, and what it has is about to be written by the
    /// owner.
    void setTold(int count);

    /// Removes a record that the controller has not any more either; none of that name is passed over.
    void removeTold(const QString& node);
    /// Removes the records called `name`, save those that came in after forgetArrivals().
    void removeCalled(const QString& name);
    void forgetArrivals() { m_arrived.clear(); }

    /// The list; null for a moment after it was removed.
    brisk::ModuleObject* node() const { return m_list.node(); }

signals:
    /// Something was written that the controller was not told of yet.
    void changed();

private:
    void listen(brisk::ModuleObject* list);
    void takeUnsure(brisk::ModuleObject* list);
    void noteTouched(const brisk::ModuleObject* node, const QObject* sender);
    QSet<QString> names() const;
    void put(const QString& name, brisk::ModuleObject* target) const;
    void setAllTold();

    QObject* m_owner;
    FollowedNode m_list;
    QSet<QString> m_told;     // the names that the controller has
    QSet<QString> m_changed;  // of the records that are not as it has them
    QSet<QString> m_inserted; // just now; who did it is told a moment later
    QSet<QString> m_arrived;
    bool m_namesMayDiffer = false;
    bool m_isUnsure = false;
};

} // namespace pendant
