#pragma once

#include <QString>

/// What is special about the line of one of the gripper's instructions.
struct LineForm {
    QString type; ///< the first word of the line, and the type under which the instruction is registered
    QString key;  ///< what stands before the value
    QString unit; ///< what stands behind it
    double least;
    double most;
};

/// What a line says.
struct GripperLine {
    /// A force in N or a width in mm: 0.1 to 999.9 with one decimal, or 0 while it is not set.
    double value = 0.0;
    /// 0 to longestWaitMs.
    int waitMs = 200;
    /// Without the "//" and one blank behind it, and without line breaks; empty for none.
    QString comment;
    /// The blanks in front of the line.
    QString indent;
};

const int longestWaitMs = 9999;

/// CloseGripper force=40N wait=200ms // as hard as the part allows
const LineForm& closeGripperForm();
/// OpenGripper width=80mm wait=200ms
const LineForm& openGripperForm();

/// How the program editor knows the lines of the form: a regular expression, and the whole of the grammar.
///
///     line    = blanks TYPE blanks KEY "=" value UNIT blanks "wait=" ms "ms" blanks [ "//" comment ]
///     value   = "?" | 1 to 3 digits [ "." digit ]     "?" is a value that is not set yet
///     ms      = 1 to 4 digits
///     comment = anything
///
/// Between two words stands at least one blank or tab, within a word none.
QString linePattern(const LineForm& form);

/// The line of a new instruction: it belongs to the form, and its value is not set.
QString lineSkeleton(const LineForm& form);

/// Reads a line.
/// \param line  left alone when `text` does not belong to the form. Its value may be out of the form's range.
/// \return whether it belongs to the form
bool readLine(const LineForm& form, const QString& text, GripperLine* line);

/// The line in the form. readLine() gives the same back, as long as `line` holds what its fields allow. Of anything
/// else: a value is rounded to one decimal, what would break the line in two becomes a blank; and a value or a wait
/// with too many digits, a negative wait or half of a surrogate pair makes a line that does not belong to the form.
QString writeLine(const LineForm& form, const GripperLine& line);

bool isInRange(const LineForm& form, double value);

/// `text` with a blank for everything that would break a line in two.
QString onOneLine(QString text);
