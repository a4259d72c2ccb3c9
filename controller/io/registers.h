#pragma once

#include "controller/content.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace controller {

/// A named list of texts that programs and plugins share.
struct Register {
    QString name;
    QStringList values;
};

/// The registers of a controller.
class Registers : public QObject {
    Q_OBJECT

public:
    explicit Registers(QObject* parent = nullptr) : QObject(parent) {}

    /// These in place of those before; their names differ.
    void start(const QVector<Register>& registers);
    /// \return false when there is none of that name
    bool set(const QString& name, const QStringList& values);

    /// A list of records with "name" and "value", itself a list.
    Content content() const;

signals:
    void changed();

private:
    QVector<Register> m_registers;
};

} // namespace controller
