#include "controller/bustable.h"

using brisk::standin::contentOf;

namespace controller {

namespace {

// -1 for a name that is none of an item
int itemNumber(const QString& name) {
    bool isNumber = false;
    const int number = name.startsWith('#') ? name.mid(1).toInt(&isNumber) : -1;
    return isNumber ? number : -1;
}

// What has no children yet is a list as soon as it gets an item.
bool mayGet(const brisk::ModuleObject* parent, const QString& name) {
    if (parent && parent->cmobjCount() > 0 && !parent->isList())
        return true;
    const int number = itemNumber(name);
    return number < 0 || number == (parent ? parent->cmobjCount() : 0);
}

bool leadsPastTheEndOfAList(brisk::ModuleObject* value, const QString& subKey) {
    brisk::ModuleObject* parent = value;
    for (const QString& name : subKey.split('.')) {
        brisk::ModuleObject* child = parent ? parent->r(name) : nullptr;
        if (!child && !mayGet(parent, name))
            return true;
        parent = child;
    }
    return false;
}

// ModuleObject::set() alone makes the next item of a list.
brisk::ModuleObject* nodeMadeAt(brisk::ModuleObject* value, const QString& subKey) {
    if (!subKey.isEmpty() && leadsPastTheEndOfAList(value, subKey))
        return nullptr;
    if (brisk::ModuleObject* node = value->r(subKey, true))
        return node;
    value->set(nullptr, subKey, QVariant(), false);
    return value->r(subKey);
}

} // namespace

BusTable::BusTable(QObject* parent) : QObject(parent) {}

void BusTable::define(const QString& key, const QVariant& start) {
    defineContent(key, contentOf(start));
}

void BusTable::defineContent(const QString& key, const Content& start) {
    m_checks.remove(key);
    m_sources.remove(key);
    m_values.insert(key, copied(start));
    emit defined(key);
    tell(key);
}

void BusTable::defineComputed(const QString& key, const Source& source, const SetCheck& store) {
    m_values.remove(key);
    m_sources.insert(key, source);
    onSet(key, store);
    emit defined(key);
    tell(key);
}

void BusTable::onCommand(const QString& key, const CommandHandler& handler) {
    if (handler)
        m_commands.insert(key, handler);
    else
        m_commands.remove(key);
}

void BusTable::onSet(const QString& key, const SetCheck& check) {
    if (check)
        m_checks.insert(key, check);
    else
        m_checks.remove(key);
}

bool BusTable::write(const QString& key, const QString& subKey, const Content& value) {
    const Content whole = m_values.value(key);
    brisk::ModuleObject* node = whole ? nodeMadeAt(whole.get(), subKey) : nullptr;
    if (!node)
        return false;
    node->copyFrom(value.get());
    tell(key);
    return true;
}

bool BusTable::write(const QString& key, const QVariant& value) {
    return write(key, QString(), contentOf(value));
}

Content BusTable::value(const QString& key) const {
    if (const Source source = m_sources.value(key))
        return source();
    return contentOf(m_values.value(key).get());
}

bool BusTable::isWatched(const QString& key, const QObject* watcher) const {
    const auto watchers = m_watchers.constFind(key);
    return watchers != m_watchers.constEnd() && watchers->contains(watcher);
}

void BusTable::tell(const QString& key) {
    if (isWatched(key))
        emit delivered(key, value(key));
    emit written(key);
}

} // namespace controller
