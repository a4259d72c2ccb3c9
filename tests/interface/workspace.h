#pragma once

#include "links.h"
#include "removalguard.h"

#include "brisk/modulemanager.h"
#include "brisk/traffic.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <sys/stat.h>

using brisk::ModuleObject;

/// A workspace on the disk, three folders below a temporary one, to which the host's setting leads. Names are used in
/// paths as they are, and projects are deleted with all that is in them: so no case calls removeProject() itself, and
/// remove() ends the process rather than reach out of the temporary folder.
class Workspace {
public:
    Workspace() {
        if (!m_folder.isValid() || !QDir().mkpath(path()))
            qFatal("There is no temporary folder for the workspace.");
        setMode(m_folder.path(), openMode);
        for (const char* part : {"/one", "/one/two", "/one/two/workspace"})
            openToAll(m_folder.path() + part);
        HostSettings::set("workspace", path());
        guard().check(robot(), "project");
    }
    ~Workspace() { HostSettings::remove("workspace"); }

    QString path() const { return m_folder.path() + "/one/two/workspace"; }
    /// "demo/a.txt" -> ".../workspace/LOCALHOST/demo/a.txt"
    QString at(const QString& below) const { return path() + "/" + robot() + "/" + below; }
    static QString robot() {
        const QString id = m("helm.r.id")->getString();
        return id.isEmpty() ? QString("LOCALHOST") : id;
    }

    /// Files and folders below the workspace, a folder with "/" at its end, in ascending order.
    QStringList content() const { return contentOf(path()); }
    /// The same of the temporary folder.
    QStringList allContent() const { return contentOf(m_folder.path()); }

    /// Makes a file below the robot's folder, with the folders that lead to it.
    void makeFile(const QString& below, const QByteArray& text = "x") const {
        const QString filePath = at(below);
        mustBeInside(filePath);
        QFile file(filePath);
        if (!QDir().mkpath(QFileInfo(filePath).path()) || !file.open(QIODevice::WriteOnly) ||
            file.write(text) != text.size())
            qFatal("%s cannot be written.", qPrintable(filePath));
    }
    QByteArray readFile(const QString& below) const {
        QFile file(at(below));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// Makes a folder below the robot's, with the folders that lead to it; everybody may write in all of them.
    void makeFolder(const QString& below) const {
        mustBeInside(at(below));
        if (!QDir().mkpath(at(below)))
            qFatal("%s cannot be made.", qPrintable(at(below)));
        const QString end = QDir::cleanPath(path());
        for (QString folder = QDir::cleanPath(at(below)); folder != end; folder = QFileInfo(folder).path())
            openToAll(folder);
    }

    /// removeProject(), where that stays within the temporary folder.
    int remove(const QString& name) const {
        guard().check(robot(), name);
        return kiteInterface()->removeProject(name);
    }
    RemovalGuard guard() const { return {m_folder.path(), path()}; }

    /// Everybody may do everything with that file or folder.
    void openToAll(const QString& filePath) const { allow(filePath, openMode); }
    /// Sets the permissions of a file or folder.
    void allow(const QString& filePath, mode_t mode) const {
        mustBeInside(filePath);
        setMode(filePath, mode);
    }

private:
    static const mode_t openMode = 0777;

    static void setMode(const QString& filePath, mode_t mode) {
        if (chmod(QFile::encodeName(filePath), mode) != 0)
            qFatal("The permissions of %s cannot be set.", qPrintable(filePath));
    }
    void mustBeInside(const QString& filePath) const {
        if (!guard().isInside(filePath))
            qFatal("%s is outside the temporary folder.", qPrintable(filePath));
    }
    static QStringList contentOf(const QString& path) {
        QStringList names;
        const QDir folder(path);
        for (const QFileInfo& info :
             folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
            const bool isFolder = info.isDir() && !info.isSymLink();
            names << info.fileName() + (isFolder ? "/" : "");
            for (const QString& below : isFolder ? contentOf(info.filePath()) : QStringList())
                names << info.fileName() + "/" + below;
        }
        names.sort();
        return names;
    }

    QTemporaryDir m_folder;
};

/// What each case of a test of projects begins with: a workspace, and every key that the operations touch empty in the
/// tree.
class WorkspaceTest : public LinksTest {
    Q_OBJECT

protected:
    Workspace& workspace() { return *m_workspace; }
    static QString text(const QString& key) { return m(key)->getString(); }
    static void write(const QString& key, const QString& text) { m(key)->setValue(nullptr, text, false); }

    static ModuleObject* autoloadRequest() {
        return helm::ManagerHelper::instance()->controllerManager()->cmdItemMobj("request",
                                                                                 "project.overview.set_autoload");
    }

    /// Writes down from now on, in order: what is written in the tree, as "toolpage.tool tool0 kite" (key below orca,
    /// value, sender), what is sent, as "execute project.remove_task nobody", and "refresh".
    void follow() {
        m_listener.reset(new QObject);
        const auto by = [](const QObject* sender) {
            return !sender ? "nobody" : sender == kiteInterface() ? "kite" : "other";
        };
        connect(m("orca"), &ModuleObject::touched, &*m_listener, [this, by](ModuleObject* node, QObject* sender) {
            m_events << QStringList{node->key().section('.', 1), node->getString(), by(sender)}.join(" ");
        });
        connect(autoloadRequest(), &ModuleObject::touched, &*m_listener,
                [this, by](ModuleObject* node, QObject* sender) {
                    m_events << QStringList{"request." + node->name(), node->getString(), by(sender)}.join(" ");
                });
        connect(m("orca.project.refresh_project"), &ModuleObject::changed, &*m_listener,
                [this] { m_events << "refresh"; });
        connect(brisk::standin::Traffic::instance(), &brisk::standin::Traffic::recorded, &*m_listener,
                [this](const brisk::standin::TrafficEntry& entry) {
                    const QString sender = entry.sender.isEmpty() ? "nobody" : entry.sender;
                    if (entry.direction == brisk::standin::TrafficEntry::Direction::Out)
                        m_events << QStringList{entry.kind, entry.key, sender}.join(" ");
                });
    }
    QStringList& events() { return m_events; }

    void beginWorkspace() {
        begin();
        m_workspace.reset(new Workspace);
        for (const char* key :
             {"helm.r.id", "orca.project.cur_project", "orca.project,cur_project", "orca.toolpage.tool",
              "orca.toolpage,tool", "orca.toolpage.wobj", "orca.project.autoload_prj_path",
              "orca.project.autoload_pri_path", "orca.project.refresh_project", "orca.project.projetc_info.description",
              "orca.project.projetc_info.create_time"})
            m(key);
        autoloadRequest()->set(nullptr, "autoload_pri_path", QVariant());
    }
    void endWorkspace() {
        m_listener.reset();
        m_events.clear();
        m_workspace.reset();
        m("orca")->clear(nullptr, false, true);
        m("helm")->clear(nullptr, false, true);
        autoloadRequest()->clear(nullptr, false, true);
        end();
    }

private slots:
    void initTestCase() { HostSettings::begin(); }
    void init() { beginWorkspace(); }
    void cleanup() { endWorkspace(); }

private:
    QScopedPointer<Workspace> m_workspace;
    QScopedPointer<QObject> m_listener;
    QStringList m_events;
};
