#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QString>

namespace pendant {

/// What a program line says, by the names of its parts. Blanks in front and what follows the instruction, a comment
/// with the blanks before it, are kept as they were written.
struct LineParts {
    QString indent;
    QHash<QString, QString> values;
    QString tail;

    QString value(const char* name) const { return values.value(QLatin1String(name)); }
};

/// How the lines of one instruction are written. The same expression recognises a line and takes it apart, so that the
/// two never differ.
class LineGrammar {
public:
    /// \param body regular expression with named groups for the parts, without what may stand before and after it
    explicit LineGrammar(const QString& body);

    QString pattern() const { return m_expression.pattern(); }
    /// \param parts may be null; as it was when the line is written otherwise
    /// \return whether `line` is a line of this instruction
    bool read(const QString& line, LineParts* parts) const;

    /// @name Names of points, variables, signals, tools
    /// "home" as it is; any other name, such as "part 1", in quotation marks.
    /// @{
    static QString nameExpression();
    static QString written(const QString& name);
    static QString nameIn(const QString& written);
    /// @}
    /// A text in quotation marks.
    static QString quotedExpression();

private:
    QRegularExpression m_expression;
};

} // namespace pendant
