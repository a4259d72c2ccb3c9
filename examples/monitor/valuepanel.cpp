#include "valuepanel.h"

#include "robotwatch.h"

#include <QGridLayout>
#include <QPushButton>

ValuePanel::ValuePanel(RobotWatch* watch)
    : QGroupBox(tr("Values of the controller")), m_watch(watch), m_lamp(new QPushButton) {
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    const QList<RobotWatch::Value>& values = watch->values();
    for (int i = 0; i < values.size(); ++i) {
        m_rows.append(Row{new QLabel, new QLabel});
        m_rows.last().value->setObjectName(values.at(i).key);
        m_rows.last().value->setProperty("strong", true);
        m_rows.last().value->setWordWrap(true);
        m_rows.last().changedAt->setProperty("caption", true);
        grid->addWidget(new QLabel(values.at(i).key), i, 0);
        grid->addWidget(m_rows.last().value, i, 1);
        grid->addWidget(m_rows.last().changedAt, i, 2);
        display(i);
    }
    m_lamp->setObjectName(QStringLiteral("lamp"));
    grid->setRowStretch(values.size(), 1);
    grid->addWidget(m_lamp, values.size() + 1, 0, 1, 3, Qt::AlignLeft);
    connect(m_lamp, &QPushButton::clicked, this, &ValuePanel::switchLamp);
    connect(watch, &RobotWatch::valueChanged, this, &ValuePanel::display);
    connect(watch, &RobotWatch::linksChanged, this, [this] { m_lamp->setEnabled(m_watch->isConnected()); });
    m_lamp->setEnabled(watch->isConnected());
}

void ValuePanel::display(int index) {
    const RobotWatch::Value& value = m_watch->values().at(index);
    m_rows.at(index).value->setText(value.text.isEmpty() ? tr("no value yet") : value.text);
    m_rows.at(index).changedAt->setText(value.changedAt.toString(QStringLiteral("hh:mm:ss")));
    m_lamp->setText(m_watch->isLampOn() ? tr("Switch the lamp off") : tr("Switch the lamp on"));
}

// The value that is shown comes back from the controller.
void ValuePanel::switchLamp() {
    m_watch->switchLamp(!m_watch->isLampOn());
}
