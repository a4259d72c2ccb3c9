#include "programcontent.h"

#include "plugins/report.h"
#include "plugins/thrown.h"

#include <QVBoxLayout>

using helm::BaseContentWidget;

namespace pendant {

ProgramContent::ProgramContent(const QString& type, QWidget* parent) : QWidget(parent), m_type(type) {
    setObjectName(QStringLiteral("instructionContent"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
}

bool ProgramContent::open(const helm::WidgetCreator& creator) {
    BaseContentWidget* made = nullptr;
    QString thrown;
    if (!guard([&] { made = creator ? creator(this) : nullptr; }, &thrown))
        return false;
    if (!thrown.isEmpty())
        report(tr("Its creator threw: %1").arg(thrown));
    else if (!made)
        report(tr("Its creator made no widget."));
    else
        take(made);
    return isThere() && !m_isLeft;
}

void ProgramContent::take(BaseContentWidget* widget) {
    m_widget = widget;
    m_hadChildren = widget->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    layout()->addWidget(widget); // and becomes its parent, whatever the creator has chosen
    widget->show();
}

// A wrapper whose content has deleted itself would call what is no more.
bool ProgramContent::isThere() const {
    return m_widget && (!m_hadChildren || m_widget->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

bool ProgramContent::fillWith(const QString& line) {
    return call("FillWith", [&] { m_widget->FillWith(line); });
}

ProgramContent::Answer ProgramContent::checkInsert() {
    return ask("CheckInsert", &BaseContentWidget::CheckInsert);
}

ProgramContent::Answer ProgramContent::checkReplace() {
    return ask("CheckReplace", &BaseContentWidget::CheckReplace);
}

bool ProgramContent::toLine(QString* line) {
    QString made;
    if (!call("ToString", [&] { made = m_widget->ToString(); }))
        return false;
    *line = made;
    return true;
}

ProgramContent::Answer ProgramContent::ask(const char* name, bool (BaseContentWidget::*question)()) {
    bool answer = false;
    if (!call(name, [&] { answer = (m_widget->*question)(); }))
        return Answer::Failed;
    return answer ? Answer::Yes : Answer::No;
}

bool ProgramContent::call(const char* name, const std::function<void()>& body) {
    QString thrown;
    if (!isThere() || !guard(body, &thrown))
        return false;
    if (!thrown.isEmpty())
        report(tr("%1 threw: %2").arg(QLatin1String(name), thrown));
    else if (!isThere())
        report(tr("Its widget deleted itself in %1.").arg(QLatin1String(name)));
    return thrown.isEmpty() && isThere() && !m_isLeft;
}

// What is called may hold an event loop of its own, in which the line is left or the whole page goes: false when this
// object is no more.
bool ProgramContent::guard(const std::function<void()>& body, QString* thrown) {
    const QPointer<ProgramContent> living(this);
    ++m_calls;
    *thrown = thrownBy(body);
    if (!living)
        return false;
    --m_calls;
    if (m_isLeft)
        leave();
    return true;
}

void ProgramContent::leave() {
    m_isLeft = true;
    hide();
    if (parentWidget() && parentWidget()->layout())
        parentWidget()->layout()->removeWidget(this);
    if (m_calls == 0)
        deleteLater();
}

void ProgramContent::report(const QString& what) const {
    reportError(m_type, what);
}

} // namespace pendant
