#pragma once

#include <QObject>
#include <QString>

/// Two values that the plugin keeps: how many points were taught, in a variable of the project, and which was the last,
/// in a persistent one that outlives a restart of the controller. No widgets.
class KeptValues : public QObject {
    Q_OBJECT

public:
    explicit KeptValues(QObject* parent = nullptr);

    /// -1 when nothing was counted yet.
    int count() const;
    /// Empty when the controller knows of none, or is not connected.
    QString lastTaught() const;

    /// Counts one more and keeps `name`.
    /// \return why the name was not kept, a sentence; empty when it was, or will be in a moment
    QString pointTaught(const QString& name);
    /// Deletes the variable.
    /// \return why it is still there, a sentence; empty when all went well
    QString forgetCount();

signals:
    void changed();
};
