#include "brisk/moduleobject.h"

#include "childlist.h"
#include "names.h"
#include "nodeguard.h"
#include "treewalk.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace brisk {

namespace {

bool fitsInt(double number) {
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max() &&
           std::trunc(number) == number;
}

// JSON knows one kind of number. A node that holds a double keeps to it; elsewhere a whole number is an int.
QVariant leafValue(const QJsonValue& json, const QVariant& present) {
    if (json.isNull() || json.isUndefined())
        return QVariant();
    if (!json.isDouble())
        return json.toVariant();
    const double number = json.toDouble();
    const bool wasDouble = present.userType() == QMetaType::Double;
    return !wasDouble && fitsInt(number) ? QVariant(int(number)) : QVariant(number);
}

} // namespace

QJsonValue ModuleObject::exportToJson(bool withChildren) const {
    if (withChildren && isList())
        return exportArray();
    if (withChildren && cmobjCount() > 0)
        return exportObject();
    return QJsonValue::fromVariant(value());
}

QJsonValue ModuleObject::exportArray() const {
    QJsonArray array;
    for (int i = 0; i < cmobjCount(); ++i)
        array.append(childAt(i)->exportToJson(true));
    return array;
}

QJsonValue ModuleObject::exportObject() const {
    QJsonObject object;
    for (int i = 0; i < cmobjCount(); ++i) {
        const ModuleObject* child = childAt(i);
        if (child->isList() || !child->isEmpty())
            object.insert(child->m_name, child->exportToJson(true));
    }
    return object;
}

void ModuleObject::importFromJson(QObject* sender, const QJsonValue& json, bool notify, bool create, bool prune) {
    const NodeGuard self(this);
    if (json.isArray())
        return importArray(sender, json.toArray(), notify, create, prune);
    if (json.isObject())
        importObject(sender, json.toObject(), notify, create, prune);
    else
        importLeaf(sender, json, notify, prune);
    // What was a list before and now has no items is none any more; a reply node holds one kind of answer after
    // another.
    if (self && (cmobjCount() == 0 || itemNumber(childAt(0)->m_name) < 0))
        setFlag(IsList, false);
}

void ModuleObject::importObject(QObject* sender, const QJsonObject& json, bool notify, bool create, bool prune) {
    const NodeGuard self(this);
    for (auto entry = json.constBegin(); self && entry != json.constEnd(); ++entry) {
        if (ModuleObject* child = TreeWalk::findChild(this, entry.key()))
            child->importFromJson(sender, entry.value(), notify, create, prune);
        else if (create)
            importNew(sender, entry.key(), entry.value(), notify);
    }
    if (self && prune)
        pruneChildren(sender, json, notify);
}

void ModuleObject::importArray(QObject* sender, const QJsonArray& json, bool notify, bool create, bool prune) {
    const NodeGuard self(this);
    setFlag(IsList, true);
    childList().renumber();
    for (int i = 0; self && i < json.size(); ++i) {
        if (i < cmobjCount())
            childAt(i)->importFromJson(sender, json.at(i), notify, create, prune);
        else if (create)
            importNew(sender, generateId(this), json.at(i), notify);
    }
    // An array keeps the place of an empty item, so what lies past its end is gone, empty or not.
    while (self && prune && cmobjCount() > json.size())
        removeAt(cmobjCount() - 1, sender, notify);
    if (self && notify)
        announceTouched(sender);
}

void ModuleObject::importLeaf(QObject* sender, const QJsonValue& json, bool notify, bool prune) {
    const NodeGuard self(this);
    setValue(sender, leafValue(json, m_value), notify);
    if (self && prune)
        pruneChildren(sender, QJsonObject(), notify);
}

// A new node is filled before it comes in: nobody can listen to it yet.
void ModuleObject::importNew(QObject* sender, const QString& name, const QJsonValue& json, bool notify) {
    auto* node = new ModuleObject(name);
    node->importFromJson(sender, json, false, true, false);
    adopt(cmobjCount(), node);
    if (notify)
        announceInserted(node, sender);
}

// An object leaves empty children out, so one that it lacks may be there all the same.
void ModuleObject::pruneChildren(QObject* sender, const QJsonObject& kept, bool notify) {
    const NodeGuard self(this);
    int next = cmobjCount();
    while (self && (next = qMin(next, cmobjCount()) - 1) >= 0) {
        const ModuleObject* child = childAt(next);
        if (!child->isEmpty() && !kept.contains(child->m_name))
            removeAt(next, sender, notify);
    }
}

} // namespace brisk
