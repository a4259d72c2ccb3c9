#include "brisk/nodesbykey.h"

namespace brisk {
namespace standin {

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
    const QPointer<ModuleObject> emptied(node(key));
    emptied->clear(nullptr, false, true);
    if (emptied)
        emptied->importFromJson(nullptr, QJsonValue(), false, false, false); // takes the mark as a list away
    // What listens to a child that goes may delete the node.
    return emptied ? emptied.data() : node(key);
}

} // namespace standin
} // namespace brisk
