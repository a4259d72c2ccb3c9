#include "programpage.h"

#include "plugins/report.h"
#include "programeditor.h"
#include "programpicker.h"
#include "programwriter.h"

namespace pendant {

void ProgramPage::press(ProgramTools::Tool tool) {
    // A key of the keyboard finds the tool switched off or not, as a finger does.
    if (m_tools->isAvailable(tool))
        use(tool);
}

void ProgramPage::use(ProgramTools::Tool tool) {
    const int at = row();
    switch (tool) {
    case ProgramTools::Insert:
        return pick();
    case ProgramTools::Delete:
        program()->remove(at);
        return;
    case ProgramTools::Up:
        program()->move(at, at - 1);
        return;
    case ProgramTools::Down:
        program()->move(at, at + 1);
        return;
    case ProgramTools::Undo:
        return program()->undoStack()->undo();
    default:
        return program()->undoStack()->redo();
    }
}

void ProgramPage::pick() {
    readTypes();
    m_picker->start();
    noteUnapplied();
    setMode(Mode::Picking);
    showNow();
}

// A skeleton is a line to fill the widget with where it is a line of the type; otherwise the widget shows what it shows
// by itself.
void ProgramPage::startInserting(const QString& type) {
    if (m_mode != Mode::Picking)
        return;
    setMode(Mode::Inserting);
    ProgramSubject subject = subjectFor(type);
    subject.purpose = ProgramSubject::Insertion;
    subject.line = m_types->skeleton(type);
    const bool fills = m_types->typesOf(subject.line).contains(type);
    const QPointer<ProgramPage> living(this);
    m_editor->open(subject, fills);
    if (living)
        showNow();
}

void ProgramPage::accept() {
    // The cursor has gone elsewhere, and the widget of that line is about to come.
    if (m_showTimer.isActive())
        return;
    const QPointer<ProgramPage> living(this);
    ProgramWriter writer(program(), m_types, m_editor);
    const ProgramWriter::Result result =
        m_mode == Mode::Inserting ? writer.insert(newRow()) : writer.replace(m_shown.row());
    if (!living || !result.isDone)
        return;
    m_warning = result.warning;
    m_unapplied.clear();
    m_editor->setApplied();
    setMode(Mode::Reading);
    showNow();
}

// Of an insertion and of the choice of one: back to the line at the cursor. Of a line: its widget anew.
void ProgramPage::reject() {
    leave();
    showNow();
    m_list->setFocus();
}

void ProgramPage::leave() {
    m_editor->close();
    m_shown = QPersistentModelIndex();
    setMode(Mode::Reading);
}

void ProgramPage::save() {
    if (!m_store->isOpen() || !program()->isModified())
        return;
    QString error;
    m_problem.clear();
    m_isSaveProblem = !m_store->save(&error);
    if (m_isSaveProblem)
        tell(error);
    showState();
}

// A notice that is no longer true goes.
void ProgramPage::changedToSaved(bool modified) {
    if (!modified)
        m_problem.clear();
    showState();
}

void ProgramPage::tellKeeping(const QString& problem) {
    m_isSaveProblem = false;
    tell(problem);
}

void ProgramPage::keptAgain() {
    if (!m_isSaveProblem)
        m_problem.clear();
    showState();
}

void ProgramPage::tell(const QString& problem) {
    m_problem = problem;
    reportError(QStringLiteral("pendant"), problem);
    showState();
}

void ProgramPage::reportPattern(const QString& type, const QString& what) {
    reportError(type, what);
}

} // namespace pendant
