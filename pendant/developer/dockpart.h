#pragma once

#include "style/theme.h"

#include <QAbstractButton>
#include <QAction>
#include <QIcon>
#include <QLineEdit>
#include <QList>
#include <QPair>
#include <QString>
#include <QToolButton>
#include <QWidget>

namespace pendant {

/// A part of the developer dock whose icons follow the theme and whose texts follow the language.
class DockPart : public QWidget {
    Q_OBJECT

public:
    /// \param name the objectName
    DockPart(const QString& name, const Theme& theme, QWidget* parent = nullptr);

    virtual void setTheme(const Theme& theme);

protected:
    void changeEvent(QEvent* event) override;
    /// Sets every text; called when the language changes.
    virtual void retranslate() = 0;

    const Theme& theme() const { return m_theme; }
    /// A button with icon and text.
    QToolButton* addButton(const QString& name, const QString& icon);
    void setIcon(QAbstractButton* button, const QString& name);
    /// A button in the field that empties it.
    void addClearing(QLineEdit* field);

private:
    QIcon icon(const QString& name) const;

    Theme m_theme;
    QList<QPair<QAbstractButton*, QString>> m_icons;
    QList<QAction*> m_clearing;
};

} // namespace pendant
