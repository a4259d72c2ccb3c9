#include "keptpanel.h"

#include "keptvalues.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

KeptPanel::KeptPanel(KeptValues* values)
    : QGroupBox(tr("Kept values")), m_values(values), m_count(new QLabel), m_last(new QLabel),
      m_forget(new QPushButton(tr("Delete the count"))) {
    m_count->setObjectName(QStringLiteral("count"));
    m_last->setObjectName(QStringLiteral("last"));
    m_last->setWordWrap(true);
    m_forget->setObjectName(QStringLiteral("forget"));
    auto* row = new QHBoxLayout(this);
    row->setSpacing(16);
    row->addWidget(m_count);
    row->addWidget(m_last, 1);
    row->addWidget(m_forget);
    connect(m_forget, &QPushButton::clicked, this, &KeptPanel::forget);
    connect(values, &KeptValues::changed, this, &KeptPanel::readAgain);
    readAgain();
}

void KeptPanel::readAgain() {
    const int count = m_values->count();
    const QString last = m_values->lastTaught();
    m_forget->setEnabled(count >= 0);
    m_count->setText(count < 0 ? tr("Nothing counted yet") : tr("Taught: %1").arg(count));
    m_last->setText(last.isEmpty() ? tr("The controller remembers no point") : tr("Last: %1").arg(last));
}

void KeptPanel::forget() {
    const QString problem = m_values->forgetCount();
    emit told(problem, tr("The controller has deleted the variable; it leaves the list in a moment."));
}
