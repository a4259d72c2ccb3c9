#pragma once

#include "page.h"
#include "program/linetypes.h"
#include "program/programstore.h"
#include "programtools.h"

#include <QBoxLayout>
#include <QFrame>
#include <QListView>
#include <QPersistentModelIndex>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>

#include <functional>

namespace pendant {

class EmptyState;
class ProgramDelegate;
class ProgramEditor;
class ProgramPicker;
struct ProgramSubject;

/// The program editor: the lines of the open program, and beside them the widget of the line at the cursor, the
/// instructions to choose from, or the widget of the one that is being inserted.
///
/// Widgets of instructions are made when their line comes to the cursor and go when it is left. What was not applied
/// goes with them.
class ProgramPage : public Page {
    Q_OBJECT

public:
    explicit ProgramPage(const Theme& theme, QWidget* parent = nullptr);
    ~ProgramPage() override;

    void setTheme(const Theme& theme) override;
    ProgramStore* store() const { return m_store; }
    const LineTypes* types() const { return m_types; }
    /// Destroys the widget of an instruction that is open. The cursor opens it again.
    void leave();

protected:
    void retranslate() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class Mode { Reading, Picking, Inserting };

    Program* program() const { return m_store->program(); }
    int row() const;
    int newRow() const;
    void makeList();
    void makePanel();
    void arrange();
    void addKeys();
    void addKey(const QKeySequence& keys, QWidget* where, const std::function<void()>& action);
    void follow();

    void press(ProgramTools::Tool tool);
    void use(ProgramTools::Tool tool);
    void pick();
    void startInserting(const QString& type);
    void accept();
    void reject();
    void save();

    void programOpened();
    void showRow(int row);
    void readTypes();
    void setMode(Mode mode);
    void showSoon();
    void showNow();
    void showLine();
    void openLine(const QString& type);
    bool isShown(const QString& type) const;
    ProgramSubject subjectFor(const QString& type) const;
    static ProgramSubject unknownLine(const QString& line);
    void showParts();
    void showTools();
    void showState();
    void showPlace();
    void showNoProgram();
    void makeNoProgram();
    void noteUnapplied();
    void tellKeeping(const QString& problem);
    void keptAgain();
    void changedToSaved(bool modified);
    void tell(const QString& problem);
    static void reportPattern(const QString& type, const QString& what);

    ProgramStore* m_store;
    LineTypes* m_types;
    Mode m_mode = Mode::Reading;
    QPersistentModelIndex m_shown; ///< the line whose widget is open
    QString m_warning;             ///< about the line that was just written
    QString m_problem;             ///< what could not be saved or kept
    QString m_unapplied;           ///< what was left without being applied
    bool m_isSaveProblem = false;
    QTimer m_showTimer;
    bool m_isNarrow = false;
    bool m_isLow = false;

    QLabel* m_state;
    QPushButton* m_save;
    ProgramTools* m_tools;
    QLabel* m_notice;
    QWidget* m_body;
    QBoxLayout* m_columns;
    QListView* m_list;
    ProgramDelegate* m_delegate;
    QStackedWidget* m_lines;
    EmptyState* m_noLines;
    QWidget* m_noProgram;
    EmptyState* m_noProgramTexts;
    QPushButton* m_tryAgain;
    QFrame* m_panel;
    QStackedWidget* m_parts;
    QLabel* m_hint;
    ProgramPicker* m_picker;
    ProgramEditor* m_editor;
};

} // namespace pendant
