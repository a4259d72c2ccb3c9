#include "controller/cellreader.h"

namespace controller {

namespace {

const double leastWaveS = 1;
const double leastCountS = 0.1;
const double mostS = 1000000;

QString quoted(const QString& name) {
    return '"' + name + '"';
}

QString quotedList(const QStringList& names) {
    return '"' + names.join(QStringLiteral("\", \"")) + '"';
}

// "changing" and "cell.parts" -> "changing" > "cell.parts"
QString placeOf(const QString& section, const QString& key) {
    return quoted(section) + QStringLiteral(" > ") + quoted(key);
}

qint64 toMs(double seconds) {
    return qRound64(seconds * 1000);
}

} // namespace

bool CellReader::read(const QJsonObject& json) {
    const QStringList sections{"bus", "changing", "commands", "requests", "pluginCommands"};
    if (!checkMembers(QString(), json, sections))
        return false;
    for (const QString& section : sections) {
        if (json.contains(section) && !readSection(section, json.value(section)))
            return false;
    }
    return true;
}

bool CellReader::readSection(const QString& name, const QJsonValue& json) {
    if (name == QLatin1String("pluginCommands"))
        return json.isArray() ? readRules(json.toArray())
                              : fail(quoted(name), QStringLiteral("Write an array of rules: [...]."));
    if (!json.isObject())
        return fail(quoted(name), QStringLiteral("Write an object: {\"name\": ...}."));
    if (name == QLatin1String("bus"))
        return readValues(json.toObject());
    if (name == QLatin1String("changing"))
        return readChanging(json.toObject());
    return readAnswers(name, json.toObject());
}

bool CellReader::readAnswers(const QString& section, const QJsonObject& json) {
    QMap<QString, QJsonValue>& answers = section == QLatin1String("commands") ? m_cell.commands : m_cell.requests;
    for (auto entry = json.constBegin(); entry != json.constEnd(); ++entry) {
        if (!checkKey(section, entry.key()))
            return false;
        answers.insert(entry.key(), entry.value());
    }
    return true;
}

bool CellReader::readValues(const QJsonObject& json) {
    for (auto entry = json.constBegin(); entry != json.constEnd(); ++entry) {
        if (!checkKey(QStringLiteral("bus"), entry.key()))
            return false;
        m_cell.values.insert(entry.key(), entry.value());
    }
    return true;
}

bool CellReader::readChanging(const QJsonObject& json) {
    const QString section = QStringLiteral("changing");
    for (auto entry = json.constBegin(); entry != json.constEnd(); ++entry) {
        if (!checkKey(section, entry.key()))
            return false;
        if (m_cell.values.contains(entry.key()))
            return fail(placeOf(section, entry.key()),
                        QStringLiteral("The key stands under \"bus\" too. Remove one of the two."));
        if (!readCourse(entry.key(), entry.value().toObject()))
            return false;
    }
    return true;
}

bool CellReader::readCourse(const QString& key, const QJsonObject& json) {
    const QString place = placeOf(QStringLiteral("changing"), key);
    const QString kind = json.size() == 1 ? json.begin().key() : QString();
    const QString below = place + QStringLiteral(" > ") + quoted(kind);
    if (kind == QLatin1String("wave"))
        return readWave(below, key, json.begin().value().toObject());
    if (kind == QLatin1String("count"))
        return readCount(below, key, json.begin().value().toObject());
    return fail(place, QStringLiteral("Write {\"wave\": {...}} or {\"count\": {...}}."));
}

bool CellReader::readWave(const QString& place, const QString& key, const QJsonObject& json) {
    const QStringList names{"min", "max", "periodS"};
    if (!checkMembers(place, json, names) || !checkNumbers(place, json, names))
        return false;
    const double min = json.value("min").toDouble();
    const double max = json.value("max").toDouble();
    if (min > max)
        return fail(place, QStringLiteral("\"min\" is greater than \"max\". Exchange them."));
    const double periodS = json.value("periodS").toDouble();
    if (!checkSeconds(place, QStringLiteral("periodS"), periodS, leastWaveS))
        return false;
    m_cell.courses.insert(key, wave(min, max, toMs(periodS)));
    return true;
}

bool CellReader::readCount(const QString& place, const QString& key, const QJsonObject& json) {
    const QStringList needed = json.contains("from") ? QStringList{"from", "everyS"} : QStringList{"everyS"};
    if (!checkMembers(place, json, {"from", "everyS"}) || !checkNumbers(place, json, needed))
        return false;
    const double everyS = json.value("everyS").toDouble();
    if (!checkSeconds(place, QStringLiteral("everyS"), everyS, leastCountS))
        return false;
    const int from = json.value("from").toInt();
    if (json.contains("from") && from != json.value("from").toDouble())
        return fail(place, QStringLiteral("\"from\" must be a whole number."));
    m_cell.courses.insert(key, counter(from, toMs(everyS)));
    return true;
}

bool CellReader::readRules(const QJsonArray& json) {
    for (int i = 0; i < json.size(); ++i) {
        const QString place = QStringLiteral("\"pluginCommands\", rule %1").arg(i + 1);
        if (!readRule(place, json.at(i).toObject()))
            return false;
    }
    return true;
}

bool CellReader::readRule(const QString& place, const QJsonObject& json) {
    if (!checkMembers(place, json, {"when", "answer"}))
        return false;
    if (!json.contains("when"))
        return fail(place, QStringLiteral("Add \"when\": what the data of the command begins with."));
    if (!json.value("answer").isArray())
        return fail(place, QStringLiteral("Add \"answer\", an array: [...]."));
    m_cell.rules.append({json.value("when"), json.value("answer").toArray()});
    return true;
}

bool CellReader::checkKey(const QString& section, const QString& key) {
    if (key.isEmpty())
        return fail(quoted(section), QStringLiteral("A name is empty. Give it one."));
    const bool isBus = section == QLatin1String("bus") || section == QLatin1String("changing");
    if (isBus && key.startsWith(QLatin1String("controller.")))
        return fail(placeOf(section, key), QStringLiteral("Keys that begin with \"controller.\" belong to the "
                                                          "controller itself. Choose another name."));
    return true;
}

bool CellReader::checkMembers(const QString& place, const QJsonObject& json, const QStringList& known) {
    for (const QString& name : json.keys()) {
        if (!known.contains(name))
            return fail(place,
                        QStringLiteral("%1 is not known here. There may be %2.").arg(quoted(name), quotedList(known)));
    }
    return true;
}

bool CellReader::checkNumbers(const QString& place, const QJsonObject& json, const QStringList& names) {
    for (const QString& name : names) {
        if (!json.value(name).isDouble())
            return fail(place, QStringLiteral("Add %1, a number.").arg(quoted(name)));
    }
    return true;
}

bool CellReader::checkSeconds(const QString& place, const QString& name, double value, double least) {
    if (value >= least && value <= mostS)
        return true;
    const QString text = QStringLiteral("%1 must be from %2 to %3 seconds.");
    return fail(place, text.arg(quoted(name)).arg(least).arg(mostS, 0, 'f', 0));
}

bool CellReader::fail(const QString& place, const QString& text) {
    m_error = place.isEmpty() ? text : place + QStringLiteral(": ") + text;
    return false;
}

} // namespace controller
