#include "builtins.h"

#include "assignline.h"
#include "assignwidget.h"
#include "commentline.h"
#include "commentwidget.h"
#include "movewidget.h"
#include "outputline.h"
#include "outputwidget.h"
#include "waitline.h"
#include "waitwidget.h"

using helm::VexManager;
using helm::WidgetCreator;

namespace pendant {

namespace {

const QString motionGroup = QStringLiteral("Motion");
const QString logicGroup = QStringLiteral("Logic");
const QString ioGroup = QStringLiteral("IO");

template <typename Widget> WidgetCreator creatorOf() {
    return [](QWidget* parent) { return new Widget(parent); };
}

void renew(QString& text, const QString& before, const QString& now) {
    if (text == before)
        text = now;
}

void renewTitle(VexManager* registry, const QString& key, const QString& before, const QString& now) {
    for (auto& group : registry->groups) {
        if (group.first == key)
            renew(group.second, before, now);
    }
}

WidgetCreator creatorOf(MoveLine::Kind kind) {
    return [kind](QWidget* parent) { return new MoveWidget(kind, parent); };
}

} // namespace

BuiltIns::Texts BuiltIns::groups() {
    return {{motionGroup, tr("Motion")}, {logicGroup, tr("Logic")}, {ioGroup, tr("Inputs and outputs")}};
}

QVector<BuiltIns::Instruction> BuiltIns::moves() {
    return {{MoveLine::type(MoveLine::Joint), motionGroup, QStringLiteral("movejoint"),
             MoveLine::grammar(MoveLine::Joint).pattern(), MoveLine::type(MoveLine::Joint), tr("Joint move"),
             tr("Moves all axes at once to a point, the quickest way"), creatorOf(MoveLine::Joint)},
            {MoveLine::type(MoveLine::Linear), motionGroup, QStringLiteral("movelinear"),
             MoveLine::grammar(MoveLine::Linear).pattern(), MoveLine::type(MoveLine::Linear), tr("Linear move"),
             tr("Moves the tool on a straight line to a point"), creatorOf(MoveLine::Linear)}};
}

QVector<BuiltIns::Instruction> BuiltIns::logic() {
    return {{WaitLine::type(), logicGroup, QStringLiteral("wait"), WaitLine::grammar().pattern(), WaitLine{500}.text(),
             tr("Wait"), tr("Waits for a time"), creatorOf<WaitWidget>()},
            {AssignLine::type(), logicGroup, QStringLiteral("variables"), AssignLine::grammar().pattern(),
             AssignLine::type(), tr("Assign"), tr("Gives a variable a value"), creatorOf<AssignWidget>()}};
}

QVector<BuiltIns::Instruction> BuiltIns::signalsAndNotes() {
    return {{CommentLine::type(), logicGroup, QStringLiteral("comment"), CommentLine::grammar().pattern(),
             CommentLine().text(), tr("Comment"), tr("A note for people; the robot passes it over"),
             creatorOf<CommentWidget>()},
            {OutputLine::type(), ioGroup, QStringLiteral("out"), OutputLine::grammar().pattern(), OutputLine::type(),
             tr("Set digital output"), tr("Switches an output on or off"), creatorOf<OutputWidget>()}};
}

QVector<BuiltIns::Instruction> BuiltIns::instructions() {
    return moves() + logic() + signalsAndNotes();
}

BuiltIns::BuiltIns() : m_entered(instructions()), m_groups(groups()) {
    VexManager* registry = VexManager::getVexManager();
    if (registry->typeKeys.contains(WaitLine::type()))
        return;
    for (const auto& group : qAsConst(m_groups))
        registry->groups.append({group.first, group.second});
    for (const Instruction& instruction : qAsConst(m_entered))
        add(instruction);
}

void BuiltIns::add(const Instruction& instruction) {
    VexManager* registry = VexManager::getVexManager();
    const QString& type = instruction.type;
    registry->typeKeys.append(type);
    registry->skeletons[QStringLiteral("s_") + type] = instruction.skeleton;
    registry->patterns[QStringLiteral("c_") + type] = instruction.pattern;
    registry->descriptions[type] = instruction.description;
    registry->titles[type] = instruction.title;
    registry->icons[type] = instruction.icon;
    registry->defaultTexts[type] = QString();
    registry->insertWidgets[type] = instruction.creator;
    registry->propertyWidgets[type] = instruction.creator;
    registry->groupMembers[instruction.group].append(type);
}

QStringList BuiltIns::types() {
    return {MoveLine::type(MoveLine::Joint),
            MoveLine::type(MoveLine::Linear),
            WaitLine::type(),
            AssignLine::type(),
            CommentLine::type(),
            OutputLine::type()};
}

void BuiltIns::retranslate() {
    VexManager* registry = VexManager::getVexManager();
    const QVector<Instruction> now = instructions();
    for (int i = 0; i < now.size(); ++i) {
        renew(registry->titles[now.at(i).type], m_entered.at(i).title, now.at(i).title);
        renew(registry->descriptions[now.at(i).type], m_entered.at(i).description, now.at(i).description);
    }
    m_entered = now;
    const Texts groupsNow = groups();
    for (int i = 0; i < groupsNow.size(); ++i)
        renewTitle(registry, groupsNow.at(i).first, m_groups.at(i).second, groupsNow.at(i).second);
    m_groups = groupsNow;
}

} // namespace pendant
