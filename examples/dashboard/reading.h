#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// What can be asked of the robot, in the shape that the page shows. Every function reads anew, at once and without a
/// link; with the links down it gives what was there last. No widgets.
namespace reading {

struct Robot {
    QString id;
    QString type;
    QString address;
    int model; ///< 0: nobody has asked the controller yet
    bool hasPower;
    QString state; ///< a word of the pendant's, such as "moving"
    QString mode;  ///< "manual" or "auto"
    int level;     ///< of the user who is logged in
    QString tool;
    QString wobj;
};
Robot robot();

struct Names {
    QStringList tools;
    QStringList wobjs;
    QStringList speeds;
    QStringList zones;
};
/// Each name once.
Names names();

struct Signal {
    QString name;
    QVariant value; ///< invalid when there is none yet
};
/// All signals at once: read it once for a page, not once for a signal.
QHash<QString, QVariant> signalValues();
/// \param type 1 to 6: DI, DO, GI, GO, AI, AO
QList<Signal> signalsOfType(int type, const QHash<QString, QVariant>& values);
/// The digital outputs that are on.
QStringList outputsOn(const QHash<QString, QVariant>& values);

struct Register {
    QString name;
    bool hasValues;
    QStringList values;
};
/// In the pendant's order.
QList<Register> registers();

} // namespace reading
