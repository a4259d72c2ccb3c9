// Persistent variables of the controller.

#include "kite/interfacemanager.h"

#include "interface/helmversion.h"
#include "interface/nodejson.h"
#include "interface/records.h"
#include "log/hostline.h"

#include "brisk/relay.h"

namespace kite {

using brisk::ModuleObject;

namespace {

const int done = 0;
const int namesAndValuesDiffer = -1;
const int noPersService = -240;

bool hasPersService() {
    return isHelm23Or30Or31();
}

// The request stays until the values are read: the host may answer with that very node.
void readPers(QObject* sender, const QVector<QString>& names, QVector<QString>* values) {
    ModuleObject node(QStringLiteral("names"));
    const QJsonArray array = QJsonArray::fromStringList(names.toList());
    node.importFromJson(sender, array, /*notify*/ true, /*create*/ true, /*prune*/ false);
    ModuleObject* data = below(relay()->execCommand(sender, QStringLiteral("monitor.pers.read"), &node), {"data"});
    const int count = data ? qMin(data->cmobjCount(), values->size()) : 0;
    for (int i = 0; i < count; ++i)
        (*values)[i] = textOf(data->c(i));
}

} // namespace

int InterfaceManager::registPERSVars(const QVector<QString>& names) {
    if (!hasPersService())
        return noPersService;
    ModuleObject node(QStringLiteral("select"));
    for (int i = 0; i < names.size(); ++i)
        node.set(nullptr, QStringLiteral("#%1").arg(i), names.at(i));
    relay()->set(this, QStringLiteral("monitor.select"), &node);
    return done;
}

QVector<QVariant> InterfaceManager::getRegistedPERSVars() {
    if (!hasPersService())
        return QVector<QVariant>();
    return jsonOf(relay()->get(this, QStringLiteral("monitor.pers"))).toArray().toVariantList().toVector();
}

QVector<QString> InterfaceManager::getValuesOfPERSVars(const QVector<QString>& names) {
    QVector<QString> values(names.size(), QLatin1String(""));
    if (hasPersService())
        readPers(this, names, &values);
    hostline::service(hostline::interfaceModule())
        << "Results:" << QStringList(values.toList()).join(QLatin1String(", "));
    return values;
}

int InterfaceManager::setValuesOfPERSVars(const QVector<QString>& names, const QVector<QVariant>& values) {
    if (!hasPersService())
        return noPersService;
    if (names.size() != values.size())
        return namesAndValuesDiffer;
    ModuleObject node(QStringLiteral("modify"));
    for (int i = 0; i < names.size(); ++i)
        node.set(nullptr, names.at(i), values.at(i));
    relay()->command(this, QStringLiteral("monitor.pers.modify"), &node);
    return done;
}

} // namespace kite
