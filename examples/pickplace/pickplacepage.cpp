#include "pickplacepage.h"

#include "placecard.h"
#include "places.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

const int linearId = 0;
const int jointsId = 1;

QLabel* makeLabel(const QString& name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

QWidget* inRow(const QList<QWidget*>& widgets, const QWidget* wide) {
    auto* holder = new QWidget;
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 8, 0, 0);
    row->setSpacing(16);
    for (QWidget* widget : widgets)
        row->addWidget(widget, widget == wide ? 1 : 0);
    return holder;
}

void setState(QLabel* label, const QVariant& state) {
    label->setProperty("state", state);
    label->style()->unpolish(label);
    label->style()->polish(label);
}

} // namespace

PickPlacePage::PickPlacePage(Mover* mover)
    : m_mover(mover), m_pick(new PlaceCard(tr("Pick"), QStringLiteral("pick"))),
      m_place(new PlaceCard(tr("Place"), QStringLiteral("place"))), m_ways(new QButtonGroup(this)),
      m_speed(new QSpinBox), m_distance(makeLabel(QStringLiteral("distance"))),
      m_state(makeLabel(QStringLiteral("state"))), m_error(makeLabel(QStringLiteral("error"))),
      m_answer(makeLabel(QStringLiteral("answer"))) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addWidget(makeReason());
    layout->addWidget(makePlaces(), 1);
    layout->addWidget(makeTabs());
    layout->addWidget(makeReport(), 1);
    connect(mover, &Mover::stateChanged, this, &PickPlacePage::display);
    connect(mover, &Mover::positionChanged, this, &PickPlacePage::displayDistance);
    say(Answer::done(tr("Jog to where x = y and teach both places.")));
    showUnit();
    display();
    displayDistance();
}

QWidget* PickPlacePage::makeReason() {
    QLabel* reason = makeLabel(QStringLiteral("reason"));
    reason->setText(tr("A move sends x in the place of y: the robot can only be sent to places where x = y in the work "
                       "object."));
    return reason;
}

QWidget* PickPlacePage::makePlaces() {
    auto* places = new QWidget;
    auto* row = new QHBoxLayout(places);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    for (PlaceCard* card : {m_pick, m_place}) {
        row->addWidget(card, 1);
        connect(card, &PlaceCard::teachPressed, this, [this, card] { teach(card); });
        connect(card, &PlaceCard::goPressed, this, [this, card] { go(card); });
    }
    return places;
}

QWidget* PickPlacePage::makeTabs() {
    auto* tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("tabs"));
    tabs->addTab(makeMove(), tr("Move"));
    tabs->addTab(makeOtherForm(), tr("For authors"));
    return tabs;
}

QWidget* PickPlacePage::makeMove() {
    auto* linear = new QRadioButton(tr("Linear"));
    auto* joints = new QRadioButton(tr("Joints"));
    auto* check = new QPushButton(tr("Check the way"));
    linear->setObjectName(QStringLiteral("linear"));
    joints->setObjectName(QStringLiteral("joints"));
    check->setObjectName(QStringLiteral("check"));
    m_ways->addButton(linear, linearId);
    m_ways->addButton(joints, jointsId);
    linear->setChecked(true);
    m_speed->setObjectName(QStringLiteral("speed"));
    m_speed->setRange(1, 1000);
    m_speed->setSingleStep(50);
    m_speed->setValue(250);
    connect(joints, &QRadioButton::toggled, this, &PickPlacePage::showUnit);
    connect(check, &QPushButton::clicked, this, [this] { say(m_mover->check(m_pick->name(), m_place->name())); });
    return inRow({linear, joints, m_speed, check}, m_speed);
}

// Here an author sees what happens, rather than a robot that does nothing.
QWidget* PickPlacePage::makeOtherForm() {
    QLabel* text = makeLabel(QStringLiteral("otherForm"));
    text->setText(tr("moveToStart with four arguments sends a speed and no target. The controller answers with an "
                     "error, and nothing moves. Moves take five arguments."));
    auto* attempt = new QPushButton(tr("Try it"));
    attempt->setObjectName(QStringLiteral("fourArguments"));
    connect(attempt, &QPushButton::clicked, this,
            [this] { say(m_mover->moveWithoutTarget(m_pick->name(), m_speed->value())); });
    return inRow({text, attempt}, text);
}

QWidget* PickPlacePage::makeReport() {
    auto* stop = new QPushButton(tr("Stop"));
    stop->setObjectName(QStringLiteral("stop"));
    stop->setMinimumWidth(160);
    connect(stop, &QPushButton::clicked, this, [this] { say(m_mover->stop()); });
    m_state->setProperty("strong", true);
    auto* group = new QGroupBox(tr("Robot"));
    auto* row = new QHBoxLayout(group);
    row->setSpacing(16);
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    for (QLabel* label : {m_state, m_error, m_distance, m_answer})
        column->addWidget(label);
    column->addStretch();
    row->addLayout(column, 1);
    row->addWidget(stop, 0, Qt::AlignTop);
    return group;
}

void PickPlacePage::readAgain() {
    m_pick->readAgain();
    m_place->readAgain();
}

void PickPlacePage::display() {
    m_state->setText(m_mover->stateText());
    setState(m_state, m_mover->isConnected() ? QVariant() : QVariant(QStringLiteral("error")));
    m_error->setText(m_mover->errorText());
    m_error->setVisible(!m_mover->errorText().isEmpty());
    setState(m_error, QStringLiteral("error"));
}

void PickPlacePage::displayDistance() {
    m_distance->setText(Places::distanceText(m_mover->position()));
}

// One number, two meanings.
void PickPlacePage::showUnit() {
    m_speed->setSuffix(way() == Mover::Way::Linear ? tr(" mm/s") : tr(" ‰ of full speed"));
}

Mover::Way PickPlacePage::way() const {
    return m_ways->checkedId() == jointsId ? Mover::Way::Joints : Mover::Way::Linear;
}

void PickPlacePage::teach(const PlaceCard* card) {
    say(Places::teach(card->name()));
    readAgain();
}

void PickPlacePage::go(const PlaceCard* card) {
    readAgain();
    say(m_mover->moveTo(card->name(), m_speed->value(), way()));
}

void PickPlacePage::say(const Answer& answer) {
    m_answer->setText(answer.text);
    setState(m_answer, answer.isProblem ? QVariant(QStringLiteral("error")) : QVariant());
}
