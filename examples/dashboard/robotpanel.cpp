#include "robotpanel.h"

#include "livestate.h"
#include "reading.h"

#include <QGridLayout>
#include <QLabel>
#include <QStyle>

namespace {

void setState(QLabel* label, const QString& state) {
    label->setProperty("state", state);
    label->style()->unpolish(label);
    label->style()->polish(label);
}

} // namespace

RobotPanel::RobotPanel(LiveState* live) : QGroupBox(tr("Robot")) {
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    m_state = addRow(grid, QStringLiteral("state"), tr("State"));
    m_state->setProperty("value", true);
    m_drives = addRow(grid, QStringLiteral("drives"), tr("Drives"));
    m_mode = addRow(grid, QStringLiteral("mode"), tr("Mode"));
    m_level = addRow(grid, QStringLiteral("level"), tr("User level"));
    m_tool = addRow(grid, QStringLiteral("tool"), tr("Tool"));
    m_wobj = addRow(grid, QStringLiteral("wobj"), tr("Work object"));
    m_id = addRow(grid, QStringLiteral("id"), tr("Identifier"));
    m_type = addRow(grid, QStringLiteral("type"), tr("Type"));
    m_model = addRow(grid, QStringLiteral("model"), tr("Model"));
    m_address = addRow(grid, QStringLiteral("address"), tr("Address"));
    grid->setRowStretch(grid->rowCount(), 1);
    connect(live, &LiveState::robotChanged, this, &RobotPanel::readAgain);
    // Grey is what is not live; the banner says so in words.
    connect(live, &LiveState::linksChanged, this, [this, live] { setEnabled(live->isConnected()); });
    setEnabled(live->isConnected());
}

QLabel* RobotPanel::addRow(QGridLayout* grid, const QString& name, const QString& caption) {
    auto* label = new QLabel(caption);
    label->setProperty("caption", true);
    auto* value = new QLabel;
    value->setObjectName(name);
    value->setProperty("strong", true);
    value->setWordWrap(true);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(value, row, 1);
    return value;
}

void RobotPanel::readAgain() {
    const reading::Robot robot = reading::robot();
    const auto orNone = [](const QString& text) { return text.isEmpty() ? tr("none") : text; };
    // The pendant's words are shown as they are: one that is new to us must not read as "all is well".
    m_state->setText(robot.state.isEmpty() ? tr("unknown") : robot.state);
    m_drives->setText(robot.hasPower ? tr("on") : tr("off"));
    setState(m_drives, robot.hasPower ? QStringLiteral("good") : QStringLiteral("warning"));
    m_mode->setText(robot.mode.isEmpty() ? tr("unknown") : robot.mode);
    m_level->setText(QString::number(robot.level));
    m_tool->setText(robot.tool);
    m_wobj->setText(robot.wobj);
    m_id->setText(orNone(robot.id));
    m_type->setText(orNone(robot.type));
    m_model->setText(robot.model == 0 ? tr("not told yet") : QString::number(robot.model));
    m_address->setText(orNone(robot.address));
}
