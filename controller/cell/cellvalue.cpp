#include "controller/cell/cellvalue.h"

#include <QJsonArray>
#include <QRegularExpression>

namespace controller {

QString quoted(const QStringList& names) {
    return '"' + names.join(QStringLiteral("\", \"")) + '"';
}

CellValue::CellValue(const QJsonValue& json, const QString& place, QString* mistake)
    : m_json(json), m_place(place), m_mistake(mistake) {}

void CellValue::mayHave(const QStringList& names) const {
    for (const QString& name : this->names()) {
        if (!names.contains(name))
            (*this)[name].fail(QStringLiteral("This is not known here. There may be %1.").arg(quoted(names)));
    }
}

CellValue CellValue::operator[](const QString& name) const {
    return {m_json.toObject().value(name), placeOf(name), m_mistake};
}

QStringList CellValue::names() const {
    expect(m_json.isObject(), "an object: {\"name\": ...}");
    return m_json.toObject().keys();
}

QVector<CellValue> CellValue::items() const {
    expect(m_json.isArray(), "an array: [...]");
    const QJsonArray array = m_json.toArray();
    QVector<CellValue> items;
    for (int i = 0; i < array.size(); ++i)
        items.append({array.at(i), QStringLiteral("%1[%2]").arg(m_place).arg(i), m_mistake});
    return items;
}

bool CellValue::boolean(bool missing) const {
    if (exists())
        expect(m_json.isBool(), "true or false");
    return m_json.toBool(missing);
}

QString CellValue::text() const {
    expect(m_json.isString(), "a text");
    return m_json.toString();
}

QString CellValue::text(const QString& missing) const {
    return exists() ? text() : missing;
}

double CellValue::number() const {
    expect(m_json.isDouble(), "a number");
    return m_json.toDouble();
}

double CellValue::number(double missing) const {
    return exists() ? number() : missing;
}

double CellValue::numberFrom(double least, double most, const QString& unit) const {
    const double value = number();
    if (value < least || value > most)
        fail(QStringLiteral("It must be from %1 to %2%3.")
                 .arg(QString::number(least, 'g', 12), QString::number(most, 'g', 12),
                      unit.isEmpty() ? unit : ' ' + unit));
    return value;
}

void CellValue::fail(const QString& text) const {
    if (m_mistake->isEmpty())
        *m_mistake = m_place.isEmpty() ? text : m_place + QStringLiteral(": ") + text;
}

// changing and cell.parts -> changing["cell.parts"], robot and axes -> robot.axes
QString CellValue::placeOf(const QString& name) const {
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    if (!plain.match(name).hasMatch())
        return m_place + QStringLiteral("[\"") + name + QStringLiteral("\"]");
    return m_place.isEmpty() ? name : m_place + '.' + name;
}

void CellValue::expect(bool isAsExpected, const char* what) const {
    if (!isAsExpected)
        fail((exists() ? QStringLiteral("Write %1.") : QStringLiteral("Add %1.")).arg(QLatin1String(what)));
}

} // namespace controller
