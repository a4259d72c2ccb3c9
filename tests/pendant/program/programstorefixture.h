#pragma once

#include "brisk/modulemanager.h"
#include "program/programstore.h"

#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

#include <memory>

/// A store, and what it has said: "opened", "taken up", "not taken up", "failed: ...".
struct Store {
    explicit Store(int keepDelayMs = 0) : store(new pendant::ProgramStore(nullptr, keepDelayMs)) {
        QObject::connect(store.get(), &pendant::ProgramStore::opened, &context, [this] { heard << "opened"; });
        QObject::connect(store.get(), &pendant::ProgramStore::takenUpChanged, &context,
                         [this](bool takenUp) { heard << (takenUp ? "taken up" : "not taken up"); });
        QObject::connect(store.get(), &pendant::ProgramStore::recovered, &context, [this] { heard << "recovered"; });
        QObject::connect(store.get(), &pendant::ProgramStore::failed, &context,
                         [this](const QString& what) { heard << "failed: " + what; });
    }
    pendant::ProgramStore* operator->() const { return store.get(); }
    QStringList lines() const { return store->program()->lines(); }
    /// Lets what waits for the event loop happen.
    static void settle() { QTest::qWait(1); }

    QStringList heard;
    QObject context;
    std::unique_ptr<pendant::ProgramStore> store;
};

/// Every case has an empty workspace and an empty tree.
class StoreTest : public QObject {
    Q_OBJECT

protected:
    static void setProject(const QString& name) { m("orca.project.cur_project")->setValue(nullptr, name); }
    /// As after a project was made: its folder is there.
    static void makeProject(const QString& name) {
        QVERIFY(QDir().mkpath(pathOf(name)));
        setProject(name);
    }
    static QString pathOf(const QString& name) { return "workspace/" + name; }

    static void write(const QString& name, const QByteArray& bytes) {
        QVERIFY(QDir().mkpath(QFileInfo(pathOf(name)).path()));
        QFile file(pathOf(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static QByteArray read(const QString& name) {
        QFile file(pathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }
    /// All files in the workspace.
    static QStringList files() {
        QStringList names;
        QDirIterator iterator(QDir("workspace").absolutePath(), QDir::Files | QDir::Hidden,
                              QDirIterator::Subdirectories);
        while (iterator.hasNext())
            names << QDir("workspace").relativeFilePath(iterator.next());
        names.sort();
        return names;
    }

    /// One line of Qt's that tells of something wrong.
    void expect(const QString& line) { m_log->expect(line); }

    /// A folder stands where the file would be written, which steps aside.
    static void block(const QString& name) {
        QFile::rename(pathOf(name), pathOf(name) + ".stepped-aside");
        QVERIFY(QDir().mkpath(pathOf(name) + "/in the way"));
    }
    static void unblock(const QString& name) {
        QVERIFY(QDir(pathOf(name)).removeRecursively());
        QFile::rename(pathOf(name) + ".stepped-aside", pathOf(name));
    }

private slots:
    void initTestCase() { m_folder.reset(new pendanttest::WorkingFolder); }
    void cleanupTestCase() { m_folder.reset(); }
    void init() { m_log.reset(new pendanttest::LogWatch); }
    void cleanup() {
        m_log.reset();
        m("orca")->clear(nullptr, true, true);
        QVERIFY(QDir("workspace").removeRecursively());
    }

private:
    std::unique_ptr<pendanttest::WorkingFolder> m_folder;
    std::unique_ptr<pendanttest::LogWatch> m_log;
};
