#include "nodesbykey.h"

namespace brisk {

NodesByKey::~NodesByKey() {
    for (const QPointer<ModuleObject>& node : qAsConst(m_nodes))
        delete node;
}

ModuleObject* NodesByKey::node(const QString& key) {
    QPointer<ModuleObject>& node = m_nodes[key];
    if (!node)
        node = new ModuleObject(key);
    return node;
}

ModuleObject* NodesByKey::emptied(const QString& key) {
    ModuleObject* emptied = node(key);
    emptied->clear(nullptr, false, true);
    emptied->importFromJson(nullptr, QJsonValue(), false, false, false); // takes the mark as a list away
    return emptied;
}

} // namespace brisk
