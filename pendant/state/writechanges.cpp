#include "writechanges.h"

#include <QPointer>

using brisk::ModuleObject;

namespace pendant {

namespace {

// QVariant takes 1 for equal to true and to "1".
bool isSame(const QVariant& one, const QVariant& other) {
    return one.userType() == other.userType() && one == other;
}

QStringList namesBelow(const ModuleObject* node) {
    QStringList names;
    for (const ModuleObject* child : node->cmobjs())
        names << child->name();
    return names;
}

// By their names: who hears of one that goes may remove others.
void removeSurplus(const ModuleObject* source, ModuleObject* target) {
    const QPointer<ModuleObject> guard(target);
    for (const QString& name : namesBelow(target)) {
        if (guard && !source->hasCmobj(name))
            target->removeChild(target->c(name));
    }
}

void insertCopy(const ModuleObject* source, int index, ModuleObject* target) {
    auto* copy = new ModuleObject(source->name());
    copy->copyFrom(source);
    target->insertChild(index, copy);
}

// Children in the order of those of `source`; one that stands elsewhere is made anew.
void writeChildren(const ModuleObject* source, ModuleObject* target, QObject* sender) {
    const QPointer<ModuleObject> guard(target);
    removeSurplus(source, target);
    const QList<ModuleObject*> children = source->cmobjs();
    for (int i = 0; guard && i < children.size(); ++i) {
        ModuleObject* present = target->c(i);
        if (present && present->name() == children.at(i)->name()) {
            writeChanges(children.at(i), present, sender);
            continue;
        }
        if (ModuleObject* elsewhere = target->c(children.at(i)->name()))
            target->removeChild(elsewhere);
        if (guard)
            insertCopy(children.at(i), i, target);
    }
}

} // namespace

void writeChanges(const ModuleObject* source, ModuleObject* target, QObject* sender) {
    const ModuleObject nothing{QString()};
    const ModuleObject* from = source ? source : &nothing;
    const QPointer<ModuleObject> guard(target);
    if (from->isList() && !target->isList())
        target->setList(sender, {});
    if (guard)
        writeChildren(from, target, sender);
    if (guard && !isSame(from->value(), target->value()))
        target->setValue(sender, from->value());
}

} // namespace pendant
