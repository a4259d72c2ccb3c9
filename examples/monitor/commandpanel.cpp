#include "commandpanel.h"

#include "robotwatch.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

CommandPanel::CommandPanel(RobotWatch* watch)
    : QGroupBox(tr("Custom command")), m_watch(watch), m_group(new QLineEdit(QStringLiteral("gripper"))),
      m_key(new QLineEdit(QStringLiteral("force"))), m_value(new QLineEdit(QStringLiteral("40"))),
      m_answer(new QLabel(tr("The answer of the controller will stand here."))) {
    auto* send = new QPushButton(tr("Send"));
    send->setObjectName(QStringLiteral("send"));
    m_answer->setObjectName(QStringLiteral("answer"));
    m_answer->setWordWrap(true);
    auto* grid = new QGridLayout(this);
    grid->setSpacing(8);
    const QList<QPair<QString, QLineEdit*>> fields{{tr("Group"), m_group}, {tr("Key"), m_key}, {tr("Value"), m_value}};
    for (int i = 0; i < fields.size(); ++i) {
        auto* caption = new QLabel(fields.at(i).first);
        caption->setProperty("caption", true);
        grid->addWidget(caption, 0, i);
        grid->addWidget(fields.at(i).second, 1, i);
        grid->setColumnStretch(i, 1);
    }
    grid->addWidget(send, 1, fields.size());
    grid->addWidget(m_answer, 2, 0, 1, fields.size() + 1);
    connect(send, &QPushButton::clicked, this, &CommandPanel::send);
}

void CommandPanel::send() {
    const QString answer = m_watch->sendCustom(m_group->text(), m_key->text(), m_value->text());
    m_answer->setText(answer.isEmpty() ? tr("Nothing came back: the bus is down, or the service has nothing to say.")
                                       : tr("Answer: %1").arg(answer));
}
