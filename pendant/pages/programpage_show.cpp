#include "programpage.h"

#include "emptystate.h"
#include "programdelegate.h"
#include "programeditor.h"
#include "programpicker.h"

#include <QStyle>

namespace pendant {

namespace {

const int longestProject = 24;

bool isBlank(const QString& line) {
    return line.trimmed().isEmpty();
}

// LOCALHOST/demo, main -> demo / main
QString nameOf(const ProgramPlace& place) {
    QString project = place.project().section(QLatin1Char('/'), -1);
    if (project.size() > longestProject)
        project = project.left(longestProject - 1) + QStringLiteral("…");
    return project + QStringLiteral(" / ") + place.name();
}

} // namespace

int ProgramPage::row() const {
    return m_list->currentIndex().row();
}

// Where a line that is inserted now would come.
int ProgramPage::newRow() const {
    return row() < 0 || !m_picker->isAbove() ? row() + 1 : row();
}

void ProgramPage::programOpened() {
    leave();
    m_problem.clear();
    m_unapplied.clear();
    if (program()->count() > 0)
        showRow(0);
    showSoon();
}

void ProgramPage::showRow(int row) {
    m_list->setCurrentIndex(program()->index(row));
}

void ProgramPage::readTypes() {
    if (!m_types->isStale())
        return;
    m_types->reload();
    m_delegate->forgetIcons();
    m_list->viewport()->update();
}

void ProgramPage::setMode(Mode mode) {
    m_mode = mode;
    if (mode == Mode::Picking)
        m_editor->close();
}

void ProgramPage::showSoon() {
    m_showTimer.start();
}

void ProgramPage::showNow() {
    m_showTimer.stop();
    const QPointer<ProgramPage> living(this);
    readTypes();
    if (m_mode == Mode::Reading && isVisible())
        showLine();
    if (!living)
        return;
    showParts();
    showPlace();
    showTools();
    showState();
}

void ProgramPage::showLine() {
    const QString type = row() < 0 ? QString() : m_types->typeOf(program()->line(row()));
    if (row() >= 0 && isShown(type))
        return;
    // The focus would go to who knows where with the field that has it.
    if (m_panel->isAncestorOf(focusWidget()))
        m_list->setFocus();
    noteUnapplied();
    leave();
    if (row() >= 0)
        openLine(type);
}

// It went with the widget; nobody shall believe it in the program.
void ProgramPage::noteUnapplied() {
    const ProgramSubject& subject = m_editor->subject();
    if (subject.purpose == ProgramSubject::Nothing)
        return;
    m_unapplied.clear();
    if (!m_editor->isEdited())
        return;
    if (m_mode == Mode::Inserting)
        m_unapplied = tr("Not inserted: the line of “%1” that was begun.").arg(subject.title);
    else if (m_shown.isValid())
        m_unapplied = tr("Not applied: what was entered in line %1 is not in the program.").arg(m_shown.row() + 1);
}

bool ProgramPage::isShown(const QString& type) const {
    const ProgramSubject& subject = m_editor->subject();
    return subject.purpose == ProgramSubject::Line && m_shown.isValid() && m_shown == m_list->currentIndex() &&
           subject.type == type && subject.line == program()->line(row());
}

void ProgramPage::openLine(const QString& type) {
    const QString line = program()->line(row());
    ProgramSubject subject = type.isEmpty() ? unknownLine(line) : subjectFor(type);
    subject.purpose = ProgramSubject::Line;
    subject.line = line;
    m_shown = m_list->currentIndex();
    const QPointer<ProgramPage> living(this);
    m_editor->open(subject, true);
    if (!living)
        return;
    QStringList others;
    for (const QString& other : m_types->typesOf(subject.line)) {
        if (other != type)
            others << m_types->title(other);
    }
    m_editor->setOthers(others);
    if (!m_warning.isEmpty())
        m_editor->setNotice(ProgramEditor::Tone::Warning, m_warning);
    m_warning.clear();
}

ProgramSubject ProgramPage::subjectFor(const QString& type) const {
    ProgramSubject subject;
    subject.type = type;
    subject.title = m_types->title(type);
    subject.description = m_types->description(type);
    subject.icon = m_types->icon(type);
    return subject;
}

ProgramSubject ProgramPage::unknownLine(const QString& line) {
    ProgramSubject subject;
    subject.title = isBlank(line) ? tr("Empty line") : tr("No instruction knows this line");
    subject.icon = isBlank(line) ? QString() : QStringLiteral("warning");
    return subject;
}

void ProgramPage::showParts() {
    const bool isOpen = m_store->isOpen();
    const bool hasLines = program()->count() > 0;
    m_body->setVisible(isOpen);
    m_tools->setVisible(isOpen);
    m_noProgram->setVisible(!isOpen);
    m_lines->setCurrentWidget(hasLines ? static_cast<QWidget*>(m_list) : m_noLines);
    m_panel->setVisible(hasLines || m_mode != Mode::Reading);
    m_lines->setVisible(!m_isNarrow || m_mode == Mode::Reading);
    if (m_mode == Mode::Picking)
        m_parts->setCurrentWidget(m_picker);
    else if (m_editor->subject().purpose == ProgramSubject::Nothing)
        m_parts->setCurrentWidget(m_hint);
    else
        m_parts->setCurrentWidget(m_editor);
    showNoProgram();
}

void ProgramPage::showNoProgram() {
    const ProgramPlace& place = m_store->place();
    m_tryAgain->setVisible(place.isValid());
    if (place.isValid())
        return m_noProgramTexts->setTexts(tr("The program cannot be read"), m_store->problem());
    m_noProgramTexts->setTexts(tr("No program is open"),
                               tr("The robot program of the open project is edited here. %1 Open a project, or make "
                                  "one, on the page “Projects”.")
                                   .arg(m_store->problem()));
}

void ProgramPage::showPlace() {
    const bool isFirst = program()->count() == 0;
    const QString place = isFirst ? tr("Becomes the first line") : tr("Becomes line %1").arg(newRow() + 1);
    m_picker->setChoice(!isFirst);
    m_picker->setPlace(place);
    m_editor->setPlace(m_mode == Mode::Inserting ? place : tr("Line %1").arg(row() + 1));
}

void ProgramPage::showTools() {
    const QUndoStack* history = program()->undoStack();
    const bool reads = m_mode == Mode::Reading && m_store->isOpen();
    m_tools->setAvailable(ProgramTools::Insert, reads);
    m_tools->setAvailable(ProgramTools::Delete, reads && row() >= 0);
    m_tools->setAvailable(ProgramTools::Up, reads && row() > 0);
    m_tools->setAvailable(ProgramTools::Down, reads && row() >= 0 && row() + 1 < program()->count());
    m_tools->setAvailable(ProgramTools::Undo, reads && history->canUndo());
    m_tools->setAvailable(ProgramTools::Redo, reads && history->canRedo());
    m_tools->setSteps(history->undoText(), history->redoText());
}

void ProgramPage::showState() {
    const bool isModified = m_store->isOpen() && program()->isModified();
    const QString name = m_store->isOpen() ? nameOf(m_store->place()) : QString();
    const QString state = isModified ? tr("● %1, not saved").arg(name) : name;
    m_state->setText(m_isLow ? state.left(isModified ? 1 : 0) : state);
    m_state->setToolTip(m_store->isOpen() ? m_store->place().file() : QString());
    m_save->setText(m_isLow ? QString() : tr("Save"));
    m_save->setVisible(m_store->isOpen());
    m_save->setEnabled(isModified);
    const QString takenUp = m_store->hasTakenUpUnsaved()
                                ? tr("Changes from before that were not saved are in the program again. Save them, or "
                                     "take them back with undo.")
                                : QString();
    const QString note = m_unapplied.isEmpty() ? takenUp : m_unapplied;
    m_notice->setText(m_problem.isEmpty() ? note : m_problem);
    m_notice->setVisible(!m_notice->text().isEmpty());
    m_notice->setProperty("state", m_problem.isEmpty() ? QStringLiteral("warning") : QStringLiteral("error"));
    m_notice->style()->unpolish(m_notice);
    m_notice->style()->polish(m_notice);
}

} // namespace pendant
