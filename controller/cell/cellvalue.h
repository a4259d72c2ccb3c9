#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

namespace controller {

/// A value of a cell file and its place there, as robot.axes[2].min. What is read and is not as it should be is a
/// mistake, of which the first in the file is kept; reading goes on with something neutral.
class CellValue {
public:
    /// \param mistake where the mistake is kept, a sentence with its place; must outlive this and what comes of it
    CellValue(const QJsonValue& json, const QString& place, QString* mistake);

    bool exists() const { return !m_json.isUndefined(); }
    QJsonValue json() const { return m_json; }
    QString place() const { return m_place; }

    /// @name Of an object
    /// @{
    void mayHave(const QStringList& names) const;
    CellValue operator[](const QString& name) const;
    QStringList names() const;
    /// @}
    /// Of an array.
    QVector<CellValue> items() const;

    bool boolean(bool missing) const;
    QString text() const;
    QString text(const QString& missing) const;
    /// \param missing what stands for a value that is not there; it must be there where this is left out
    double number() const;
    double number(double missing) const;
    /// A number from `least` to `most`.
    double numberFrom(double least, double most, const QString& unit = QString()) const;

    /// Keeps a mistake here: what to do, a sentence.
    void fail(const QString& text) const;

private:
    QString placeOf(const QString& name) const;
    void expect(bool isAsExpected, const char* what) const;

    QJsonValue m_json;
    QString m_place;
    QString* m_mistake;
};

QString quoted(const QStringList& names);

} // namespace controller
