#pragma once

#include "brisk/export.h"

#include <QJsonValue>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <array>
#include <memory>

class QJsonArray;
class QJsonObject;

namespace brisk {

class ChildList;

/// One node of the host's data tree: a name, a value of its own and children in order.
///
/// A node's own value and its children are independent of each other. Names are unique among siblings. A parent owns
/// its children and deletes them; `parent()` of QObject is not used. All calls belong on the user-interface thread.
///
/// Keys are dotted paths, split at "." and nowhere else: "[0][0][0]", "#0" and "toolpage,tool" are plain names.
///
/// A list is a node marked so by setList(), generateId(), the import of a JSON array or a first child named "#" and
/// digits. Items are named "#0", "#1", ...; the mark survives clear() and the removal of the last item, not the import
/// of anything but an array into a list without items. A look-up by name or path never makes an item of a list.
class BRISK_EXPORT ModuleObject : public QObject {
    Q_OBJECT

public:
    /// Makes a node and, where `parent` is given, appends it there. A parent that already holds the name leaves the
    /// node without a parent.
    explicit ModuleObject(const QString& name, ModuleObject* parent = nullptr);
    ~ModuleObject() override;

    QString name() const;
    /// Dotted path from the root, without the root's own (empty) name.
    QString key() const;
    /// The parent node, null for a root or a node that is not in a tree. The parent owns this node.
    ModuleObject* pmobj() const;

    /// The direct child of that name. With `create`, a missing one is made, save an item of a list; otherwise null.
    ModuleObject* c(const QString& name, bool create = false);
    /// The child at `index` (from 0). With `create`, a missing item is made where `index` is the child count.
    ModuleObject* c(int index, bool create = false);
    /// The same as c().
    ModuleObject* cmobj(const QString& name, bool create = false);
    ModuleObject* cmobj(int index, bool create = false);
    /// The node at a dotted path below this one. With `create`, what is missing is made, save items of a list;
    /// otherwise null. An empty path is this node.
    ModuleObject* r(const QString& path, bool create = false);
    /// The same as r().
    ModuleObject* rmobj(const QString& path, bool create = false);

    /// The children in order; with `recursive`, every node below this one, parents before children.
    QList<ModuleObject*> cmobjs(bool recursive = false) const;
    int cmobjCount() const;
    bool hasCmobj(const QString& name) const;
    bool isList() const;

    /// @name Typed readers of the node's own value
    /// The default comes back when there is no value or it does not convert.
    /// @{
    QString getString(const QString& fallback = QString()) const;
    int getInt(int fallback = 0) const;
    double getDouble(double fallback = 0.0) const;
    bool getBool(bool fallback = false) const;
    /// @}

    /// Sets the value of the node at the dotted path `key` below this one and makes what is missing. Of a list's items
    /// it makes the next alone, where the path ends with it: "list.#2" of two items. With any other missing item
    /// nothing happens. With `notify`, changed() tells of it with `sender`, also when the value is equal or invalid.
    void set(QObject* sender, const QString& key, const QVariant& value, bool notify = true);
    /// Makes this node a list of `values`: its children are replaced by items "#0", "#1", ... holding them.
    void setList(QObject* sender, const QVariantList& values, bool notify = true);
    /// Appends a child of that plain name (not a path) and returns it; where it exists, that one is returned.
    ModuleObject* append(QObject* sender, const QString& name);

    /// The node as JSON: a list as an array, also when empty; a node with children as an object; a leaf as its value;
    /// an empty node as Null, and an object leaves such children out. Without `withChildren`, the own value alone.
    QJsonValue exportToJson(bool withChildren) const;
    /// Takes the content of `json`: an object by name, an array by position (which renumbers the items and marks the
    /// node as a list), anything else as the own value.
    /// \param notify emit changed() for every leaf that is written
    /// \param create make children that are missing; without it they are passed over
    /// \param prune  remove children that `json` lacks, but never one that is merely empty
    void importFromJson(QObject* sender, const QJsonValue& json, bool notify, bool create, bool prune);

    /// The name for the next item of `list` and marks it as a list: "#" and the next free number, never the name of a
    /// living item. "#0" for a null list.
    static QString generateId(ModuleObject* list);

