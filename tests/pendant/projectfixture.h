#pragma once

#include "brisk/modulemanager.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"
#include "pendanttest/fakelink.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

/// The far side of both links, which holds a project, and an empty tree.
struct FarSide {
    FarSide() {
        clearTree();
        bus.reply = [this](const brisk::standin::Message& message) { return answer(message); };
    }
    ~FarSide() { clearTree(); }

    static void clearTree() { m("orca")->clear(nullptr, true, true); }
    static void settle() { QTest::qWait(1); }

    brisk::standin::Content answer(const brisk::standin::Message& message) const {
        return answers.contains(message.key) ? answers.value(message.key) : brisk::standin::refusal("unknown");
    }
    void setAnswer(const QString& key, const QJsonValue& json) {
        answers[key] = brisk::standin::contentOf(QVariant(json));
    }

    /// The far side holds a project with variables of these names, in order, and points of those.
    void setProject(const QStringList& variables, const QStringList& points = {}) {
        const QJsonObject var{{"built", true}, {"_list", records(variables)}};
        const QJsonObject point{{"default", QJsonObject{{"name", "p"}}}, {"_list", records(points)}};
        setAnswer(
            "mirror.project",
            QJsonObject{
                {"cur_project", "cell"}, {"cur_func", "main"}, {"cur_task", "task0"}, {"var", var}, {"point", point}});
    }
    void setDeleted(const QStringList& nodes, const QStringList& names = {}) {
        setAnswer("mirror.deleted", QJsonObject{{"var", QJsonArray::fromStringList(nodes)},
                                                {"names", QJsonArray::fromStringList(names)}});
    }

    void setUp(bool up) {
        bus.setUp(up);
        controllerLink.setUp(up);
    }

    /// What was put, a line each: "var #3=a #4=- point #0=p replace"; "-" is a record that went.
    QStringList puts() const {
        QStringList lines;
        for (const brisk::standin::Message& message : bus.sent) {
            if (message.key == "mirror.put")
                lines << inWords(message.content.get());
        }
        return lines;
    }
    /// What else was said over the bus, in order.
    QStringList said() const {
        QStringList keys;
        for (const brisk::standin::Message& message : bus.sent)
            keys << message.key;
        return keys;
    }
    void forget() { bus.sent.clear(); }

    pendanttest::FakeLink bus{brisk::standin::Channel::bus()};
    pendanttest::FakeLink controllerLink{brisk::standin::Channel::controller()};
    QMap<QString, brisk::standin::Content> answers;

private:
    static QJsonArray records(const QStringList& names) {
        QJsonArray list;
        for (const QString& name : names)
            list << QJsonObject{{"name", name}, {"value", QJsonObject{{"[0][0][0]", list.size()}}}};
        return list;
    }

    static QString inWords(brisk::ModuleObject* put) {
        QStringList words;
        for (const QString& part : {QString("var"), QString("point")}) {
            words << part;
            for (brisk::ModuleObject* record : put->c(part)->cmobjs())
                words << record->name() + '=' + (record->isEmpty() ? QString("-") : record->c("name")->getString());
        }
        if (put->c("replace")->getBool())
            words << "replace";
        return words.join(' ');
    }
};

/// The lists of the project in the tree.
inline brisk::ModuleObject* variables() {
    return m("orca.project.var._list");
}
inline brisk::ModuleObject* points() {
    return m("orca.project.point._list");
}

/// Appends a record as the library does; the name of its node comes back.
inline QString addRecord(brisk::ModuleObject* list, const QString& name) {
    auto* record = new brisk::ModuleObject(brisk::ModuleObject::generateId(list));
    record->set(nullptr, "name", name);
    record->set(nullptr, "value.[0][0][0]", 0);
    list->insertChild(-1, record);
    return record->name();
}

/// "#0=a #1=b".
inline QString inWords(const brisk::ModuleObject* list) {
    QStringList words;
    for (brisk::ModuleObject* record : list->cmobjs())
        words << record->name() + '=' + record->c("name")->getString();
    return words.join(' ');
}

/// What the host does when somebody wants the project reloaded.
inline void triggerReload() {
    m("orca.project.cur_project")->trigger();
}
