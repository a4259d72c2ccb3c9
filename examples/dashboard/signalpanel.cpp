#include "signalpanel.h"

#include "groupedlist.h"
#include "livestate.h"
#include "reading.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

// Of getIOByType(): 1 to 6.
const int firstType = 1;
const int typeCount = 6;

} // namespace

SignalPanel::SignalPanel(LiveState* live) : m_on(new QLabel), m_list(new GroupedList(tr("Signal"), tr("Value"))) {
    m_on->setObjectName(QStringLiteral("outputsOn"));
    m_on->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("signals"));
    for (const QString& title : {tr("Digital inputs"), tr("Digital outputs"), tr("Group inputs"), tr("Group outputs"),
                                 tr("Analogue inputs"), tr("Analogue outputs")})
        m_list->addGroup(title);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_on);
    layout->addWidget(m_list, 1);
    connect(live, &LiveState::signalsChanged, this, &SignalPanel::readAgain);
}

void SignalPanel::readAgain() {
    const QHash<QString, QVariant> values = reading::signalValues();
    for (int group = 0; group < typeCount; ++group) {
        QList<GroupedList::Row> rows;
        for (const reading::Signal& signal : reading::signalsOfType(firstType + group, values))
            rows.append({signal.name, textOf(signal.value)});
        m_list->setRows(group, rows);
    }
    const QStringList on = reading::outputsOn(values);
    m_on->setText(on.isEmpty() ? tr("No output is on.")
                               : tr("Outputs that are on: %1").arg(on.join(QLatin1String(", "))));
}

// What stands for on and off is the pendant's affair.
QString SignalPanel::textOf(const QVariant& value) {
    if (!value.isValid())
        return tr("no value yet");
    if (value.userType() == QMetaType::Bool)
        return value.toBool() ? tr("on") : tr("off");
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? QString::number(number, 'g', 6) : value.toString();
}
