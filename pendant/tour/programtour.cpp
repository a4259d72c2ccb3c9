#include "programtour.h"

#include "instructions/builtins.h"
#include "pages/programpickermodel.h"
#include "press.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

namespace pendant {

namespace {

const int stepsUp = 2;
const QString filledIn = QStringLiteral("tour");

// Not the field within a spin box or a combo box.
bool isFieldOfItsOwn(const QLineEdit* field) {
    return !qobject_cast<QAbstractSpinBox*>(field->parentWidget()) && !qobject_cast<QComboBox*>(field->parentWidget());
}

} // namespace

ProgramTour::ProgramTour(ProgramPage* page) : m_page(page) {}

// Those that came since the page was shown last are not known to it yet.
QStringList ProgramTour::types() const {
    const LineTypes known;
    QStringList types;
    for (const InstructionGroup& group : known.groups()) {
        for (const QString& type : group.types) {
            if (!BuiltIns::types().contains(type) && !types.contains(type) && types.size() < mostTypes)
                types << type;
        }
    }
    return types;
}

void ProgramTour::walk(const Step& step) {
    const Program* program = m_page->store()->program();
    if (!m_page->store()->isOpen())
        return step(tr("No program is open."), QStringLiteral("none"));
    const QStringList lines = program->lines();
    // What was not saved before the tour is not saved by it.
    m_saves = !program->isModified();
    for (const QString& type : types())
        write(type, step);
    restore(lines);
}

void ProgramTour::write(const QString& type, const Step& step) {
    if (!choose(type))
        return step(tr("“%1” is not offered.").arg(type), type);
    step(tr("A new line of “%1”.").arg(type), type + QStringLiteral(" new"));
    if (!insert(type, step)) {
        press(QStringLiteral("rejectLine"));
        return;
    }
    edit(type, step);
    if (m_saves)
        save(type, step);
}

bool ProgramTour::choose(const QString& type) {
    auto* list = m_page->findChild<QListView*>(QStringLiteral("instructionTypes"));
    if (!press(QStringLiteral("insertLine")) || !list)
        return false;
    const QModelIndexList found =
        list->model()->match(list->model()->index(0, 0), ProgramPickerModel::TypeRole, type, 1, Qt::MatchExactly);
    if (found.isEmpty())
        return false;
    list->setCurrentIndex(found.first());
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(list, &down);
    settle();
    return true;
}

bool ProgramTour::insert(const QString& type, const Step& step) {
    const Program* program = m_page->store()->program();
    const int before = program->count();
    press(QStringLiteral("acceptLine"));
    if (program->count() == before) {
        step(tr("“%1” refuses the line as it is.").arg(type), type + QStringLiteral(" refused"));
        fillIn();
        press(QStringLiteral("acceptLine"));
    }
    if (program->count() == before) {
        step(tr("“%1” refuses the line with what the tour filled in.").arg(type), type + QStringLiteral(" again"));
        return false;
    }
    step(tr("Inserted a line of “%1”.").arg(type), type + QStringLiteral(" inserted"));
    return true;
}

void ProgramTour::edit(const QString& type, const Step& step) {
    const QStringList before = m_page->store()->program()->lines();
    changeOne();
    press(QStringLiteral("acceptLine"));
    if (m_page->store()->program()->lines() == before)
        return step(tr("The line of “%1” was applied as it was.").arg(type), type + QStringLiteral(" applied"));
    step(tr("Edited the line of “%1”.").arg(type), type + QStringLiteral(" edited"));
    press(QStringLiteral("undoStep"));
    step(tr("Took the edit back."), type + QStringLiteral(" undone"));
}

void ProgramTour::save(const QString& type, const Step& step) {
    press(QStringLiteral("saveProgram"));
    step(tr("Saved the program."), type + QStringLiteral(" saved"));
}

void ProgramTour::restore(const QStringList& lines) {
    Program* program = m_page->store()->program();
    while (program->lines() != lines && program->undoStack()->canUndo())
        program->undoStack()->undo();
    settle();
    if (m_saves)
        press(QStringLiteral("saveProgram"));
}

void ProgramTour::fillIn() {
    if (!content())
        return;
    for (QAbstractSpinBox* number : content()->findChildren<QAbstractSpinBox*>()) {
        if (number->isEnabled())
            number->stepBy(stepsUp);
    }
    for (QLineEdit* text : content()->findChildren<QLineEdit*>()) {
        if (text->isEnabled() && text->text().isEmpty() && isFieldOfItsOwn(text))
            text->setText(filledIn);
    }
    for (QComboBox* choice : content()->findChildren<QComboBox*>()) {
        if (choice->currentText().isEmpty())
            choice->count() > 0 ? choice->setCurrentIndex(0) : choice->setEditText(filledIn);
    }
    settle();
}

void ProgramTour::changeOne() {
    auto* number = content() ? content()->findChild<QAbstractSpinBox*>() : nullptr;
    auto* text = content() ? content()->findChild<QLineEdit*>() : nullptr;
    if (number)
        number->stepBy(stepsUp);
    else if (text)
        text->setText(text->text() + QLatin1Char(' ') + filledIn);
    settle();
}

bool ProgramTour::press(const QString& name) {
    auto* button = m_page->findChild<QAbstractButton*>(name);
    if (!button || !button->isVisible() || !button->isEnabled())
        return false;
    pendant::press(button);
    return true;
}

QWidget* ProgramTour::content() const {
    // One that was left stays, hidden, until control is back in the event loop.
    for (QWidget* content : m_page->findChildren<QWidget*>(QStringLiteral("instructionContent"))) {
        if (content->isVisible())
            return content;
    }
    return nullptr;
}

} // namespace pendant