    /// Emits changed() with the present value, as new and as previous, and no sender.
    void trigger();
    /// Removes the children and, with `own`, the own value. The node and its mark as a list stay.
    void clear(QObject* sender, bool notify, bool own);
    /// Asks the host to follow the node on the bus; a plain tree node has nothing to follow and stays as it is.
    void watch(bool on, bool recursive);

    /// The node's own value; `fallback` when it has none.
    virtual QVariant value(const QVariant& fallback = QVariant()) const;
    /// Sets the node's own value and leaves its children alone.
    virtual void setValue(QObject* sender, const QVariant& value, bool notify = true);
    /// The direct child of that name, made when missing; null only for an item that a list does not have.
    virtual ModuleObject* child(const QString& name);
    /// Inserts `child` before the one at `index`, at the end for -1 or an index past it, and takes ownership.
    /// Returns false, and takes nothing, for null, for this node or an ancestor, for a child that has a parent and for
    /// a name that a sibling has.
    virtual bool insertChild(int index, ModuleObject* child, bool notify = true);
    /// Removes and deletes `child`. Returns false and does nothing when it is no child of this node.
    virtual bool removeChild(ModuleObject* child, bool notify = true);
    /// Replaces value and children by deep copies of those of `other`; the own name stays. Null clears the node.
    virtual void copyFrom(const ModuleObject* other);
    /// True when the node has neither a value nor children.
    virtual bool isEmpty() const;

signals:
    /// The own value was written, or announced by trigger().
    void changed(const QVariant& value, const QVariant& previous, QObject* sender);
    /// A child came in at `index`.
    void inserted(brisk::ModuleObject* child, int index);
    /// The child of that name went away. It is deleted when this is emitted, or being deleted when it was deleted from
    /// outside.
    void removed(const QString& name);
    /// clear() emptied the node.
    void cleared(QObject* sender);
    /// Something was written, inserted, removed or cleared at `node`, which is this node or lies below it. Calls
    /// without `notify` emit neither this nor any other signal.
    void touched(brisk::ModuleObject* node, QObject* sender);

protected:
    void connectNotify(const QMetaMethod& signal) override;
    void disconnectNotify(const QMetaMethod& signal) override;

private:
    Q_DISABLE_COPY(ModuleObject)
    friend class ChildList;
    friend class TreeWalk;
    enum Flag : quint8 {
        HearsChanged = 1,
        HearsInserted = 2,
        HearsRemoved = 4,
        HearsCleared = 8,
        HearsTouched = 16,
        IsList = 32,
        ListenersLeft = 64
    };

    struct Heard;
    static const std::array<Heard, 5>& hearable();
    void setFlag(Flag flag, bool on);
    bool hears(Flag flag);
    void updateListeners();

    ChildList& childList();
    ModuleObject* childAt(int index) const;
    bool isSelfOrAncestor(const ModuleObject* node) const;
    void adopt(int index, ModuleObject* child);
    void removeAt(int index, QObject* sender, bool notify);
    void deleteChildren();
    void copyChildrenTo(ModuleObject* target) const;
    void replaceChildren(QObject* sender, ModuleObject* source, bool notify);

    void announceChanged(const QVariant& previous, QObject* sender);
    void announceInserted(ModuleObject* child, QObject* sender);
    void announceRemoved(const QString& name, QObject* sender);
    void announceCleared(QObject* sender);
    void announceTouched(QObject* sender);

    QJsonValue exportArray() const;
    QJsonValue exportObject() const;
    void importObject(QObject* sender, const QJsonObject& json, bool notify, bool create, bool prune);
    void importArray(QObject* sender, const QJsonArray& json, bool notify, bool create, bool prune);
    void importLeaf(QObject* sender, const QJsonValue& json, bool notify, bool prune);
    void importNew(QObject* sender, const QString& name, const QJsonValue& json, bool notify);
    void pruneChildren(QObject* sender, const QJsonObject& kept, bool notify);

    QString m_name;
    QVariant m_value;
    ModuleObject* m_parent = nullptr;
    // Null for a leaf: most nodes are leaves, and there are hundreds of thousands.
    std::unique_ptr<ChildList> m_children;
    quint8 m_flags = 0;
};

} // namespace brisk
