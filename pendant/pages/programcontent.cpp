#include "programcontent.h"

#include "plugins/report.h"
#include "plugins/thrown.h"

#include <QApplication>
#include <QEvent>
#include <QMetaProperty>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>

using helm::BaseContentWidget;

namespace pendant {

namespace {

const int lookAgainMs = 50;

QList<QWidget*> childrenOf(const QWidget* widget) {
    QList<QWidget*> children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    // Menus and dialogs are no part of what is on the page.
    children.erase(std::remove_if(children.begin(), children.end(), [](QWidget* child) { return child->isWindow(); }),
                   children.end());
    return children;
}

bool isInput(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::MouseButtonRelease ||
           type == QEvent::Wheel || type == QEvent::InputMethod || type == QEvent::Drop;
}

} // namespace

ProgramContent::ProgramContent(const QString& type, QWidget* parent)
    : QWidget(parent), m_type(type), m_loopLevel(QThread::currentThread()->loopLevel()) {
    setObjectName(QStringLiteral("instructionContent"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    m_compareTimer.setSingleShot(true);
    m_compareTimer.setInterval(0);
    connect(&m_compareTimer, &QTimer::timeout, this, &ProgramContent::compare);
    // What a widget does with an event is its own affair, and it may make fields at any time.
    qApp->installEventFilter(this);
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
    rememberChildren();
    layout()->addWidget(widget); // and becomes its parent, whatever the creator has chosen
    widget->show();
}

void ProgramContent::rememberChildren() {
    m_children.clear();
    for (QWidget* child : childrenOf(m_widget))
        m_children << child;
    m_filled = values();
}

// A wrapper whose content has deleted itself would call what is no more. One that has made new fields for old ones has
// not, and neither has one whose content went into another parent.
bool ProgramContent::isThere() const {
    const auto lives = [](const QPointer<QWidget>& child) { return !child.isNull(); };
    return m_widget && (m_children.isEmpty() || std::any_of(m_children.begin(), m_children.end(), lives) ||
                        !childrenOf(m_widget).isEmpty());
}

bool ProgramContent::fillWith(const QString& line) {
    const bool isFilled = call("FillWith", [&] { m_widget->FillWith(line); });
    if (isFilled)
        m_filled = values();
    return isFilled;
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
    if (m_calls > 0)
        return;
    if (isInNestedLoop())
        QTimer::singleShot(lookAgainMs, this, &ProgramContent::leave);
    else
        deleteLater();
}

// Its dialogs stand on its stack, and it must not go beneath them.
bool ProgramContent::isInNestedLoop() const {
    return QThread::currentThread()->loopLevel() > m_loopLevel || QApplication::activeModalWidget();
}

bool ProgramContent::event(QEvent* event) {
    m_loopLevel = std::min(m_loopLevel, QThread::currentThread()->loopLevel());
    return QWidget::event(event);
}

bool ProgramContent::eventFilter(QObject* watched, QEvent* event) {
    if (isInput(event->type()) && !m_isLeft && watched->isWidgetType() && isAncestorOf(static_cast<QWidget*>(watched)))
        m_compareTimer.start();
    return QWidget::eventFilter(watched, event);
}

// By what a field says is its value: the text, the number, whether it is checked.
ProgramContent::Values ProgramContent::values() const {
    Values values;
    for (QWidget* field : findChildren<QWidget*>()) {
        const QMetaProperty value = field->metaObject()->userProperty();
        if (value.isValid())
            values.insert(field, value.read(field));
    }
    return values;
}

void ProgramContent::compare() {
    const bool isEditedNow = !m_isLeft && values() != m_filled;
    if (isEditedNow == m_isEdited)
        return;
    m_isEdited = isEditedNow;
    emit edited(m_isEdited);
}

void ProgramContent::setApplied() {
    m_filled = values();
    compare();
}

void ProgramContent::reportGone() const {
    report(tr("Its widget deleted itself."));
}

void ProgramContent::report(const QString& what) const {
    reportError(m_type, what);
}

} // namespace pendant
