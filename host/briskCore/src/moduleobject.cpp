#include "brisk/moduleobject.h"

#include "childlist.h"
#include "names.h"
#include "nodeguard.h"
#include "treewalk.h"

namespace brisk {

namespace {

constexpr TreeWalk::Making makingOnLookUp{nullptr, TreeWalk::Items::Never, true};

void appendBelow(const ModuleObject* node, QList<ModuleObject*>& nodes) {
    for (ModuleObject* child : node->cmobjs()) {
        nodes.append(child);
        appendBelow(child, nodes);
    }
}

} // namespace

ModuleObject::ModuleObject(const QString& name, ModuleObject* parent) : m_name(sharedName(name)) {
    if (parent)
        parent->insertChild(-1, this);
}

ModuleObject::~ModuleObject() {
    NodeGuard::forget(this);
    deleteChildren();
    setFlag(HearsTouched, false);
    if (!m_parent)
        return;
    ModuleObject* parent = m_parent;
    m_parent = nullptr;
    parent->m_children->removeAt(parent->m_children->indexOf(this));
    parent->announceRemoved(m_name, nullptr);
}

QString ModuleObject::name() const {
    return m_name;
}

QString ModuleObject::key() const {
    QString key;
    for (const ModuleObject* node = this; node->m_parent; node = node->m_parent)
        key = node == this ? node->m_name : node->m_name + QLatin1Char('.') + key;
    return key;
}

ModuleObject* ModuleObject::pmobj() const {
    return m_parent;
}

ModuleObject* ModuleObject::c(const QString& name, bool create) {
    return create ? TreeWalk::findOrMakeChild(this, name, makingOnLookUp) : TreeWalk::findChild(this, name);
}

ModuleObject* ModuleObject::c(int index, bool create) {
    const int count = cmobjCount();
    if (index >= 0 && index < count)
        return childAt(index);
    const bool canHaveItems = isList() || count == 0;
    return create && index == count && canHaveItems ? append(nullptr, generateId(this)) : nullptr;
}

ModuleObject* ModuleObject::cmobj(const QString& name, bool create) {
    return c(name, create);
}

ModuleObject* ModuleObject::cmobj(int index, bool create) {
    return c(index, create);
}

ModuleObject* ModuleObject::r(const QString& path, bool create) {
    return create ? TreeWalk::findOrMake(this, path, makingOnLookUp) : TreeWalk::find(this, path);
}

ModuleObject* ModuleObject::rmobj(const QString& path, bool create) {
    return r(path, create);
}

ModuleObject* ModuleObject::child(const QString& name) {
    return c(name, true);
}

QList<ModuleObject*> ModuleObject::cmobjs(bool recursive) const {
    QList<ModuleObject*> nodes;
    if (recursive) {
        appendBelow(this, nodes);
        return nodes;
    }
    const int count = cmobjCount();
    nodes.reserve(count);
    for (int i = 0; i < count; ++i)
        nodes.append(childAt(i));
    return nodes;
}

int ModuleObject::cmobjCount() const {
    return m_children ? m_children->count() : 0;
}

bool ModuleObject::hasCmobj(const QString& name) const {
    return TreeWalk::findChild(this, name);
}

bool ModuleObject::isList() const {
    return m_flags & IsList;
}

bool ModuleObject::isEmpty() const {
    return !m_value.isValid() && cmobjCount() == 0;
}

void ModuleObject::watch(bool on, bool recursive) {
    Q_UNUSED(on)
    Q_UNUSED(recursive)
}

ModuleObject* ModuleObject::childAt(int index) const {
    return m_children->at(index);
}

ChildList& ModuleObject::childList() {
    if (!m_children)
        m_children.reset(new ChildList);
    return *m_children;
}

bool ModuleObject::isSelfOrAncestor(const ModuleObject* node) const {
    for (const ModuleObject* at = this; at; at = at->m_parent) {
        if (at == node)
            return true;
    }
    return false;
}

} // namespace brisk
