#include "linetypes.h"

#include <algorithm>

namespace pendant {

QVector<InstructionGroup> LineTypes::groups() const {
    QVector<InstructionGroup> groups = titledGroups() + untitledGroups();
    groups.append({QString(), tr("Other"), shown(typesInNoGroup())});
    const auto isEmpty = [](const InstructionGroup& group) { return group.types.isEmpty(); };
    groups.erase(std::remove_if(groups.begin(), groups.end(), isEmpty), groups.end());
    return groups;
}

// A group that was given several titles has the first.
QVector<InstructionGroup> LineTypes::titledGroups() const {
    QVector<InstructionGroup> groups;
    QSet<QString> seen;
    for (const auto& group : m_registry.groups) {
        if (!seen.contains(group.first))
            groups.append(groupOf(group.first, group.second));
        seen.insert(group.first);
    }
    return groups;
}

QVector<InstructionGroup> LineTypes::untitledGroups() const {
    QStringList keys = m_registry.groupMembers.keys();
    for (const auto& group : m_registry.groups)
        keys.removeOne(group.first);
    keys.sort();
    QVector<InstructionGroup> groups;
    for (const QString& key : qAsConst(keys))
        groups.append(groupOf(key, QString()));
    return groups;
}

InstructionGroup LineTypes::groupOf(const QString& key, const QString& title) const {
    return {key, title.isEmpty() ? key : title, shown(m_registry.groupMembers.value(key))};
}

QStringList LineTypes::shown(const QStringList& types) const {
    QStringList shown;
    for (const QString& type : types) {
        if (!type.isEmpty() && !m_registry.hiddenTypes.contains(type))
            shown << type;
    }
    shown.removeDuplicates();
    return shown;
}

QStringList LineTypes::typesInNoGroup() const {
    QSet<QString> grouped;
    for (const QStringList& members : m_registry.groupMembers) {
        for (const QString& type : members)
            grouped.insert(type);
    }
    QStringList rest;
    for (const QString& type : m_types) {
        if (!grouped.contains(type))
            rest << type;
    }
    return rest;
}

} // namespace pendant
