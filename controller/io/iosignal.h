#pragma once

#include "controller/changingvalues.h"

#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace controller {

/// The numbers are those that a pendant knows the types by.
enum class SignalType {
    DigitalInput = 1,
    DigitalOutput = 2,
    GroupInput = 3,
    GroupOutput = 4,
    AnalogueInput = 5,
    AnalogueOutput = 6
};

/// A signal between the robot and what stands around it.
struct IoSignal {
    QString name;
    SignalType type = SignalType::DigitalInput;
    QVariant value;     ///< a bool when it is digital, an int of a group, otherwise a double
    double minimum = 0; ///< of one that is not digital
    double maximum = 0;
    ChangingValues::Course course; ///< empty when the value stays as it is
};

bool isInput(SignalType type);
bool isDigital(SignalType type);
bool isGroup(SignalType type);

/// "DI", "DO", "GI", "GO", "AI", "AO": in the order of the types.
const QStringList& signalTypeNames();

/// Whether `json` is a value that the signal can have.
bool fits(const IoSignal& signal, const QJsonValue& json);
/// What it can have, as in "Write true or false."
QString whatFits(const IoSignal& signal);
/// `value` as the signal has it: of its type and within its limits.
QVariant valueFor(const IoSignal& signal, const QVariant& value);

} // namespace controller
