#include "brisk/modulemanager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using brisk::ModuleManager;
using brisk::ModuleObject;

namespace {

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A full disk: for as long as it stands no file of this process grows past `bytes`.
struct FileSizeLimit {
    explicit FileSizeLimit(rlim_t bytes) : signalHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before);
        const struct rlimit limit { bytes, before.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, signalHandler);
    }
    struct rlimit before {};
    void (*signalHandler)(int);
};

} // namespace

class Manager : public QObject {
    Q_OBJECT

private slots:
    void init();
    void keysAreJoinedByDotsAndKeepEmptyParts();
    void thereIsOneManagerWithOneRoot();
    void aKeyIsMadeOnFirstUse();
    void aKeyIsTakenFromTheGivenParent();
    void theEmptyKeyIsTheRoot();
    void aMissingItemIsAnEmptyNodeOutsideTheTree();
    void anEmptyNodeOutsideTheTreeIsEmptiedForTheNext();
    void jsonIsWrittenAsUtf8_data();
    void jsonIsWrittenAsUtf8();
    void anotherFileReplacesTheOldOne();
    void aMissingFolderIsAFailure();
    void aFolderIsNoFile();
    void aFailedWriteLeavesTheOldFile();
    void nothingStaysBesideTheFile();
};

void Manager::init() {
    m()->root()->clear(nullptr, false, true);
}

void Manager::keysAreJoinedByDotsAndKeepEmptyParts() {
    QCOMPARE(mName("kite", "weld"), QString("kite.weld"));
    QCOMPARE(mName("brisk", "kite", "weld"), QString("brisk.kite.weld"));
    QCOMPARE(mName("a", ""), QString("a."));
    QCOMPARE(mName("", "b"), QString(".b"));
    QCOMPARE(mName("", "", ""), QString(".."));
    QCOMPARE(mName("a.b", "c"), QString("a.b.c"));
}

void Manager::thereIsOneManagerWithOneRoot() {
    QVERIFY(m());
    QCOMPARE(m(), m());
    QCOMPARE(m()->root(), m()->root());
    QCOMPARE(m()->root()->name(), QString());
    QVERIFY(!m()->root()->pmobj());
}

void Manager::aKeyIsMadeOnFirstUse() {
    ModuleObject* node = m("helm.r.id");
    QCOMPARE(node->key(), QString("helm.r.id"));
    QCOMPARE(m("helm.r.id", nullptr), node);
    QCOMPARE(m()->root()->r("helm.r.id"), node);
    QVERIFY(node->isEmpty());
}

void Manager::aKeyIsTakenFromTheGivenParent() {
    ModuleObject* project = m("orca.project");
    QCOMPARE(m("var._list", project)->key(), QString("orca.project.var._list"));
    ModuleObject beside("beside");
    QCOMPARE(m("a", &beside)->pmobj(), &beside);
}

void Manager::theEmptyKeyIsTheRoot() {
    QCOMPARE(m(""), m()->root());
}

void Manager::aMissingItemIsAnEmptyNodeOutsideTheTree() {
    m("list")->setList(nullptr, {1, 2});
    for (const char* key : {"list.#7", "list.#7.name", "list.#2.a.b"}) {
        ModuleObject* absent = m(key);
        QVERIFY(absent);
        QVERIFY(absent->isEmpty());
        QVERIFY(!absent->pmobj());
        absent->setValue(nullptr, "lost");
        absent->set(nullptr, "a.b", 1);
        QCOMPARE(m("list")->exportToJson(true), QJsonValue(QJsonArray{1, 2}));
    }
    QCOMPARE(m()->root()->cmobjs(true).size(), 3);
}

void Manager::anEmptyNodeOutsideTheTreeIsEmptiedForTheNext() {
    m("list")->setList(nullptr, {1});
    ModuleObject* absent = m("list.#7");
    absent->setList(nullptr, {1, QVariant()});
    absent->setValue(nullptr, 1);
    int heard = 0;
    connect(absent, &ModuleObject::changed, this, [&heard] { ++heard; });
    QCOMPARE(m("list.#8"), absent);
    QVERIFY(absent->isEmpty());
    QVERIFY(!absent->isList());
    absent->setValue(nullptr, 2);
    QCOMPARE(heard, 0);
    delete absent;
    QVERIFY(m("list.#7")->isEmpty());
}

void Manager::jsonIsWrittenAsUtf8_data() {
    QTest::addColumn<QJsonValue>("json");
    QTest::addColumn<bool>("indented");
    QTest::addColumn<QString>("text");
    const QString name = QStringLiteral("焊接");
    QTest::newRow("object") << QJsonValue(QJsonObject{{"name", name}}) << false << "{\"name\":\"" + name + "\"}";
    QTest::newRow("indented") << QJsonValue(QJsonObject{{"a", 1}}) << true << "{\n    \"a\": 1\n}\n";
    QTest::newRow("array") << QJsonValue(QJsonArray{1, 2}) << false << "[1,2]";
    QTest::newRow("single value") << QJsonValue("a") << false << "[\"a\"]";
    QTest::newRow("null") << QJsonValue() << false << "[null]";
}

void Manager::jsonIsWrittenAsUtf8() {
    QFETCH(QJsonValue, json);
    QFETCH(bool, indented);
    const QTemporaryDir folder;
    const QString path = folder.filePath("projectinfo.json");
    QVERIFY(m()->writeToJson(path, json, indented));
    QTEST(QString::fromUtf8(content(path)), "text");
}

void Manager::anotherFileReplacesTheOldOne() {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.json");
    QVERIFY(m()->writeToJson(path, QJsonArray{"a longer text than the next"}, true));
    QVERIFY(m()->writeToJson(path, QJsonArray{1}, false));
    QCOMPARE(content(path), QByteArray("[1]"));
}

void Manager::aMissingFolderIsAFailure() {
    const QTemporaryDir folder;
    QVERIFY(!m()->writeToJson(folder.filePath("missing/a.json"), QJsonArray{1}, true));
    QVERIFY(!QFile::exists(folder.filePath("missing")));
    QVERIFY(!m()->writeToJson(QString(), QJsonArray{1}, true));
}

void Manager::aFolderIsNoFile() {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.json");
    QVERIFY(QDir().mkpath(path)); // a folder cannot be replaced by a file
    QVERIFY(!m()->writeToJson(path, QJsonArray{1}, true));
    QVERIFY(QFileInfo(path).isDir());
    QCOMPARE(QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList{"a.json"});
}

void Manager::aFailedWriteLeavesTheOldFile() {
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.json");
    QVERIFY(m()->writeToJson(path, QJsonArray{"old"}, false));
    bool written = true;
    {
        const FileSizeLimit limit(100);
        written = m()->writeToJson(path, QJsonArray{QString("new").repeated(1000)}, false);
    }
    QVERIFY(!written);
    QCOMPARE(content(path), QByteArray("[\"old\"]"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"a.json"});
}

void Manager::nothingStaysBesideTheFile() {
    const QTemporaryDir folder;
    QVERIFY(m()->writeToJson(folder.filePath("a.json"), QJsonArray{1}, true));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"a.json"});
}

QTEST_APPLESS_MAIN(Manager)
#include "tst_modulemanager.moc"
