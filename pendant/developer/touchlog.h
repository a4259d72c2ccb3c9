#pragma once

#include "brisk/moduleobject.h"

#include <QHash>
#include <QPointer>
#include <QString>

namespace pendant {

/// Who wrote last at a node, and when.
class TouchLog {
public:
    /// With more nodes than that, those which have not been written for longest are forgotten.
    static const int capacity = 100000;

    struct Touch {
        QPointer<brisk::ModuleObject> node;
        QString who;
        qint64 whenMs = 0; ///< since the epoch
    };

    void record(brisk::ModuleObject* node, QObject* sender);
    /// Null when nothing is known of the node.
    const Touch* find(brisk::ModuleObject* node) const;
    void clear();
    int size() const { return m_touches.size(); }

private:
    const QString& labelOf(QObject* sender);
    void makeRoom();

    // A node that is gone may leave its address to another, hence the guarded pointer beside the key.
    QHash<brisk::ModuleObject*, Touch> m_touches;
    QPointer<QObject> m_lastSender;
    QString m_lastLabel;
};

} // namespace pendant
