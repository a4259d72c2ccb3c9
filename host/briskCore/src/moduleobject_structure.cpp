#include "brisk/moduleobject.h"

#include "childlist.h"
#include "names.h"
#include "nodeguard.h"
#include "treewalk.h"

namespace brisk {

QString ModuleObject::generateId(ModuleObject* list) {
    if (!list)
        return itemName(0);
    list->setFlag(IsList, true);
    ChildList& children = list->childList();
    int number = children.nextNumber();
    while (list->hasCmobj(itemName(number)))
        ++number;
    children.setNextNumber(number + 1);
    return itemName(number);
}

ModuleObject* ModuleObject::append(QObject* sender, const QString& name) {
    if (ModuleObject* present = TreeWalk::findChild(this, name))
        return present;
    auto* node = new ModuleObject(name);
    adopt(cmobjCount(), node);
    const NodeGuard made(node);
    announceInserted(node, sender);
    return made ? node : nullptr;
}

bool ModuleObject::insertChild(int index, ModuleObject* child, bool notify) {
    if (!child || child->m_parent || isSelfOrAncestor(child) || hasCmobj(child->m_name))
        return false;
    const int count = cmobjCount();
    adopt(index < 0 ? count : qMin(index, count), child);
    if (notify)
        announceInserted(child, nullptr);
    return true;
}

bool ModuleObject::removeChild(ModuleObject* child, bool notify) {
    const int index = m_children ? m_children->indexOf(child) : -1;
    if (index < 0)
        return false;
    removeAt(index, nullptr, notify);
    return true;
}

void ModuleObject::removeAt(int index, QObject* sender, bool notify) {
    ModuleObject* child = childAt(index);
    const QString name = child->m_name;
    m_children->removeAt(index);
    child->m_parent = nullptr;
    const NodeGuard self(this);
    delete child;
    if (self && notify)
        announceRemoved(name, sender);
}

void ModuleObject::clear(QObject* sender, bool notify, bool own) {
    const NodeGuard self(this);
    deleteChildren();
    if (!self)
        return;
    if (own)
        m_value = QVariant();
    if (notify)
        announceCleared(sender);
}

void ModuleObject::setList(QObject* sender, const QVariantList& values, bool notify) {
    ModuleObject items{QString()};
    items.childList().reserve(values.size());
    for (const QVariant& value : values) {
        auto* item = new ModuleObject(itemName(items.cmobjCount()));
        item->m_value = value;
        items.adopt(items.cmobjCount(), item);
    }
    setFlag(IsList, true);
    replaceChildren(sender, &items, notify);
}

void ModuleObject::copyFrom(const ModuleObject* other) {
    if (other == this)
        return;
    if (!other)
        return clear(nullptr, true, true);
    // The copy comes first: `other` may be one of the children that go.
    ModuleObject copy{QString()};
    other->copyChildrenTo(&copy);
    const QVariant value = other->value();
    setFlag(IsList, other->isList());
    const NodeGuard self(this);
    replaceChildren(nullptr, &copy, true);
    if (self)
        setValue(nullptr, value);
}

void ModuleObject::copyChildrenTo(ModuleObject* target) const {
    target->m_flags = quint8(target->m_flags | (m_flags & IsList));
    const int count = cmobjCount();
    if (count > 0)
        target->childList().reserve(count);
    for (int i = 0; i < count; ++i) {
        const ModuleObject* child = childAt(i);
        auto* copy = new ModuleObject(child->m_name);
        copy->m_value = child->m_value;
        child->copyChildrenTo(copy);
        target->adopt(i, copy);
    }
}

// Takes the children of `source`, a node in no tree, in place of its own.
void ModuleObject::replaceChildren(QObject* sender, ModuleObject* source, bool notify) {
    const NodeGuard self(this);
    const bool hadChildren = cmobjCount() > 0;
    deleteChildren();
    if (!self)
        return;
    m_children = std::move(source->m_children);
    for (int i = 0; i < cmobjCount(); ++i)
        childAt(i)->m_parent = this;
    if (!notify)
        return;
    if (hadChildren && hears(HearsCleared))
        emit cleared(sender);
    for (int i = 0; self && hears(HearsInserted) && i < cmobjCount(); ++i)
        emit inserted(childAt(i), i);
    if (self)
        announceTouched(sender);
}

void ModuleObject::adopt(int index, ModuleObject* child) {
    ChildList& list = childList();
    if (list.isEmpty() && itemNumber(child->m_name) >= 0)
        setFlag(IsList, true);
    list.insert(index, child);
    child->m_parent = this;
}

// One by one from the end, and each is out before it goes: a slot of its destroyed() may delete a sibling.
void ModuleObject::deleteChildren() {
    const NodeGuard self(this);
    while (self && m_children && !m_children->isEmpty()) {
        ModuleObject* child = m_children->takeLast();
        child->m_parent = nullptr;
        delete child;
    }
    if (self)
        m_children.reset();
}

} // namespace brisk
