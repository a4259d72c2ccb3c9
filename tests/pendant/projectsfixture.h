#pragma once

#include "pendanttest/logwatch.h"
#include "pendanttest/robot.h"
#include "pendanttest/workingfolder.h"
#include "project/projectkeys.h"
#include "project/projectmirror.h"
#include "project/settings.h"
#include "project/workspace.h"
#include "state/statemirror.h"

#include "brisk/modulemanager.h"
#include "helm/messagelist.h"
#include "helm/settingsfile.h"
#include "kite/interfacemanager.h"

#include <QDir>
#include <QFile>
#include <QTest>

/// The disk of a pendant: a working folder with settings and a workspace three folders below it. Projects are deleted
/// with all that is in them, so remove() ends the process rather than reach out of the temporary folder.
class Disk {
public:
    Disk() {
        helm::standin::readSettingsFrom(m_folder.path() + "/settings.ini");
        pendant::settings::setText("workspace", workspace());
        mustBeSafe("project");
    }
    ~Disk() { helm::standin::readSettingsFrom(QString()); }

    QString workspace() const { return m_folder.path() + "/one/two/workspace"; }
    /// "demo/a.txt" -> ".../workspace/virtual/demo/a.txt"
    QString at(const QString& below) const { return workspace() + "/virtual/" + below; }
    QStringList entries(const QString& below) const {
        return QDir(at(below)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                         QDir::Name);
    }
    QByteArray read(const QString& below) const {
        QFile file(at(below));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }
    void make(const QString& below) const {
        if (!QDir().mkpath(at(below)))
            qFatal("%s cannot be made.", qPrintable(at(below)));
    }

    /// What a plugin's call deletes, where that stays within the temporary folder.
    int remove(const QString& name) const {
        mustBeSafe(name);
        return kite::kiteInterface()->removeProject(name);
    }

private:
    void mustBeSafe(const QString& name) const {
        const QString set = pendant::Workspace::path();
        const bool isPlain = !name.isEmpty() && !name.contains('/') && !name.startsWith('.');
        if (set != workspace() || !set.startsWith(QDir::tempPath() + '/') || !isPlain)
            qFatal("The workspace is \"%s\", the project \"%s\".", qPrintable(set), qPrintable(name));
    }

    pendanttest::WorkingFolder m_folder;
};

/// A pendant's project and the controller of the default cell, from its start to its end. Several may follow each other
/// on one disk.
struct Session {
    explicit Session(bool connects = true) {
        helm::standin::MessageList::instance()->clear();
        robot.loadDefaultCell();
        if (connects)
            robot.connectLinks();
    }
    ~Session() {
        mirror.close();
        for (const char* key : {"orca.project", "orca.toolpage"})
            m(key)->clear(nullptr, false, true);
    }

    void settle() {
        QTest::qWait(1);
        robot.settle();
    }
    static QString open() { return m("orca.project.cur_project")->getString(); }
    static void open(const QString& name) { pendant::Workspace::open(nullptr, name); }
    static brisk::ModuleObject* variables() { return m("orca.project.var._list"); }
    static brisk::ModuleObject* points() { return m("orca.project.point._list"); }

    /// "#0=a #1=b".
    static QString inWords(const brisk::ModuleObject* list) {
        QStringList words;
        for (brisk::ModuleObject* record : list->cmobjs())
            words << record->name() + '=' + record->c("name")->getString();
        return words.join(' ');
    }
    /// Appends a variable with a whole number, as the library does.
    static void add(const QString& name, int value = 0, bool pers = false) {
        auto* record = new brisk::ModuleObject(brisk::ModuleObject::generateId(variables()));
        record->set(nullptr, "name", name);
        record->set(nullptr, "type", "int");
        record->set(nullptr, "pers", pers);
        record->set(nullptr, "value.[0][0][0]", value);
        variables()->insertChild(-1, record);
    }
    static void teach(const QString& name, double x) {
        auto* record = new brisk::ModuleObject(brisk::ModuleObject::generateId(points()));
        record->set(nullptr, "name", name);
        record->set(nullptr, "value.[0][0][0].pose.frame.pos.x", x);
        points()->insertChild(-1, record);
    }
    /// What the message list says at the error level and of the controller.
    static QStringList messages() {
        QStringList texts;
        for (const helm::standin::Message& message : helm::standin::MessageList::instance()->messages()) {
            if (message.source == "controller" || message.level == helm::standin::MessageLevel::Error)
                texts << message.text;
        }
        return texts;
    }

    pendanttest::Robot robot;
    pendant::StateMirror state;
    pendant::ProjectMirror mirror;
};
