#include "robotpage.h"

#include "armcolours.h"
#include "armview.h"
#include "emptystate.h"
#include "jogstate.h"
#include "pointvalues.h"
#include "project/projectkeys.h"
#include "recordtext.h"

#include <QJsonObject>

#include <algorithm>

namespace pendant {

namespace {

// "-12.3°", "1250.0 mm"
QString valueOf(double value, const QString& unit) {
    QString number = QString::number(value, 'f', 1);
    if (number == QLatin1String("-0.0"))
        number.remove(0, 1);
    return number + (unit == QLatin1String("deg") ? QStringLiteral("°") : QLatin1Char(' ') + unit);
}

QString textOf(const FollowedNode& node) {
    return node.node() ? node.node()->getString() : QString();
}

} // namespace

RobotPage::RobotPage(const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("robotPage"), theme, parent), m_tool(projectkeys::tool()),
      m_workObject(projectkeys::workObject()), m_front(addLook(QStringLiteral("robotFront"))),
      m_side(addLook(QStringLiteral("robotSide"))), m_top(addLook(QStringLiteral("robotTop"))),
      m_fit(addLook(QStringLiteral("robotFit"))), m_shown(new QWidget(this)), m_view(new ArmView(m_shown)),
      m_state(new JogState(theme, m_shown)), m_hint(new QLabel(m_shown)), m_empty(new EmptyState(this)) {
    m_feed.setObjectName(QStringLiteral("robot page"));
    m_view->setColours(armColours(theme));
    m_hint->setProperty("caption", true);
    auto* foot = new QHBoxLayout;
    foot->addWidget(m_state, 1);
    foot->addWidget(m_hint);
    auto* column = new QVBoxLayout(m_shown);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(m_view, 1);
    column->addLayout(foot);
    content()->addWidget(m_shown, 1);
    content()->addWidget(m_empty, 1);
    connectLooks();
    followRobot();
    retranslate();
}

QPushButton* RobotPage::addLook(const QString& name) {
    auto* look = new QPushButton(this);
    look->setObjectName(name);
    actions()->addWidget(look);
    return look;
}

// The foot's X points to the front.
void RobotPage::connectLooks() {
    connect(m_front, &QPushButton::clicked, m_view, [this] { m_view->lookFrom(0, 8); });
    connect(m_side, &QPushButton::clicked, m_view, [this] { m_view->lookFrom(-90, 8); });
    connect(m_top, &QPushButton::clicked, m_view, [this] { m_view->lookFrom(-90, 89); });
    connect(m_fit, &QPushButton::clicked, m_view, &ArmView::fit);
}

void RobotPage::followRobot() {
    connect(&m_feed, &RobotFeed::onlineChanged, this, &RobotPage::showOnline);
    connect(&m_feed, &RobotFeed::positionChanged, this, &RobotPage::showPosition);
    connect(&m_feed, &RobotFeed::stateChanged, this,
            [this] { m_state->setState(m_feed.isMoving(), m_feed.stoppedBy()); });
    connect(&m_armFeed, &ArmFeed::changed, this, &RobotPage::showArm);
    connect(&m_points, &PointsModel::refreshed, this, &RobotPage::showPoints);
    connect(m_view, &ArmView::selectedChanged, this, &RobotPage::showSelected);
    for (FollowedNode* node : {&m_tool, &m_workObject}) {
        const auto listen = [this](brisk::ModuleObject* found) {
            connect(found, &brisk::ModuleObject::changed, this, &RobotPage::showFrame);
        };
        connect(node, &FollowedNode::renewed, this, listen);
        listen(node->node());
    }
}

void RobotPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    m_view->setColours(armColours(theme));
    m_state->setTheme(theme);
}

void RobotPage::retranslate() {
    setTitle(tr("Robot"));
    m_front->setText(tr("Front", "view of the robot"));
    m_side->setText(tr("Side", "view of the robot"));
    m_top->setText(tr("Top", "view of the robot"));
    m_fit->setText(tr("Show all", "view of the robot"));
    m_hint->setText(tr("Drag to turn, pinch to zoom, two fingers to shift."));
    m_state->retranslate();
    showOnline();
}

void RobotPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    m_armFeed.setActive(true);
    m_feed.setActive(true);
    m_points.setActive(true);
    showFrame();
}

void RobotPage::hideEvent(QHideEvent* event) {
    Page::hideEvent(event);
    m_points.setActive(false);
    m_feed.setActive(false);
    m_armFeed.setActive(false);
}

void RobotPage::showOnline() {
    const bool hasRobot = m_feed.isOnline() && !m_view->arm().isEmpty();
    m_shown->setVisible(hasRobot);
    m_empty->setVisible(!hasRobot);
    for (QPushButton* look : {m_front, m_side, m_top, m_fit})
        look->setEnabled(hasRobot);
    if (m_feed.isOnline())
        m_empty->setTexts(tr("No robot"), tr("The robot is drawn here. This controller does not tell what its robot "
                                             "looks like (“robot.arm”)."));
    else
        m_empty->setTexts(tr("No connection to the robot"),
                          tr("The robot is drawn here as soon as the links to the bus and to the controller are up. "
                             "“Links” in the developer dock (F12) brings them up."));
}

void RobotPage::showArm() {
    m_view->setArm(m_armFeed.arm());
    showOnline();
    showFrame();
    showPosition();
}

void RobotPage::showFrame() {
    m_view->setTool(textOf(m_tool));
    m_view->setWobj(textOf(m_workObject));
}

void RobotPage::showPosition() {
    view::Stance stance;
    ArmView::Values values;
    for (int i = 0; i < m_feed.axes().size(); ++i) {
        const RobotAxis& axis = m_feed.axes().at(i);
        (axis.isExternal ? stance.externals : stance.joints) << m_feed.axisValue(i);
        values << qMakePair(axis.name, valueOf(m_feed.axisValue(i), axis.unit));
    }
    if (values.isEmpty())
        return;
    m_view->setStance(stance);
    m_view->setValues(values);
}

void RobotPage::showPoints() {
    QVector<view::TaughtPoint> points;
    const int count = std::min(m_points.rowCount(), pointsAtMost);
    for (int row = 0; row < count; ++row) {
        const QString node = m_points.data(m_points.index(row, 0), RecordsModel::NodeRole).toString();
        const brisk::ModuleObject* record = m_points.record(node);
        if (record)
            points << view::taughtPointOf(node, record->exportToJson(true).toObject());
    }
    m_view->setPoints(points);
    showSelected();
}

void RobotPage::showSelected() {
    brisk::ModuleObject* record = m_points.record(m_view->selected());
    if (!record)
        return;
    const auto number = [record](const char* axis) {
        return numberOf(record, QStringLiteral("value.[0][0][0].pose.frame.pos.") + QLatin1String(axis), 1);
    };
    m_view->setSelectedText(PointValues::isJoint(record)
                                ? tr("Joints %1 °").arg(PointValues::position(record))
                                : tr("X %1  Y %2  Z %3 mm in %4")
                                      .arg(number("x"), number("y"), number("z"), PointValues::workObject(record)));
}

} // namespace pendant
