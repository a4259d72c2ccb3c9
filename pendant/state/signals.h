#pragma once

#include <QString>
#include <QVariant>
#include <QVector>

class QObject;

namespace pendant {

/// The numbers are those of "signal_type" in the data tree.
enum class SignalType {
    DigitalInput = 1,
    DigitalOutput = 2,
    GroupInput = 3,
    GroupOutput = 4,
    AnalogueInput = 5,
    AnalogueOutput = 6
};

bool isInput(SignalType type);
bool isDigital(SignalType type);
bool isGroup(SignalType type);

/// What the data tree says of a signal.
struct Signal {
    QString name;
    SignalType type = SignalType::DigitalInput;
    QVariant value;
    bool isForced = false;
    double minimum = 0; ///< of one that is not digital
    double maximum = 0;
};

/// The signals of the data tree and what can be done to them.
namespace ioSignals {

/// Without their values, in the order of the tree. A signal of a type that is not known is left out.
QVector<Signal> all();
/// With its value; without a name when there is none.
Signal named(const QString& name);

/// Ask the controller; what it refuses is in the message list.
void set(QObject* sender, const QString& name, const QVariant& value);
void force(QObject* sender, const QString& name, const QVariant& value);
void release(QObject* sender, const QString& name);

} // namespace ioSignals
} // namespace pendant
