#include "logtimebar.h"

#include <QHBoxLayout>
#include <QLineEdit>

namespace pendant {

LogTimeBar::LogTimeBar(QWidget* parent)
    : QWidget(parent), m_time(new QDateTimeEdit(this)), m_go(new QPushButton(this)) {
    m_time->setObjectName(QStringLiteral("logTime"));
    m_time->setDisplayFormat(QStringLiteral("yyyy-MM-dd  HH:mm:ss"));
    m_time->setMinimumWidth(340);
    m_go->setObjectName(QStringLiteral("logGo"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(m_time);
    row->addWidget(m_go);
    const auto go = [this] { emit wanted(m_time->dateTime()); };
    connect(m_go, &QPushButton::clicked, this, go);
    connect(m_time->findChild<QLineEdit*>(), &QLineEdit::returnPressed, this, go);
}

void LogTimeBar::retranslate() {
    m_time->setAccessibleName(tr("Time to go to"));
    m_go->setText(tr("Go to this time"));
}

} // namespace pendant
