#include "jogpage.h"

#include "emptystate.h"
#include "jogrow.h"
#include "jogstate.h"
#include "project/projectkeys.h"

#include <QGridLayout>

namespace pendant {

namespace {

const QStringList cartesianNames{QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z"),
                                 QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
const int speedAtFirst = 25;

bool hasExternals(const QVector<RobotAxis>& axes) {
    return !axes.isEmpty() && axes.last().isExternal;
}

QLabel* caption(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setProperty("caption", true);
    return label;
}

} // namespace

JogPage::JogPage(const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("jogPage"), theme, parent), m_tool(projectkeys::tool()),
      m_workObject(projectkeys::workObject()), m_controls(new QWidget(this)), m_scroll(new QScrollArea(m_controls)),
      m_state(new JogState(theme, m_controls)), m_empty(new EmptyState(this)) {
    m_speedCaption = caption(m_controls);
    m_toolCaption = caption(m_controls);
    m_workObjectCaption = caption(m_controls);
    addPart(Joints, QStringLiteral("jogJoints"));
    addPart(Cartesian, QStringLiteral("jogCartesian"));
    addPart(Externals, QStringLiteral("jogExternals"));
    m_parts.button(Joints)->setChecked(true);
    addSpeeds();
    m_toolChoice = addFrameChoice(QStringLiteral("jogTool"), m_tool);
    m_workObjectChoice = addFrameChoice(QStringLiteral("jogWorkObject"), m_workObject);
    arrange();
    followRobot();
    retranslate();
    showRobot();
}

JogPage::~JogPage() {
    // The keys that let go while they are destroyed find nobody to tell.
    for (const Row& row : qAsConst(m_rows))
        row.widget->disconnect(this);
}

void JogPage::addPart(Part part, const QString& name) {
    auto* choice = new QPushButton(this);
    choice->setObjectName(name);
    choice->setCheckable(true);
    m_parts.addButton(choice, part);
    actions()->addWidget(choice);
    connect(choice, &QPushButton::clicked, this, &JogPage::showPart);
}

void JogPage::addSpeeds() {
    for (const int percent : {1, 5, 25, 100}) {
        auto* choice = new QPushButton(QStringLiteral("%1 %").arg(percent), m_controls);
        choice->setObjectName(QStringLiteral("jogSpeed:%1").arg(percent));
        choice->setProperty("jogSpeed", true);
        choice->setCheckable(true);
        choice->setChecked(percent == speedAtFirst);
        m_speeds.addButton(choice, percent);
    }
}

QComboBox* JogPage::addFrameChoice(const QString& name, const FollowedNode& node) {
    auto* choice = new QComboBox(m_controls);
    choice->setObjectName(name);
    // Beside an open side bar there is no more room.
    choice->setMinimumWidth(128);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(choice, QOverload<int>::of(&QComboBox::activated), this, [choice, &node] {
        if (node.node())
            node.node()->setValue(nullptr, choice->currentText());
    });
    return choice;
}

void JogPage::arrange() {
    auto* speeds = new QHBoxLayout;
    speeds->setSpacing(8);
    for (QAbstractButton* choice : m_speeds.buttons())
        speeds->addWidget(choice);
    m_scroll->setWidgetResizable(true);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* grid = new QGridLayout(m_controls);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(4);
    grid->addWidget(m_speedCaption, 0, 0);
    grid->addWidget(m_toolCaption, 0, 1);
    grid->addWidget(m_workObjectCaption, 0, 2);
    grid->addLayout(speeds, 1, 0);
    grid->addWidget(m_toolChoice, 1, 1);
    grid->addWidget(m_workObjectChoice, 1, 2);
    grid->setRowMinimumHeight(2, 4);
    grid->addWidget(m_scroll, 3, 0, 1, 3);
    grid->addWidget(m_state, 4, 0, 1, 3);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    content()->addWidget(m_controls, 1);
    content()->addWidget(m_empty, 1);
}

void JogPage::followRobot() {
    connect(&m_feed, &RobotFeed::onlineChanged, this, &JogPage::showOnline);
    connect(&m_feed, &RobotFeed::robotChanged, this, &JogPage::showRobot);
    connect(&m_feed, &RobotFeed::positionChanged, this, &JogPage::showValues);
    connect(&m_feed, &RobotFeed::stateChanged, this,
            [this] { m_state->setState(m_feed.isMoving(), m_feed.stoppedBy()); });
    for (FollowedNode* node : {&m_tool, &m_workObject}) {
        const auto listen = [this](brisk::ModuleObject* found) {
            connect(found, &brisk::ModuleObject::changed, this, &JogPage::showFrames);
        };
        connect(node, &FollowedNode::renewed, this, listen);
        listen(node->node());
    }
}

void JogPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    for (const Row& row : qAsConst(m_rows))
        row.widget->setTheme(theme);
    m_state->setTheme(theme);
}

void JogPage::retranslate() {
    setTitle(tr("Jog"));
    m_parts.button(Joints)->setText(tr("Joints"));
    m_parts.button(Cartesian)->setText(tr("Cartesian"));
    m_parts.button(Externals)->setText(tr("External axes"));
    m_speedCaption->setText(tr("Speed"));
    m_toolCaption->setText(tr("Tool"));
    m_workObjectCaption->setText(tr("Work object"));
    m_state->retranslate();
    showOnline();
}

void JogPage::showEvent(QShowEvent* event) {
    Page::showEvent(event);
    m_feed.setActive(true);
}

void JogPage::hideEvent(QHideEvent* event) {
    Page::hideEvent(event);
    m_drive.stop();
    m_feed.setActive(false);
}

void JogPage::showRobot() {
    m_parts.button(Externals)->setVisible(hasExternals(m_feed.axes()));
    if (!hasExternals(m_feed.axes()) && m_parts.checkedId() == Externals)
        m_parts.button(Joints)->setChecked(true);
    showPart();
    showFrames();
    showOnline();
}

void JogPage::showOnline() {
    const bool hasRobot = m_feed.isOnline() && !m_feed.axes().isEmpty();
    if (!hasRobot)
        m_drive.stop();
    m_controls->setVisible(hasRobot);
    m_empty->setVisible(!hasRobot);
    for (QAbstractButton* part : m_parts.buttons())
        part->setEnabled(hasRobot);
    if (m_feed.isOnline())
        m_empty->setTexts(tr("No robot"), tr("The axes of the robot are jogged here. This controller tells of none: "
                                             "give its cell file a section “robot”."));
    else
        m_empty->setTexts(tr("No connection to the robot"),
                          tr("The axes of the robot are jogged here as soon as the links to the bus and to the "
                             "controller are up. “Links” in the developer dock (F12) brings them up."));
}

void JogPage::showPart() {
    m_drive.stop();
    m_rows.clear();
    m_scroll->setWidget(new QWidget); // deletes the rows before
    m_rowColumn = new QVBoxLayout(m_scroll->widget());
    m_rowColumn->setContentsMargins(0, 0, 0, 0);
    m_rowColumn->setSpacing(0);
    m_parts.checkedId() == Cartesian ? addCartesianRows() : addAxisRows(m_parts.checkedId() == Externals);
    m_rowColumn->addStretch();
    showValues();
}

void JogPage::addAxisRows(bool external) {
    for (int i = 0; i < m_feed.axes().size(); ++i) {
        const RobotAxis& axis = m_feed.axes().at(i);
        if (axis.isExternal == external)
            addRow(axis.name, axis.unit, false, i)->setLimits(axis.minimum, axis.maximum);
    }
}

void JogPage::addCartesianRows() {
    for (int i = 0; i < cartesianNames.size(); ++i)
        addRow(cartesianNames.at(i), i < 3 ? QStringLiteral("mm") : QStringLiteral("deg"), true, i);
}

JogRow* JogPage::addRow(const QString& name, const QString& unit, bool isCartesian, int axis) {
    auto* row = new JogRow(name, unit, theme(), m_scroll->widget());
    connect(row, &JogRow::held, this, [this, isCartesian, axis](int direction) {
        if (direction == 0)
            m_drive.stop();
        else
            m_drive.start(isCartesian ? QStringLiteral("cart") : QStringLiteral("joint"), axis,
                          direction * m_speeds.checkedId());
    });
    m_rows << Row{row, isCartesian, axis};
    m_rowColumn->addWidget(row);
    return row;
}

void JogPage::showValues() {
    for (const Row& row : qAsConst(m_rows))
        row.widget->setValue(row.isCartesian ? m_feed.cartesianValue(row.axis) : m_feed.axisValue(row.axis));
}

void JogPage::showFrames() {
    showFrame(m_toolChoice, m_feed.tools(), m_tool);
    showFrame(m_workObjectChoice, m_feed.workObjects(), m_workObject);
}

void JogPage::showFrame(QComboBox* choice, const QStringList& names, const FollowedNode& node) {
    const QString selected = node.node() ? node.node()->getString() : QString();
    choice->clear();
    choice->addItems(names);
    choice->setCurrentIndex(names.indexOf(selected));
}

} // namespace pendant
