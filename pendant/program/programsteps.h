#pragma once

#include "program.h"

#include <QUndoCommand>

namespace pendant {

/// A step of a program's history.
class ProgramStep : public QUndoCommand {
public:
    explicit ProgramStep(Program* program) : m_program(program) {}

protected:
    Program* m_program;
};

class InsertStep : public ProgramStep {
public:
    InsertStep(Program* program, int row, const QString& line);
    void redo() override;
    void undo() override;

private:
    int m_row;
    QString m_line;
};

class RemoveStep : public ProgramStep {
public:
    RemoveStep(Program* program, int row);
    void redo() override;
    void undo() override;

private:
    int m_row;
    QString m_line;
};

class ReplaceStep : public ProgramStep {
public:
    ReplaceStep(Program* program, int row, const QString& line);
    void redo() override;
    void undo() override;

private:
    int m_row;
    QString m_old;
    QString m_new;
};

class MoveStep : public ProgramStep {
public:
    MoveStep(Program* program, int from, int to);
    void redo() override;
    void undo() override;

private:
    int m_from;
    int m_to;
};

class ReplaceAllStep : public ProgramStep {
public:
    ReplaceAllStep(Program* program, const QStringList& lines, const QString& text);
    void redo() override;
    void undo() override;

private:
    QStringList m_old;
    QStringList m_new;
};

} // namespace pendant
