#include "keptvalues.h"

#include <kite/interfacemanager.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QTimer>

namespace {

const QString countName = QStringLiteral("teach_count");
const QString lastName = QStringLiteral("teach_last");
const int reloadMs = 100;

kite::InterfaceManager* robot() {
    return kite::kiteInterface();
}

bool exists(const QString& variable) {
    return robot()->getVarDataList(QString()).contains(variable);
}

// A look-up of a variable by name finds points, so the list is read.
QJsonValue valueOf(const QString& variable) {
    for (const QJsonValue& entry : robot()->getNodeData(QStringLiteral("orca.project.var._list")).toArray()) {
        const QJsonObject record = entry.toObject();
        if (record.value(QLatin1String("name")).toString() == variable)
            return record.value(QLatin1String("value")).toObject().value(QLatin1String("[0][0][0]"));
    }
    return QJsonValue();
}

// Adding does not look whether the name is taken.
void keep(const QString& variable, const QVariant& value, bool persistent) {
    if (exists(variable))
        robot()->updateVarData(variable, value);
    else
        robot()->addVarData(variable, value, persistent);
}

} // namespace

KeptValues::KeptValues(QObject* parent) : QObject(parent) {}

int KeptValues::count() const {
    return valueOf(countName).toInt(-1);
}

QString KeptValues::lastTaught() const {
    // The controller would complain about a name that it does not know.
    return exists(lastName) ? robot()->getValuesOfPERSVars({lastName}).value(0) : QString();
}

QString KeptValues::pointTaught(const QString& name) {
    keep(countName, qMax(0, count()) + 1, /*persistent*/ false);
    if (!exists(lastName)) {
        // A new variable reaches the controller with its value a moment after this.
        robot()->addVarData(lastName, name, /*pers*/ true);
        QTimer::singleShot(0, this, &KeptValues::changed);
        return QString();
    }
    const int status = robot()->setValuesOfPERSVars({lastName}, {name});
    emit changed();
    if (status == -240)
        return tr("This pendant has no persistent variables; “%1” is not kept.").arg(name);
    // Handed over is not taken: it is read back.
    return lastTaught() == name ? QString() : tr("The controller did not keep “%1”. Is it connected?").arg(name);
}

QString KeptValues::forgetCount() {
    if (!robot()->getRobotConnected())
        return tr("The bus is not connected: the variable stays.");
    if (!robot()->delVarData(countName))
        return tr("The controller refused to delete “%1”.").arg(countName);
    // The variable leaves the list when the pendant has read its project again.
    QTimer::singleShot(reloadMs, this, &KeptValues::changed);
    return QString();
}
