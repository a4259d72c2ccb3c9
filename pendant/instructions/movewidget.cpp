#include "movewidget.h"

#include "projectnames.h"

#include <QLineEdit>

namespace pendant {

namespace {

const int percentAtFirst = 50;
const int mmPerSAtFirst = 250;

QSpinBox* speedField(MoveLine::Kind kind) {
    auto* speed = new QSpinBox;
    speed->setObjectName(QStringLiteral("moveSpeed"));
    speed->setRange(1, kind == MoveLine::Joint ? 100 : 9999);
    speed->setSuffix(kind == MoveLine::Joint ? QStringLiteral(" %") : QStringLiteral(" mm/s"));
    speed->setSingleStep(kind == MoveLine::Joint ? 5 : 50);
    speed->setValue(kind == MoveLine::Joint ? percentAtFirst : mmPerSAtFirst);
    return speed;
}

QSpinBox* zoneField() {
    auto* zone = new QSpinBox;
    zone->setObjectName(QStringLiteral("moveZone"));
    zone->setRange(0, 999);
    zone->setSuffix(QStringLiteral(" mm"));
    return zone;
}

} // namespace

MoveWidget::MoveWidget(MoveLine::Kind kind, QWidget* parent)
    : InstructionWidget(MoveLine::grammar(kind), parent), m_kind(kind),
      m_point(nameField(QStringLiteral("movePoint"), projectnames::points())), m_speed(speedField(kind)),
      m_zone(zoneField()), m_tool(nameField(QStringLiteral("moveTool"), projectnames::tools())),
      m_workObject(nameField(QStringLiteral("moveWorkObject"), projectnames::workObjects())) {
    m_captions << addField(m_point) << addField(m_speed, Width::Half) << addField(m_zone, Width::Half)
               << addField(m_tool, Width::Half) << addField(m_workObject, Width::Half);
    retranslate();
}

void MoveWidget::show(const LineParts& parts) {
    const MoveLine line = MoveLine::of(m_kind, parts);
    m_point->setCurrentText(line.point);
    m_speed->setValue(line.speed);
    m_zone->setValue(line.zoneMm);
    m_tool->setCurrentText(line.tool);
    m_workObject->setCurrentText(line.workObject);
}

QString MoveWidget::text() const {
    return MoveLine{m_kind, nameIn(m_point), m_speed->value(), m_zone->value(), nameIn(m_tool), nameIn(m_workObject)}
        .text();
}

QString MoveWidget::missing() const {
    return nameIn(m_point).isEmpty() ? tr("Choose the point to move to, or type its name.") : QString();
}

void MoveWidget::retranslate() {
    const QStringList captions{tr("Point"), tr("Speed"), tr("Zone"), tr("Tool"), tr("Work object")};
    for (int i = 0; i < m_captions.size(); ++i)
        m_captions.at(i)->setText(captions.at(i));
    m_zone->setSpecialValueText(tr("Stop"));
    m_zone->setToolTip(tr("How far from the point the robot may leave its path for the next move"));
    m_point->lineEdit()->setPlaceholderText(tr("Name of a point"));
    m_tool->lineEdit()->setPlaceholderText(tr("Selected"));
    m_workObject->lineEdit()->setPlaceholderText(tr("Selected"));
}

} // namespace pendant
