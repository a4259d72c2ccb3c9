#include "controller/cell/hostreader.h"

namespace controller {

namespace {

const double mostLevel = 1000;
const double mostError = 1e9;

int wholeIn(const CellValue& json, double least, double most) {
    const int value = int(json.numberFrom(least, most));
    if (json.json().toDouble() != value)
        json.fail(QStringLiteral("Write a whole number."));
    return value;
}

} // namespace

HostInfo hostIn(const CellValue& json) {
    HostInfo host;
    if (!json.exists())
        return host;
    json.mayHave({"version", "id", "type", "level"});
    host.version = json["version"].text(host.version);
    host.id = json["id"].text(host.id);
    host.type = json["type"].text(host.type);
    if (json["level"].exists())
        host.level = wholeIn(json["level"], 0, mostLevel);
    return host;
}

QVector<PathCheckRule> pathChecksIn(const CellValue& json) {
    QVector<PathCheckRule> rules;
    if (!json.exists())
        return rules;
    for (const CellValue& rule : json.items()) {
        rule.mayHave({"from", "to", "error"});
        rules.append({rule["from"].text(), rule["to"].text(), wholeIn(rule["error"], -mostError, mostError)});
    }
    return rules;
}

} // namespace controller
