#pragma once

#include "brisk/moduleobject.h"

namespace brisk {

class PathReader;

/// Finds and makes nodes at dotted paths.
class TreeWalk {
public:
    /// Whether a node may get a missing item of a list: stale keys ("list.#7.name" of an item that was removed) must
    /// not bring items back, while lists that are written item by item ("list.#0", "list.#1") must grow.
    enum class Items { Never, NextAsLastPart };

    struct Making {
        QObject* sender;
        Items items;
        bool notify;
    };

    static ModuleObject* find(ModuleObject* node, const QString& path);
    static ModuleObject* findChild(const ModuleObject* node, const QString& name);
    /// Null where the path leads to an item that the list does not have, or a slot deleted the new node at once.
    static ModuleObject* findOrMake(ModuleObject* node, const QString& path, const Making& making);
    static ModuleObject* findOrMakeChild(ModuleObject* node, const QString& name, const Making& making);

private:
    static ModuleObject* make(ModuleObject* node, PathReader& rest, const Making& making);
    static ModuleObject* insertNew(ModuleObject* node, ModuleObject* top, ModuleObject* leaf, const Making& making);
};

} // namespace brisk
