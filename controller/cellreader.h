#pragma once

#include "controller/cell.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

namespace controller {

/// Makes a cell of the JSON of a cell file and finds what is wrong with it.
class CellReader {
public:
    /// \return false when `json` is no cell; error() says why
    bool read(const QJsonObject& json);

    const Cell& cell() const { return m_cell; }
    /// The first thing that is wrong: the place in the file, and what to do. Empty when all is well.
    QString error() const { return m_error; }

private:
    bool readSection(const QString& name, const QJsonValue& json);
    bool readAnswers(const QString& section, const QJsonObject& json);
    bool readValues(const QJsonObject& json);
    bool readChanging(const QJsonObject& json);
    bool readCourse(const QString& key, const QJsonObject& json);
    bool readWave(const QString& place, const QString& key, const QJsonObject& json);
    bool readCount(const QString& place, const QString& key, const QJsonObject& json);
    bool readRules(const QJsonArray& json);
    bool readRule(const QString& place, const QJsonObject& json);

    bool checkKey(const QString& section, const QString& key);
    bool checkMembers(const QString& place, const QJsonObject& json, const QStringList& known);
    bool checkNumbers(const QString& place, const QJsonObject& json, const QStringList& names);
    bool checkSeconds(const QString& place, const QString& name, double value, double least);
    bool fail(const QString& place, const QString& text);

    Cell m_cell;
    QString m_error;
};

} // namespace controller
