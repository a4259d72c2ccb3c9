#pragma once

#include "brisk/moduleobject.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QVector>

namespace pendant {

/// Looks through a tree for a text in keys and values, a slice at a time, so that the pendant stays usable with
/// hundreds of thousands of nodes. The tree may change meanwhile: what comes or goes while it is searched may or may
/// not be found.
class TreeSearch : public QObject {
    Q_OBJECT

public:
    /// The search ends when it has found so many.
    static const int mostHits = 1000;

    struct Hit {
        QPointer<brisk::ModuleObject> node;
        QString key;
    };

    explicit TreeSearch(QObject* parent = nullptr);

    /// Looks below `root` for nodes whose value, or whose key at its own end, contains `text` in any case of letters:
    /// "variables.weld" finds that node and not everything below it.
    void start(brisk::ModuleObject* root, const QString& text);
    void stop();
    /// Drops what was found.
    void forget();

    /// What was looked for last; empty when nothing was, or it was forgotten.
    const QString& text() const { return m_text; }
    bool isRunning() const { return m_timer.isActive(); }
    /// Whether the whole tree has been looked at.
    bool isComplete() const { return m_complete; }
    /// How many nodes have been looked at.
    int looked() const { return m_looked; }
    const QList<Hit>& hits() const { return m_hits; }

signals:
    /// `first` of hits() and those after it are new.
    void found(int first);
    /// After every slice.
    void progressed();
    void finished();

private:
    struct Level {
        QPointer<brisk::ModuleObject> node;
        QString prefix; ///< of the keys of its children
        int next;
    };

    void slice();
    bool step();
    void look(brisk::ModuleObject* node, const QString& key);
    bool matches(brisk::ModuleObject* node, const QString& key) const;

    QTimer m_timer;
    QString m_text;
    QVector<Level> m_levels;
    QList<Hit> m_hits;
    int m_looked = 0;
    bool m_complete = false;
};

} // namespace pendant
