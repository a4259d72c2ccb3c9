#pragma once

#include "brisk/moduleobject.h"

#include <QList>
#include <QPointer>
#include <QString>

#include <initializer_list>
#include <memory>

namespace kite {

/// Variables and points of the robot project are records: children of a list, found by what stands in their child
/// "name". Null counts as a list without records, here and below.

/// The node's text; empty for null.
QString textOf(const brisk::ModuleObject* node);
/// The text of the child `key`; empty where there is none.
QString textOf(brisk::ModuleObject* node, const QString& key);
/// The node that is reached from `node` by children of these names; null where one is missing.
brisk::ModuleObject* below(brisk::ModuleObject* node, std::initializer_list<const char*> names);
/// "name"
QString nameKey();
QString nameOf(brisk::ModuleObject* record);

/// The first record of that name; null where there is none.
brisk::ModuleObject* findRecord(brisk::ModuleObject* list, const QString& name,
                                Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);
/// Every record of that name, in order.
QList<QPointer<brisk::ModuleObject>> findRecords(brisk::ModuleObject* list, const QString& name,
                                                 Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);

/// A node in no tree, named as the next record of `list`.
std::unique_ptr<brisk::ModuleObject> newRecord(brisk::ModuleObject* list);
/// Makes `record` a copy of the template of `list`, the node "default" beside it.
void copyTemplate(brisk::ModuleObject* list, brisk::ModuleObject* record);
/// Puts `record` at the end of `list`, and announces it. A record that the list refuses is deleted.
void appendRecord(QObject* sender, brisk::ModuleObject* list, std::unique_ptr<brisk::ModuleObject> record);

} // namespace kite
