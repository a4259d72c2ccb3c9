#include "placecard.h"

#include "places.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>

PlaceCard::PlaceCard(const QString& title, const QString& name)
    : QGroupBox(title), m_name(new QLineEdit(name)), m_position(new QLabel), m_verdict(new QLabel) {
    auto* teach = new QPushButton(tr("Teach here"));
    auto* go = new QPushButton(tr("Go there"));
    m_name->setObjectName(name + QStringLiteral("Name"));
    m_position->setObjectName(name + QStringLiteral("Position"));
    m_verdict->setObjectName(name + QStringLiteral("Verdict"));
    m_verdict->setWordWrap(true);
    m_verdict->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    teach->setObjectName(name + QStringLiteral("Teach"));
    go->setObjectName(name + QStringLiteral("Go"));
    auto* grid = new QGridLayout(this);
    grid->setSpacing(8);
    grid->setColumnStretch(0, 1);
    grid->addWidget(m_name, 0, 0);
    grid->addWidget(teach, 0, 1);
    grid->addWidget(go, 0, 2);
    grid->addWidget(m_position, 1, 0, 1, 3);
    grid->addWidget(m_verdict, 2, 0, 1, 3);
    grid->setRowStretch(2, 1);
    connect(m_name, &QLineEdit::textChanged, this, &PlaceCard::readAgain);
    connect(teach, &QPushButton::clicked, this, &PlaceCard::teachPressed);
    connect(go, &QPushButton::clicked, this, &PlaceCard::goPressed);
    readAgain();
}

QString PlaceCard::name() const {
    return m_name->text().trimmed();
}

void PlaceCard::readAgain() {
    const QString position = Places::text(name());
    const QString reason = Places::whyNotTo(name());
    m_position->setText(position.isEmpty() ? tr("no pose") : position);
    m_verdict->setText(reason.isEmpty() ? tr("The robot can be sent there.") : reason);
    m_verdict->setProperty("state", reason.isEmpty() ? QStringLiteral("good") : QStringLiteral("warning"));
    m_verdict->style()->unpolish(m_verdict);
    m_verdict->style()->polish(m_verdict);
}
