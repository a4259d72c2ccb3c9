#include "controller/cell/datareader.h"

#include "controller/cell/signalreader.h"
#include "controller/project/projectstart.h"

namespace controller {

namespace {

// In the order of Scope.
const QStringList& scopeNames() {
    static const QStringList names{"system", "project", "global"};
    return names;
}

QMap<QString, Scope> scopesIn(const CellValue& json) {
    QMap<QString, Scope> scopes;
    const QStringList names = json.json().toObject().keys();
    for (const QString& name : names) {
        const CellValue scope = json[name]["scope"];
        const int place = scope.exists() ? scopeNames().indexOf(scope.text()) : int(Scope::Project);
        if (place < 0)
            scope.fail(QStringLiteral("Write one of %1.").arg(quoted(scopeNames())));
        scopes.insert(name, Scope(qMax(0, place)));
    }
    return scopes;
}

void readVariables(const CellValue& json, const QString& type, QVector<QJsonObject>* variables) {
    QStringList names;
    if (!json.exists())
        return;
    for (const CellValue& item : json.items()) {
        item.mayHave({"name", "value", "description"});
        if (!item["value"].exists())
            item["value"].fail(QStringLiteral("Add a value."));
        variables->append({{"name", nodeNameIn(item["name"], &names)},
                           {"type", type},
                           {"description", item["description"].text(QString())},
                           {"value", QJsonObject{{onlyElement(), item["value"].json()}}}});
    }
}

} // namespace

QVector<Register> registersIn(const CellValue& json) {
    QVector<Register> registers;
    QStringList names;
    if (!json.exists())
        return registers;
    for (const CellValue& item : json.items()) {
        item.mayHave({"name", "value"});
        Register one{nodeNameIn(item["name"], &names), {}};
        for (const CellValue& text : item["value"].items())
            one.values << text.text();
        registers << one;
    }
    return registers;
}

MotionNames motionNamesIn(const CellValue& file) {
    MotionNames names;
    names.toolScopes = scopesIn(file["tools"]);
    names.wobjScopes = scopesIn(file["wobjs"]);
    readVariables(file["speeds"], QStringLiteral("speed"), &names.variables);
    readVariables(file["zones"], QStringLiteral("zone"), &names.variables);
    return names;
}

} // namespace controller
