#pragma once

#include "program/program.h"

#include <QCoreApplication>
#include <QString>

namespace pendant {

class LineTypes;
class ProgramEditor;

/// Takes what the editor holds into the program, and tells the person when it does not.
class ProgramWriter {
    Q_DECLARE_TR_FUNCTIONS(pendant::ProgramWriter)

public:
    struct Result {
        bool isDone = false;
        QString warning; ///< what is wrong with the line all the same
    };

    /// Nothing is owned; all of it outlives the writer.
    ProgramWriter(Program* program, const LineTypes* types, ProgramEditor* editor);

    /// Asks CheckInsert, then ToString, and inserts the line before `row`.
    Result insert(int row);
    /// Asks CheckReplace, then ToString, and replaces the line of `row`.
    Result replace(int row);

private:
    bool askFor(QString* line, bool inserts);
    bool takes(const QString& line);
    bool refuse(const QString& reason, bool isByWidget);
    QString warningFor(const QString& type, const QString& title, const QString& line) const;

    Program* m_program;
    const LineTypes* m_types;
    ProgramEditor* m_editor;
};

} // namespace pendant
