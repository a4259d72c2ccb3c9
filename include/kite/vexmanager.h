#pragma once

#include "kite/export.h"
#include "kite/vexcontentbase.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace kite {

/// Makes a new content without parent; the caller takes it over. See VexManager::createInsertWidget().
/// \since 0.1
using ContentFactory = std::function<VexContentBase*()>;

/// Adds instructions to the pendant's program editor, beside those of the pendant. "Vex" is the robot's language.
///
///     kite::VexManager instructions;
///     instructions.createGroups("gripper", tr("Gripper"));
///     instructions.createData("gripper", "OpenGripper", tr("Opens the gripper."),
///                             [] { return new OpenGripperEditor; }, [] { return new OpenGripperEditor; });
///
/// Every operation writes into the pendant's one registry of instructions and none of them uses the object, so make one
/// where you need it; it may go at once. Operations return nothing and report nothing. What they wrote lasts until the
/// process exits, and nothing takes it back. So:
///
/// - **Register once**, in the plugin's constructor or in init(). Whoever registers a type twice replaces its texts and
///   widgets, and the type stands twice among the types and in its group: lists are only ever appended to.
/// - **Type names are shared** by the pendant and all plugins. The texts and widgets of a name that somebody else uses
///   are replaced without a word. Begin yours with something of your own.
/// - **A factory outlives the plugin object.** Let it capture nothing that dies before the process.
/// - **Names are compared with their case**, as they are passed: blanks at the ends count.
/// - **Titles and descriptions stay as they are passed.** A tr() gives the text of the language of that moment; when
/// the
///   person chooses another language, it does not follow. To register them again is no way out, see above.
///
/// User-interface thread only; nothing is locked.
/// \since 0.1
class KITE_EXPORT VexManager : public QObject {
    Q_OBJECT

public:
    explicit VexManager(QObject* parent = nullptr);
    ~VexManager() override;

    /// @name A whole instruction at once
    /// @{

    /// Registers the instruction `type`, whose line is its name alone. It does the following, in this order:
    /// createTypeKey(type); createSkeleton(type, type); createPattern() with
    ///
    ///     ^\s*TYPE\s*(?://.*)?$
    ///
    /// that is, the name alone in its line, with blanks around it and a "//" comment if there is one;
    /// createInsDescribe(type, describe); createInsDefault() with an empty text; createInsertWidget(type,
    /// insertFactory); createPropertyWidget(type, propertyFactory); createTypeToGroup(group, type).
    ///
    /// - An instruction **with parameters** needs a pattern of its own, or the program editor will not know its lines
    ///   again: call createPattern(), and createSkeleton() where a line with parameters is a better start, after this.
    /// - `type` goes into the pattern **as it is passed and not escaped**: a '.' in it stands for any character, and a
    ///   lone '(' makes a pattern that is invalid and matches nothing. Use letters, digits and "_", or call
    ///   createPattern() with QRegularExpression::escape(type) after this.
    /// - The group is not made: call createGroups() for one of your own.
    ///
    /// \param describe        what the instruction does, for the person who picks it
    /// \param insertFactory   makes the content for a new line, see createInsertWidget()
    /// \param propertyFactory makes the content for an existing line, see createPropertyWidget()
    void createData(const QString& group, const QString& type, const QString& describe, ContentFactory insertFactory,
                    ContentFactory propertyFactory);

    /// @}
    /// @name Groups
    /// @{

    /// Appends a group with its title. Call it once for each group: a second call appends it again. This pendant shows
    /// the first title that a group was given, and the key `group` for want of one.
    void createGroups(const QString& group, const QString& title);

    /// Appends `types` to what stands in `group`, also when they stand there already. The group need not have been made
    /// by createGroups(), nor the types registered; an empty list makes the group's list of members, which stays empty.
    /// Pass a single type without braces: `{"A"}` does not compile, for it could be either overload's.
    void createTypeToGroup(const QString& group, const QStringList& types);
    void createTypeToGroup(const QString& group, const QString& type);

    /// @}
    /// @name One piece of an instruction
    /// Each replaces what the type had of it, save createTypeKey().
    /// @{

    /// Appends `type` to the registered types, also when it stands there already.
    void createTypeKey(const QString& type);

    /// What the instruction does, for the person who picks it.
    void createInsDescribe(const QString& type, const QString& text);

    /// The default text of the instruction; what it is used for is the program editor's affair.
    void createInsDefault(const QString& type, const QString& text);

    /// How the program editor knows the lines of `type`: `pattern` is the text of a regular expression as
    /// QRegularExpression takes it. It is not looked at here: an invalid one is stored like any other. Anchor it with
    /// "^" and "$", or it matches lines that hold the instruction anywhere, comments included; and allow for the blanks
    /// and the "//" comment at the end that people write.
    void createPattern(const QString& type, const QString& pattern);

    /// The line that stands for a new instruction of `type` until its parameters are filled in.
    void createSkeleton(const QString& type, const QString& skeleton);

    /// Has the program editor show what `factory` makes when an instruction of `type` is to be inserted.
    ///
    /// The registry keeps a copy of `factory`, and calls a copy of that each time it needs a widget: a factory that
    /// counts in a variable of its own starts anew on every call, so keep elsewhere what has to last; and it may
    /// register its own type anew while it is called. It returns a new content without parent each time, which a
    /// VexBaseWidget takes over; one that returns the same content twice takes it away from where it was. When it
    /// returns null the widget stays empty, and its checks accept (see VexBaseWidget). What it throws goes into the
    /// program editor. An empty factory is not refused here: it throws std::bad_function_call when the program editor
    /// calls it.
    void createInsertWidget(const QString& type, ContentFactory factory);

    /// The same for when the person has selected a line of `type`: the line is handed to the content's FillWith().
    void createPropertyWidget(const QString& type, ContentFactory factory);

    /// @}

private:
    Q_DISABLE_COPY(VexManager)
};

} // namespace kite
