#pragma once

#include "kite/export.h"

#include <QString>
#include <QWidget>

namespace kite {

/// The base of an instruction's editor: a widget that shows one line of a robot program and writes one back.
///
/// Derive from it for each instruction, lay it out as any widget and override the four operations:
///
///     class OpenGripperEditor : public kite::VexContentBase {
///     public:
///         explicit OpenGripperEditor(QWidget* parent = nullptr);
///         void FillWith(const QString& line) override;   // line -> widget
///         QString ToString() override;                   // widget -> line
///         bool CheckInsert() override;                   // may ToString() be inserted as a new line?
///         bool CheckReplace() override;                  // may ToString() replace the line that was filled in?
///     };
///
/// The program editor makes a new one, by the factory that you registered with VexManager, each time it shows the
/// instruction. It puts it into a VexBaseWidget, which becomes its parent and deletes it; so keep nothing in it that
/// has to last.
///
/// **The defaults refuse:** who overrides neither CheckInsert() nor CheckReplace() has an instruction that can be
/// looked at and never inserted. The program editor is told no more than true or false, so a check that says false
/// shows the person the reason in this widget.
///
/// In which order the operations are called is the program editor's own affair. Count on none: any of them may be
/// called at any time, as often as it likes, also FillWith() never, or with a line that is not yours.
///
/// User-interface thread only.
/// \since 0.1
class KITE_EXPORT VexContentBase : public QWidget {
    Q_OBJECT

public:
    explicit VexContentBase(QWidget* parent = nullptr);
    ~VexContentBase() override;

    /// Shows `line`, the text of a program line, for editing. Does nothing unless overridden.
    /// \param line as it stands in the program: with the blanks around it, and with its "//" comment, which ToString()
    ///             has to give back if the person is to keep it
    virtual void FillWith(const QString& line);

    /// The text of the program line that the widget stands for, without a line break. Empty unless overridden. The
    /// pattern of the instruction has to match it, or the program editor will not know the line as this instruction's.
    virtual QString ToString();

    /// Whether ToString() may be inserted into the program as a new line. False unless overridden.
    virtual bool CheckInsert();

    /// Whether ToString() may replace the line that was filled in. False unless overridden; does not ask CheckInsert().
    virtual bool CheckReplace();

protected:
    /// A text of your own, to keep what FillWith() was given and no field shows, so that ToString() can give it back:
    /// the blanks in front of the line, a comment, or the whole line. Kite neither reads nor writes it; empty at first.
    QString ownText;

private:
    Q_DISABLE_COPY(VexContentBase)
};

} // namespace kite
