#include "treewalk.h"

#include "childlist.h"
#include "names.h"
#include "nodeguard.h"
#include "pathreader.h"

namespace brisk {

namespace {

bool mayMake(const ModuleObject* node, QStringView name, bool asNext) {
    const int number = node->isList() ? itemNumber(name) : -1;
    return number < 0 || (asNext && number == node->cmobjCount());
}

} // namespace

ModuleObject* TreeWalk::find(ModuleObject* node, const QString& path) {
    PathReader part(path);
    while (node && part.next())
        node = node->m_children ? node->m_children->find(part.name()) : nullptr;
    return node;
}

ModuleObject* TreeWalk::findChild(const ModuleObject* node, const QString& name) {
    return node->m_children ? node->m_children->find(name) : nullptr;
}

ModuleObject* TreeWalk::findOrMake(ModuleObject* node, const QString& path, const Making& making) {
    PathReader part(path);
    while (part.next()) {
        ModuleObject* child = node->m_children ? node->m_children->find(part.name()) : nullptr;
        if (!child)
            return make(node, part, making);
        node = child;
    }
    return node;
}

ModuleObject* TreeWalk::findOrMakeChild(ModuleObject* node, const QString& name, const Making& making) {
    if (ModuleObject* child = findChild(node, name))
        return child;
    if (!mayMake(node, name, making.items == Items::NextAsLastPart))
        return nullptr;
    auto* child = new ModuleObject(name);
    return insertNew(node, child, child, making);
}

ModuleObject* TreeWalk::make(ModuleObject* node, PathReader& rest, const Making& making) {
    if (!mayMake(node, rest.name(), rest.atEnd() && making.items == Items::NextAsLastPart))
        return nullptr;
    auto* top = new ModuleObject(rest.name().toString());
    ModuleObject* leaf = top;
    while (rest.next()) {
        auto* next = new ModuleObject(rest.name().toString());
        leaf->adopt(0, next);
        leaf = next;
    }
    return insertNew(node, top, leaf, making);
}

ModuleObject* TreeWalk::insertNew(ModuleObject* node, ModuleObject* top, ModuleObject* leaf, const Making& making) {
    node->adopt(node->cmobjCount(), top);
    const NodeGuard made(leaf);
    if (making.notify)
        node->announceInserted(top, making.sender);
    return made ? leaf : nullptr;
}

} // namespace brisk
