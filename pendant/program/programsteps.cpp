#include "programsteps.h"

namespace pendant {

InsertStep::InsertStep(Program* program, int row, const QString& line)
    : ProgramStep(program), m_row(row), m_line(line) {
    setText(Program::tr("Insert line"));
}
void InsertStep::redo() {
    m_program->put(m_row, m_line);
}
void InsertStep::undo() {
    m_program->take(m_row);
}

RemoveStep::RemoveStep(Program* program, int row) : ProgramStep(program), m_row(row), m_line(program->line(row)) {
    setText(Program::tr("Delete line"));
}
void RemoveStep::redo() {
    m_program->take(m_row);
}
void RemoveStep::undo() {
    m_program->put(m_row, m_line);
}

ReplaceStep::ReplaceStep(Program* program, int row, const QString& line)
    : ProgramStep(program), m_row(row), m_old(program->line(row)), m_new(line) {
    setText(Program::tr("Change line"));
}
void ReplaceStep::redo() {
    m_program->setLine(m_row, m_new);
}
void ReplaceStep::undo() {
    m_program->setLine(m_row, m_old);
}

MoveStep::MoveStep(Program* program, int from, int to) : ProgramStep(program), m_from(from), m_to(to) {
    setText(Program::tr("Move line"));
}
void MoveStep::redo() {
    m_program->relocate(m_from, m_to);
}
void MoveStep::undo() {
    m_program->relocate(m_to, m_from);
}

ReplaceAllStep::ReplaceAllStep(Program* program, const QStringList& lines, const QString& text)
    : ProgramStep(program), m_old(program->lines()), m_new(lines) {
    setText(text);
}
void ReplaceAllStep::redo() {
    m_program->setLines(m_new);
}
void ReplaceAllStep::undo() {
    m_program->setLines(m_old);
}

} // namespace pendant
