#pragma once

#include "style/theme.h"

#include <QLabel>
#include <QString>
#include <QWidget>

namespace pendant {

class ElidedLabel;

/// One value in the status bar: an icon, what it is and how it stands.
class StatusItem : public QWidget {
    Q_OBJECT

public:
    enum class State { Neutral, Good, Warning, Error };

    StatusItem(const QString& name, const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);
    /// Never cut, whatever else wants room.
    void setShownWhole(bool whole);
    /// Without its icon the words have to say it all.
    void setIconShown(bool shown);
    /// How wide it would be, whatever is shown now.
    int wantedWidth(bool withIcon) const;
    void setCaption(const QString& caption);
    /// Shows `text` with the line icon `icon`.
    void setValue(const QString& text, const QString& icon, State state);
    QString text() const;
    State state() const { return m_state; }

private:
    void draw();

    Theme m_theme;
    QLabel* m_iconLabel;
    QLabel* m_caption;
    ElidedLabel* m_value;
    QString m_icon;
    State m_state = State::Neutral;
};

} // namespace pendant
