#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVariant>

namespace pendant {

/// A value as a developer reads it: as JSON writes it, save that a double never looks like a whole number.
QString valueText(const QVariant& value);

/// What is there to be edited: a text without quotes, anything else as valueText() has it.
QString editText(const QVariant& value);

/// Reads what was typed as a value of the type that is there already.
class ValueReader {
    Q_DECLARE_TR_FUNCTIONS(pendant::ValueReader)

public:
    struct Result {
        QVariant value;
        QString refusal; ///< why the text does not do, a sentence; empty when it does
    };

    /// An empty node takes any JSON.
    static Result read(const QString& text, const QVariant& present);

private:
    static Result readWhole(const QString& text, int type);
    static Result readDouble(const QString& text);
    static Result readBool(const QString& text);
    static Result readJsonAs(const QString& text, int type);
    static Result readOther(const QString& text, int type);
};

} // namespace pendant
