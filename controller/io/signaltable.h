#pragma once

#include "controller/clock.h"
#include "controller/content.h"
#include "controller/io/iosignal.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QVector>

namespace controller {

/// The signals of a cell. An input that is forced has the value that it is forced to until it is released, whatever
/// the cell does meanwhile.
class SignalTable : public QObject {
    Q_OBJECT

public:
    /// \param clock moves the signals that follow a course; must outlive it
    explicit SignalTable(const Clock* clock, QObject* parent = nullptr);

    /// These in place of those before; their names differ, and none is forced.
    void start(const QVector<IoSignal>& ioSignals);

    /// @name What is wanted from outside
    /// What is wrong comes back, a sentence, and nothing changes then; empty when all is well.
    /// @{

    /// Sets an output, which follows its course no more.
    QString set(const QString& name, const QJsonValue& value);
    /// Forces an input.
    QString force(const QString& name, const QJsonValue& value);
    /// Lets an input have the cell's value again; one that is not forced stays as it is.
    QString release(const QString& name);

    /// @}

    /// What the cell itself does: any signal of that name gets `value` and follows its course no more. A forced one has
    /// it when it is released.
    void write(const QString& name, const QVariant& value);
    /// The value that everybody sees; invalid when there is no such signal.
    QVariant value(const QString& name) const;

    /// "signal_value" and "signal_detail", in the order of the cell: the values by name, and of each signal its
    /// "signal_type", whether it is "forced" and, where there are any, its limits "min" and "max".
    Content content() const;

signals:
    /// A value, or whether it is forced. Once for all that change at a moment of the clock.
    void changed();

private:
    struct Entry {
        IoSignal signal;
        QVariant forced; // invalid: it is not
        const QVariant& shown() const { return forced.isValid() ? forced : signal.value; }
    };

    Entry* entry(const QString& name);
    QString refusal(const QString& name, const QJsonValue& value, bool ofInput);
    void follow(qint64 nowMs);

    const Clock* m_clock;
    QVector<Entry> m_entries;
    QHash<QString, int> m_places;
};

} // namespace controller
