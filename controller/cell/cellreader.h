#pragma once

#include "controller/cell/cell.h"
#include "controller/cell/cellvalue.h"

#include <QJsonObject>
#include <QString>

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
    void readAnswers(const CellValue& json, QMap<QString, QJsonValue>* answers);
    void readValues(const CellValue& json);
    void readChanging(const CellValue& json);
    void readRules(const CellValue& json);
    void readRefusals(const CellValue& json);

    Cell m_cell;
    QString m_error;
};

} // namespace controller
