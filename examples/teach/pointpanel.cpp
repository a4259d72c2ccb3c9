#include "pointpanel.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const double liftMm = 10.0;

} // namespace

PointPanel::PointPanel(Teacher* teacher)
    : QGroupBox(tr("Points")), m_teacher(teacher), m_list(new QTreeWidget), m_name(new QLineEdit(QStringLiteral("P1"))),
      m_answer(new QLabel) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addWidget(makeList(), 1);
    layout->addWidget(makeActions());
    m_answer->setObjectName(QStringLiteral("answer"));
    m_answer->setWordWrap(true);
    layout->addWidget(m_answer);
    connect(teacher, &Teacher::changed, this, &PointPanel::readAgain);
    say(QString(), tr("Jog the robot to a place, give it a name and teach it."));
    readAgain();
}

QWidget* PointPanel::makeList() {
    m_list->setObjectName(QStringLiteral("points"));
    m_list->setHeaderLabels({tr("Name"), tr("Position")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setSelectionMode(QAbstractItemView::MultiSelection);
    m_list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &PointPanel::enableActions);
    return m_list;
}

QWidget* PointPanel::makeActions() {
    auto* actions = new QWidget;
    auto* row = new QHBoxLayout(actions);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    m_name->setObjectName(QStringLiteral("pointName"));
    auto* joints = addButton(QStringLiteral("teachJoints"), tr("Teach joints"));
    auto* pose = addButton(QStringLiteral("teachPose"), tr("Teach pose"));
    m_lift = addButton(QStringLiteral("lift"), tr("Lift 10 mm"));
    m_compare = addButton(QStringLiteral("compare"), tr("Compare"));
    row->addWidget(m_name, 1);
    for (QPushButton* button : {joints, pose, m_lift, m_compare})
        row->addWidget(button);
    connect(joints, &QPushButton::clicked, this, [this] { teach(Teacher::Kind::Joints); });
    connect(pose, &QPushButton::clicked, this, [this] { teach(Teacher::Kind::Pose); });
    connect(m_lift, &QPushButton::clicked, this, &PointPanel::lift);
    connect(m_compare, &QPushButton::clicked, this, &PointPanel::compare);
    return actions;
}

QPushButton* PointPanel::addButton(const QString& name, const QString& text) {
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    return button;
}

QStringList PointPanel::chosen() const {
    QStringList names;
    for (const QTreeWidgetItem* item : m_list->selectedItems())
        names << item->text(0);
    return names;
}

void PointPanel::readAgain() {
    const QStringList before = chosen();
    m_list->clear();
    for (const QString& name : m_teacher->names()) {
        auto* item = new QTreeWidgetItem(m_list, {name, m_teacher->positionText(name)});
        item->setSelected(before.contains(name));
    }
    enableActions();
}

void PointPanel::enableActions() {
    m_lift->setEnabled(chosen().size() == 1);
    m_compare->setEnabled(chosen().size() == 2);
}

void PointPanel::teach(Teacher::Kind kind) {
    const QString name = m_name->text().trimmed();
    say(m_teacher->teach(name, kind), tr("“%1” is taught.").arg(name));
}

void PointPanel::lift() {
    const QString name = chosen().value(0);
    say(m_teacher->lift(name, liftMm), tr("“%1” stands %2 mm higher.").arg(name, QString::number(liftMm)));
}

void PointPanel::compare() {
    QString result;
    const QString problem = m_teacher->compare(chosen().value(0), chosen().value(1), &result);
    say(problem, result);
}

void PointPanel::say(const QString& problem, const QString& otherwise) {
    m_answer->setText(problem.isEmpty() ? otherwise : problem);
    m_answer->setProperty("state", problem.isEmpty() ? QVariant() : QVariant(QStringLiteral("error")));
    m_answer->style()->unpolish(m_answer);
    m_answer->style()->polish(m_answer);
}
