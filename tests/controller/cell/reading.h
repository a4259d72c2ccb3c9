#pragma once

#include "controller/cell/cellreader.h"

#include <QJsonDocument>
#include <QTest>

/// Cells as tests read them.

inline controller::Cell cellIn(const QByteArray& json) {
    controller::CellReader reader;
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        qFatal("no JSON: %s", json.constData());
    if (!reader.read(document.object()))
        QTest::qFail(qPrintable(reader.error()), __FILE__, __LINE__);
    return reader.cell();
}

/// Empty when there is none.
inline QString mistakeIn(const QByteArray& json) {
    controller::CellReader reader;
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        qFatal("no JSON: %s", json.constData());
    reader.read(document.object());
    return reader.error();
}
