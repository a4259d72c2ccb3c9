#include "controller/cell/signalreader.h"

#include "controller/cell/coursereader.h"

#include <cmath>

namespace controller {

namespace {

const double mostOfGroup = 2147483647;
const double groupMaximum = 65535;
const double mostOfAnalogue = 1e9;
const double analogueMaximum = 10;

SignalType typeIn(const CellValue& json) {
    const int type = signalTypeNames().indexOf(json.text());
    if (type < 0)
        json.fail(QStringLiteral("Write one of %1.").arg(quoted(signalTypeNames())));
    return SignalType(qMax(0, type) + 1);
}

double limitIn(const CellValue& json, bool ofGroup, double missing) {
    if (!json.exists())
        return missing;
    const double most = ofGroup ? mostOfGroup : mostOfAnalogue;
    const double limit = json.numberFrom(-most, most);
    if (ofGroup && std::floor(limit) < limit)
        json.fail(QStringLiteral("Write a whole number."));
    return limit;
}

void readLimits(const CellValue& json, IoSignal* signal) {
    const bool ofGroup = isGroup(signal->type);
    signal->minimum = limitIn(json["min"], ofGroup, 0);
    signal->maximum = limitIn(json["max"], ofGroup, ofGroup ? groupMaximum : analogueMaximum);
    if (signal->minimum >= signal->maximum)
        json["min"].fail(QStringLiteral("It must be less than \"max\"."));
}

void readValue(const CellValue& json, IoSignal* signal) {
    signal->value = valueFor(*signal, 0);
    if (!json.exists())
        return;
    if (!fits(*signal, json.json()))
        json.fail(QStringLiteral("Write %1.").arg(whatFits(*signal)));
    signal->value = valueFor(*signal, json.json().toVariant());
}

void readCourse(const CellValue& json, IoSignal* signal) {
    const bool isPulse = json.json().toObject().contains(QStringLiteral("pulse"));
    if (isPulse != isDigital(signal->type))
        json.fail(isPulse ? QStringLiteral("A pulse is for digital signals. Write a \"wave\" or a \"count\".")
                          : QStringLiteral("A digital signal follows a \"pulse\"."));
    signal->course = courseIn(json);
}

IoSignal signalIn(const CellValue& json, QStringList* names) {
    IoSignal signal;
    json.mayHave({"name", "type", "value", "min", "max", "course"});
    signal.name = nodeNameIn(json["name"], names);
    signal.type = typeIn(json["type"]);
    if (!isDigital(signal.type))
        readLimits(json, &signal);
    else if (json["min"].exists() || json["max"].exists())
        json.fail(QStringLiteral("A digital signal has no \"min\" and no \"max\"."));
    readValue(json["value"], &signal);
    if (json["course"].exists() && json["value"].exists())
        json["course"].fail(QStringLiteral("Write either \"value\" or \"course\"."));
    if (json["course"].exists())
        readCourse(json["course"], &signal);
    return signal;
}

} // namespace

QVector<IoSignal> signalsIn(const CellValue& json) {
    QVector<IoSignal> ioSignals;
    QStringList names;
    if (!json.exists())
        return ioSignals;
    for (const CellValue& item : json.items())
        ioSignals << signalIn(item, &names);
    return ioSignals;
}

QString nodeNameIn(const CellValue& json, QStringList* names) {
    const QString name = json.text();
    if (json.exists() && name.isEmpty())
        json.fail(QStringLiteral("Give it a name."));
    if (name.contains('.') || name.startsWith('#'))
        json.fail(
            QStringLiteral("Write a name without dots that does not begin with \"#\": it becomes part of a key."));
    if (names->contains(name))
        json.fail(QStringLiteral("There is one of this name already."));
    names->append(name);
    return name;
}

} // namespace controller
