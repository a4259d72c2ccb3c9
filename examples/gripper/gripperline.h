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
    /// A force in N or a width in mm, with one decimal; 0 while it is not set.
    double value = 0.0;
    int waitMs = 200;
    /// Without the "//" and one blank behind it; empty for none.
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
/// \param line  left alone when `text` does not belong to the form. A value that is out of range is not taken over.
/// \return whether it belongs to the form
bool readLine(const LineForm& form, const QString& text, GripperLine* line);

/// The line in the form; readLine() gives the same back, save a value out of range. What would break the line in two
/// becomes a blank.
QString writeLine(const LineForm& form, const GripperLine& line);

bool isInRange(const LineForm& form, double value);

/// `text` with a blank for everything that would break a line in two.
QString onOneLine(QString text);
