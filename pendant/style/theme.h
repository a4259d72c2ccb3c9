#pragma once

#include <QColor>
#include <QHash>
#include <QPalette>
#include <QString>
#include <QStringList>

namespace pendant {

/// The colours of the pendant's look, by token. Sizes and spacing are the same in every theme and stand in the style
/// sheet.
class Theme {
public:
    static Theme light();
    static Theme dark();
    /// The theme of that name, the light one for a name that is not known.
    static Theme named(const QString& name);
    /// The names to choose from, "light" first.
    static QStringList names();

    const QString& name() const { return m_name; }
    bool isDark() const { return m_name == QLatin1String("dark"); }
    /// The colour of `token`, an invalid one for a token that is not known.
    QColor color(const QString& token) const { return m_colors.value(token); }
    QStringList tokens() const { return m_colors.keys(); }
    /// What widgets without the pendant's style sheet are drawn with.
    QPalette palette() const;

private:
    Theme(const QString& name, const QHash<QString, QColor>& colors) : m_name(name), m_colors(colors) {}
    QString m_name;
    QHash<QString, QColor> m_colors;
};

} // namespace pendant
