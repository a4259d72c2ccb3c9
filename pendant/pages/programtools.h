#pragma once

#include "style/theme.h"

#include <QAbstractButton>
#include <QVector>
#include <QWidget>

class QHBoxLayout;

namespace pendant {

/// The row of keys that change the program.
class ProgramTools : public QWidget {
    Q_OBJECT

public:
    enum Tool { Insert, Delete, Up, Down, Undo, Redo, ToolCount };

    explicit ProgramTools(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);
    void retranslate();
    /// Icons only.
    void setCompact(bool compact);
    void setAvailable(Tool tool, bool available);
    bool isAvailable(Tool tool) const;
    /// What undo and redo would do, in words; empty for nothing.
    void setSteps(const QString& undo, const QString& redo);

signals:
    void pressed(pendant::ProgramTools::Tool tool);

private:
    void add(Tool tool, const QString& name, const QString& icon);
    void name(Tool tool, const QString& words);
    void arrange();

    QVector<QAbstractButton*> m_buttons;
    QVector<QString> m_icons;
    bool m_isCompact = false;
    QString m_undo;
    QString m_redo;
};

} // namespace pendant
