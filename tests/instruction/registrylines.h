#pragma once

#include "helm/vexmanager.h"

#include <QStringList>

/// What stands in the host's registry of instructions, a line an entry, lists in their order and hashes sorted:
/// "type A", "group G|Title", "member G|A", "no member of G", "pattern c_A|^A$", "insert widget A", ...
inline QStringList registryLines() {
    const helm::VexManager& registry = *helm::VexManager::getVexManager();
    QStringList lists;
    for (const QString& type : registry.typeKeys)
        lists << "type " + type;
    for (const auto& group : registry.groups)
        lists << "group " + group.first + '|' + group.second;
    QStringList groups = registry.groupMembers.keys();
    groups.sort();
    for (const QString& group : groups) {
        if (registry.groupMembers.value(group).isEmpty())
            lists << "no member of " + group;
        for (const QString& type : registry.groupMembers.value(group))
            lists << "member " + group + '|' + type;
    }
    QStringList hashes;
    const auto add = [&hashes](const QString& word, const QHash<QString, QString>& hash) {
        for (auto it = hash.begin(); it != hash.end(); ++it)
            hashes << word + ' ' + it.key() + '|' + it.value();
    };
    add("description", registry.descriptions);
    add("default", registry.defaultTexts);
    add("pattern", registry.patterns);
    add("skeleton", registry.skeletons);
    add("icon", registry.icons);
    add("title", registry.titles);
    for (const QString& type : registry.hiddenTypes)
        hashes << "hidden " + type;
    for (const QString& type : registry.propertyWidgets.keys())
        hashes << "property widget " + type;
    for (const QString& type : registry.insertWidgets.keys())
        hashes << "insert widget " + type;
    for (const QVariant& extra : registry.extras)
        hashes << "extra " + extra.toString();
    hashes.sort();
    return lists + hashes;
}

inline void emptyRegistry() {
    *helm::VexManager::getVexManager() = helm::VexManager();
}
