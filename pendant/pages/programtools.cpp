#include "programtools.h"

#include "style/icons.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

namespace pendant {

namespace {

const int gapBetweenGroups = 16;

} // namespace

ProgramTools::ProgramTools(const Theme& theme, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("programTools"));
    add(Insert, QStringLiteral("insertLine"), QStringLiteral("plus"));
    add(Delete, QStringLiteral("deleteLine"), QStringLiteral("delete"));
    add(Up, QStringLiteral("moveLineUp"), QStringLiteral("up"));
    add(Down, QStringLiteral("moveLineDown"), QStringLiteral("down"));
    add(Undo, QStringLiteral("undoStep"), QStringLiteral("undo"));
    add(Redo, QStringLiteral("redoStep"), QStringLiteral("redo"));
    arrange();
    setTheme(theme);
    retranslate();
}

void ProgramTools::add(Tool tool, const QString& name, const QString& icon) {
    QAbstractButton* button =
        tool == Insert ? static_cast<QAbstractButton*>(new QPushButton(this)) : new QToolButton(this);
    button->setObjectName(name);
    button->setIconSize({24, 24});
    button->setFixedHeight(56);
    button->setAutoRepeat(tool == Up || tool == Down || tool == Undo || tool == Redo);
    connect(button, &QAbstractButton::clicked, this, [this, tool] { emit pressed(tool); });
    m_buttons << button;
    m_icons << icon;
}

void ProgramTools::arrange() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    for (int tool = Insert; tool < ToolCount; ++tool) {
        if (tool == Delete || tool == Undo)
            row->addSpacing(gapBetweenGroups - 8);
        row->addWidget(m_buttons.at(tool));
    }
    row->addStretch();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ProgramTools::setTheme(const Theme& theme) {
    for (int tool = Insert; tool < ToolCount; ++tool)
        m_buttons.at(tool)->setIcon(lineIcon(m_icons.at(tool), theme.color(QStringLiteral("text")), theme));
}

void ProgramTools::retranslate() {
    m_buttons.at(Insert)->setText(m_isCompact ? QString() : tr("Insert"));
    name(Insert, tr("Insert a line below (Ins)"));
    name(Delete, tr("Delete the line (Del)"));
    name(Up, tr("Move the line up (Ctrl+Up)"));
    name(Down, tr("Move the line down (Ctrl+Down)"));
    setSteps(m_undo, m_redo);
}

void ProgramTools::setCompact(bool compact) {
    m_isCompact = compact;
    retranslate();
}

void ProgramTools::setSteps(const QString& undo, const QString& redo) {
    m_undo = undo;
    m_redo = redo;
    name(Undo, undo.isEmpty() ? tr("Undo (Ctrl+Z)") : tr("Undo: %1 (Ctrl+Z)").arg(undo));
    name(Redo, redo.isEmpty() ? tr("Redo (Ctrl+Y)") : tr("Redo: %1 (Ctrl+Y)").arg(redo));
}

void ProgramTools::name(Tool tool, const QString& words) {
    m_buttons.at(tool)->setToolTip(words);
    m_buttons.at(tool)->setAccessibleName(words);
}

void ProgramTools::setAvailable(Tool tool, bool available) {
    m_buttons.at(tool)->setEnabled(available);
}

bool ProgramTools::isAvailable(Tool tool) const {
    return m_buttons.at(tool)->isEnabled();
}

} // namespace pendant
