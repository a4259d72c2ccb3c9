#include "programwriter.h"

#include "helm/messagelist.h"
#include "program/linetypes.h"
#include "programeditor.h"

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace pendant {

namespace {

const int quotedAtMost = 200;

} // namespace

ProgramWriter::ProgramWriter(Program* program, const LineTypes* types, ProgramEditor* editor)
    : m_program(program), m_types(types), m_editor(editor) {}

ProgramWriter::Result ProgramWriter::insert(int row) {
    const ProgramSubject subject = m_editor->subject();
    QString line;
    if (!askFor(&line, true) || !m_program->insert(row, line))
        return {};
    return {true, warningFor(subject.type, subject.title, line)};
}

ProgramWriter::Result ProgramWriter::replace(int row) {
    const ProgramSubject subject = m_editor->subject();
    QString line;
    if (!askFor(&line, false) || m_program->line(row) != subject.line || !m_program->replace(row, line))
        return {};
    return {true, warningFor(subject.type, subject.title, line)};
}

bool ProgramWriter::askFor(QString* line, bool inserts) {
    const QPointer<ProgramEditor> editor(m_editor);
    const QPointer<ProgramContent> content(m_editor->content());
    if (!content) {
        m_editor->giveUpGone();
        return false;
    }
    m_editor->setNotice(ProgramEditor::Tone::Plain, QString());
    const ProgramContent::Answer answer = inserts ? content->checkInsert() : content->checkReplace();
    if (answer == ProgramContent::Answer::Yes && content->toLine(line))
        return takes(*line);
    // The call may have waited for the person, who has gone elsewhere meanwhile.
    if (!editor || !editor->holds(content))
        return false;
    if (answer == ProgramContent::Answer::No)
        return refuse(tr("“%1” refuses this line.").arg(m_editor->subject().title), true);
    m_editor->giveUp();
    return false;
}

bool ProgramWriter::takes(const QString& line) {
    const QString refusal = Program::refusalOf(line);
    if (!refusal.isEmpty())
        return refuse(refusal, false);
    const ProgramSubject& subject = m_editor->subject();
    // An instruction that has nothing to say says just that.
    if (!line.trimmed().isEmpty() || m_types->typesOf(line).contains(subject.type))
        return true;
    const QString empty = tr("“%1” made an empty line, which was not taken.").arg(subject.title);
    MessageList::instance()->add(MessageLevel::Warning, subject.type, empty);
    return refuse(empty, false);
}

bool ProgramWriter::refuse(const QString& reason, bool isByWidget) {
    m_editor->refuse(reason, isByWidget);
    return false;
}

QString ProgramWriter::warningFor(const QString& type, const QString& title, const QString& line) const {
    if (m_types->typesOf(line).contains(type))
        return QString();
    const QString warning = tr("The pattern of “%1” does not match the line that it made: it will not be "
                               "recognised as one of its lines.")
                                .arg(title);
    const QString made = tr("Its line: %1").arg(line.left(quotedAtMost));
    MessageList::instance()->add(MessageLevel::Warning, type, warning + QLatin1Char(' ') + made);
    return warning;
}

} // namespace pendant
