#pragma once

#include "programcontent.h"
#include "style/theme.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QStringList>
#include <QWidget>

namespace pendant {

class ElidedLabel;

/// What an editor is opened for.
struct ProgramSubject {
    enum Purpose { Nothing, Insertion, Line };

    Purpose purpose = Nothing;
    QString type; ///< empty for a line that belongs to no type
    QString title;
    QString description;
    QString icon;
    QString line; ///< the line; of an insertion the skeleton
};

/// The part of the program page in which one line is edited or a new one is made: what it is, the widget that the
/// instruction brings, what there is to say, and the two buttons.
class ProgramEditor : public QWidget {
    Q_OBJECT

public:
    ProgramEditor(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme);
    void retranslate();

    /// Leaves what it had open and opens the widget of `subject`, filled where it is to be. A notice says why when it
    /// cannot be opened.
    /// \param fills whether the widget is given the subject's line
    void open(const ProgramSubject& subject, bool fills);
    /// Leaves what is open; its widget goes.
    void close();

    const ProgramSubject& subject() const { return m_subject; }
    /// Null when there is no widget.
    ProgramContent* content() const { return m_content && m_content->isThere() ? m_content.data() : nullptr; }
    bool holds(const ProgramContent* content) const { return content && m_content == content; }

    /// Where the line stands or will stand.
    void setPlace(const QString& place);
    /// The titles of the other types that have such lines.
    void setOthers(const QStringList& titles);
    enum class Tone { Plain, Warning, Error };
    /// Empty takes it away.
    void setNotice(Tone tone, const QString& notice);
    /// Says that the line was not taken, and brings what the widget says to that ("state" is "error" there) onto the
    /// screen.
    /// \param isByWidget it is the widget that refuses; the notice says so when the widget gives no reason
    void refuse(const QString& notice, bool isByWidget);
    /// Says that a call into the widget failed. One that is no more is taken away.
    void giveUp();
    /// Reports a widget that went between two calls, and gives it up.
    void giveUpGone();
    /// What its fields hold now is in the program.
    void setApplied();
    /// Somebody has changed a field of what is open, and not applied it.
    bool isEdited() const { return content() && m_content->isEdited(); }

signals:
    void accepted();
    void rejected();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    void showWhatFits();
    void showReason();
    void showEdited();
    void openContent(bool fills);
    void dropContent();
    void showSubject();
    void showButtons();

    Theme m_theme;
    ProgramSubject m_subject;
    QPointer<ProgramContent> m_content;
    QStringList m_others;
    bool m_isRefused = false; // by the widget, which may yet say why
    QLabel* m_icon;
    QLabel* m_title;
    QLabel* m_place;
    QLabel* m_description;
    QLabel* m_short; ///< the line of a type
    QLabel* m_line;  ///< the line of none
    QLabel* m_otherTypes;
    QScrollArea* m_scroll;
    QWidget* m_nest; ///< what is scrolled: the widget's place
    QLabel* m_notice;
    QLabel* m_unapplied;
    QPushButton* m_accept;
    QPushButton* m_reject;
};

} // namespace pendant
