#pragma once

#include "controller/content.h"

#include <QObject>
#include <QString>

#include <functional>

namespace controller {

class BusTable;
class MotionData;
class Registers;
class SignalTable;

/// The bus keys by which signals are seen, set and forced, registers seen and set, and the names for motion seen.
class IoKeys : public QObject {
    Q_OBJECT

public:
    /// All must outlive it.
    IoKeys(SignalTable* signalTable, Registers* registers, const MotionData* motionData, BusTable* bus,
           QObject* parent = nullptr);

private:
    void onSignal(const QString& command,
                  const std::function<QString(const QString& name, const QJsonValue& value)>& carryOut);
    Content setRegister(const Content& sent);

    Registers* m_registers;
    BusTable* m_bus;
};

/// Lets "mirror.state" have what a pendant shows of the controller, under the names of the keys: one question in place
/// of many.
void defineState(BusTable* bus);

} // namespace controller
