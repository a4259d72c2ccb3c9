#pragma once

#include "links.h"

#include "brisk/modulemanager.h"
#include "brisk/traffic.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using brisk::ModuleObject;

inline QString compact(const QJsonValue& json) {
    const QString array = QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

/// A list that writes down what it is asked to remove, and can refuse records.
class SpyList : public ModuleObject {
    Q_OBJECT

public:
    using ModuleObject::ModuleObject;
    bool refuses = false;
    /// "#0.name", or "null".
    QStringList asked;

    bool insertChild(int index, ModuleObject* child, bool notify) override {
        return !refuses && ModuleObject::insertChild(index, child, notify);
    }
    bool removeChild(ModuleObject* child, bool notify) override {
        asked << (child ? child->key().section("_list.", 1) + (notify ? "" : " quietly") : QString("null"));
        return ModuleObject::removeChild(child, notify);
    }
};

/// What each case of a test of variables and points begins with: an open project without records, whose lists are
/// spied on, and a pendant of version 3.1.0.
class ProjectTest : public LinksTest {
    Q_OBJECT

protected:
    static ModuleObject* project() { return m("orca.project"); }
    static SpyList* variables() { return static_cast<SpyList*>(project()->r("var._list")); }
    static SpyList* points() { return static_cast<SpyList*>(project()->r("point._list")); }

    static ModuleObject* add(ModuleObject* list, const QJsonObject& json) {
        auto* record = new ModuleObject(ModuleObject::generateId(list));
        record->importFromJson(nullptr, json, false, true, false);
        list->ModuleObject::insertChild(-1, record);
        return record;
    }
    static void add(ModuleObject* list, const QStringList& names) {
        for (const QString& name : names)
            add(list, QJsonObject{{"name", name}});
    }
    static QStringList names(ModuleObject* list) {
        QStringList names;
        for (ModuleObject* record : list->cmobjs())
            names << record->name() + "=" + (record->c("name") ? record->c("name")->getString() : "-");
        return names;
    }
    /// The names of the direct children.
    static QStringList keys(ModuleObject* node) {
        QStringList keys;
        for (ModuleObject* child : node->cmobjs())
            keys << child->name();
        return keys;
    }

    /// Writes down from now on, in order: what happens in the project, as "var.built false kite" (key, own value,
    /// sender), and what is sent, as "execute project.variable nobody".
    void follow() {
        const auto by = [](const QObject* sender) {
            return !sender ? "nobody" : sender == kiteInterface() ? "kite" : "other";
        };
        connect(project(), &ModuleObject::touched, &*m_context, [this, by](const ModuleObject* node, QObject* sender) {
            m_events << QStringList{node->key().mid(13), compact(node->exportToJson(false)), by(sender)}.join(" ");
        });
        connect(m("orca.project.cur_project"), &ModuleObject::changed, &*m_context, [this] { m_events << "reload"; });
        connect(brisk::standin::Traffic::instance(), &brisk::standin::Traffic::recorded, &*m_context,
                [this](const brisk::standin::TrafficEntry& entry) {
                    const QString sender = entry.sender.isEmpty() ? "nobody" : entry.sender;
                    if (entry.direction == brisk::standin::TrafficEntry::Direction::Out)
                        m_events << QStringList{entry.kind, entry.key, sender}.join(" ");
                });
    }
    const QStringList& events() const { return m_events; }
    /// Ends with the case.
    QObject* context() { return &*m_context; }

    void beginProject() {
        begin();
        m("helm.r.version")->setValue(nullptr, "3.1.0");
        m("orca.project.cur_project")->setValue(nullptr, "cell");
        for (const char* part : {"var", "point"}) {
            auto* list = new SpyList("_list");
            ModuleObject::generateId(list);
            list->clear(nullptr, false, false);
            m(mName("orca.project", part))->ModuleObject::insertChild(-1, list);
        }
        m_context.reset(new QObject);
        m_events.clear();
    }
    void endProject() {
        m_context.reset();
        m("orca")->clear(nullptr, false, true);
        m("helm")->clear(nullptr, false, true);
        end();
    }

private slots:
    void init() { beginProject(); }
    void cleanup() { endProject(); }

private:
    QScopedPointer<QObject> m_context;
    QStringList m_events;
};
