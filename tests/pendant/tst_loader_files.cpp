#include "pendanttest/frame.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"
#include "plugins/opensharedobject.h"
#include "plugins/pluginloader.h"

#include "helm/messagelist.h"
#include "tarp/factory.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>
#include <unistd.h>

using helm::standin::Message;
using helm::standin::MessageLevel;
using helm::standin::MessageList;
using pendant::PluginFile;
using pendant::PluginLoader;

namespace {

// The superuser may read every folder, so for a while the process is nobody in particular.
class NoSuperuser {
public:
    NoSuperuser() {
        if (m_before == 0 && ::seteuid(65534) != 0)
            qFatal("The test cannot give up the rights of the superuser.");
    }
    ~NoSuperuser() {
        if (::seteuid(m_before) != 0)
            qFatal("The test cannot take back its rights.");
    }

private:
    const uid_t m_before = ::geteuid();
};

} // namespace

class TestLoader : public QObject {
    Q_OBJECT

private slots:
    void init() {
        m_folder.reset(new pendanttest::WorkingFolder);
        m_log.reset(new pendanttest::LogWatch);
        m_loader.reset(new PluginLoader);
        QVERIFY(QDir().mkpath("plugins"));
    }

    void cleanup() {
        MessageList::instance()->clear();
        m_log.reset();
        m_folder.reset();
    }

    // First of all, for a shared object registers its plugins only once in a process.
    void theFilesOfAFolderAreLoadedInTheOrderOfTheirNames() {
        copy(PLUGIN_fixture_pair, "b.so");
        copy(PLUGIN_fixture_twice, "a.so");
        copy(PLUGIN_fixture_twice, "c.so.1");
        copy(PLUGIN_fixture_twice, "readme.txt");
        m_loader->loadFolder("plugins");
        QCOMPARE(names(), QStringList({"a.so", "b.so"}));
        QCOMPARE(m_loader->files().at(0).names, QStringList("twice"));
        QCOMPARE(m_loader->files().at(1).names, QStringList({"first", "second"}));
        QVERIFY(!m_loader->hasErrors());
        QCOMPARE(m_loader->fileOf("second"), QDir("plugins").absoluteFilePath("b.so"));
        QCOMPARE(m_loader->fileOf("unknown"), QString());
        QVERIFY(MessageList::instance()->messages().isEmpty());
        QVERIFY(m_log->lines().isEmpty());
    }

    void aFileThatHoldsTakenNamesOnlyIsTold() {
        const QString reason = "registers no plugin, or only names that other plugins hold.";
        expectError(PLUGIN_fixture_taken + (' ' + reason));
        m_loader->loadFile(PLUGIN_fixture_taken);
        const QList<Message>& messages = MessageList::instance()->messages();
        QCOMPARE(messages.size(), 2);
        QCOMPARE(messages.first().level, MessageLevel::Error);
        QVERIFY2(messages.first().text.startsWith("A second plugin is called \"first\""),
                 qPrintable(messages.first().text));
        QCOMPARE(messages.last().text, PLUGIN_fixture_taken + (' ' + reason));
    }

    void aFileThatRegistersNothingIsTold() {
        refuse(PLUGIN_fixture_nothing, "registers no plugin, or only names that other plugins hold.");
    }

    void aMissingSymbolIsToldAsInTheSource() {
        refuse(PLUGIN_fixture_unresolved, "cannot be loaded: undefined symbol: seamLengthMm(char const*).");
        QVERIFY(!bfactory()->creators.contains("unresolved"));
    }

    void aFileThatIsNoSharedObjectIsTold_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty") << QByteArray() << "is empty.";
        QTest::newRow("text") << QByteArray("hello, pendant") << "is not an ELF file.";
        QTest::newRow("cut off") << QByteArray("\177ELF") << "is cut off in its ELF header.";
    }

    void aFileThatIsNoSharedObjectIsTold() {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        write("bad.so", content);
        expectError(reason);
        m_loader->loadFolder("plugins");
        checkReported("bad.so", reason);
    }

    void aPluginOfAnotherMachineIsTold() {
        QByteArray bytes = read(PLUGIN_fixture_pair);
        const bool onArm = bytes.at(18) == '\xb7';
        bytes[18] = onArm ? '\x3e' : '\xb7';
        write("other.so", bytes);
        const QString reason = onArm ? "is built for x86-64; this pendant runs on 64-bit Arm (aarch64)."
                                     : "is built for 64-bit Arm (aarch64); this pendant runs on x86-64.";
        expectError(reason);
        m_loader->loadFolder("plugins");
        checkReported("other.so", reason);
    }

    // The loader of the system maps a file without asking for its length, and is ended by a signal beyond the end.
    void aSharedObjectThatIsCutOffIsTold_data() {
        QTest::addColumn<int>("kept");
        for (int percent : {4, 10, 50, 90})
            QTest::addRow("%d percent", percent) << percent;
    }

    void aSharedObjectThatIsCutOffIsTold() {
        QFETCH(int, kept);
        const QByteArray whole = read(PLUGIN_fixture_pair);
        write("cut.so", whole.left(whole.size() * kept / 100));
        expectError("cut.so is cut off");
        m_loader->loadFolder("plugins");
        QVERIFY2(m_loader->files().first().error.startsWith("is cut off"), qPrintable(m_loader->files().first().error));
    }

    void aBadFileDoesNotKeepTheOthersFromLoading() {
        write("a.so", "no library");
        copy(PLUGIN_fixture_taken, "b.so");
        expectError("a.so is not an ELF file.");
        expectError("b.so registers no plugin");
        m_loader->loadFolder("plugins");
        QCOMPARE(names(), QStringList({"a.so", "b.so"}));
        QVERIFY(m_loader->hasErrors());
    }

    void aFolderThatIsNotThereIsTold() { refuseFolder("nowhere", "does not exist."); }

    void aFileInPlaceOfTheFolderIsTold() {
        write("file", "text");
        refuseFolder("plugins/file", "is not a folder.");
    }

    void anEmptyFolderIsTold() { refuseFolder("plugins", "holds no plugin file (*.so)."); }

    void aFolderThatMayNotBeReadIsTold() {
        QVERIFY(QFile::setPermissions(".", QFile::Permissions(0x7755)));
        QVERIFY(QFile::setPermissions("plugins", QFile::Permissions()));
        {
            const NoSuperuser person;
            refuseFolder("plugins", "cannot be read: Permission denied.");
        }
        QVERIFY(QFile::setPermissions("plugins", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    void anotherNameOfTheSameFileIsPassedOver() {
        write("bad.so", "no library");
        QVERIFY(QFile::link("bad.so", "plugins/link.so"));
        expectError("bad.so is not an ELF file.");
        m_loader->loadFolder("plugins");
        m_loader->loadFolder("./plugins/../plugins");
        m_loader->loadFile("plugins/bad.so");
        QCOMPARE(names(), QStringList("bad.so"));
    }

    void aLinkToNowhereIsTold() {
        QVERIFY(QFile::link("gone.so", "plugins/link.so"));
        expectError("link.so points to a file that does not exist.");
        m_loader->loadFolder("plugins");
        checkReported("link.so", "points to a file that does not exist.");
    }

    void aFileNamedByItselfThatIsNotThereIsTold() {
        expectError("plugins/none.so does not exist.");
        m_loader->loadFile("plugins/none.so");
        QVERIFY(m_loader->hasErrors());
    }

    void symbolsAreSpeltAsInTheSource_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("readable");
        QTest::newRow("a function") << "undefined symbol: _Z12seamLengthMmPKc"
                                    << "undefined symbol: seamLengthMm(char const*)";
        QTest::newRow("of C") << "undefined symbol: zlibVersion"
                              << "undefined symbol: zlibVersion";
        QTest::newRow("two") << "_Z3foov and _ZN1a3barEi"
                             << "foo() and a::bar(int)";
        QTest::newRow("no such symbol") << "_Zzz"
                                        << "_Zzz";
        QTest::newRow("nothing") << ""
                                 << "";
    }

    void symbolsAreSpeltAsInTheSource() {
        QFETCH(QString, text);
        QFETCH(QString, readable);
        QCOMPARE(pendant::withReadableSymbols(text), readable);
    }

    // Last of all, for what is thrown in the middle of loading leaves the file half loaded.
    void whatIsThrownWhileLoadingIsTold() {
        refuse(PLUGIN_fixture_loading, "threw while it was loaded: the settings are not there.");
    }

private:
    static QByteArray read(const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read.", qPrintable(path));
        return file.readAll();
    }

    static void write(const QString& name, const QByteArray& content) {
        QFile file("plugins/" + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("%s cannot be written.", qPrintable(name));
    }

    static void copy(const QString& path, const QString& name) { write(name, read(path)); }

    void expectError(const QString& text) { m_log->expect(text); }

    void refuse(const QString& path, const QString& reason) {
        const QStringList before = bfactory()->creators.keys();
        expectError(path + ' ' + reason);
        m_loader->loadFile(path);
        checkReported(QFileInfo(path).fileName(), reason);
        QCOMPARE(m_loader->files().first().names, QStringList());
        QCOMPARE(bfactory()->creators.keys(), before);
    }

    void refuseFolder(const QString& folder, const QString& reason) {
        expectError(folder + ' ' + reason);
        m_loader->loadFolder(folder);
        QCOMPARE(m_loader->files().size(), 1);
        QCOMPARE(m_loader->files().first().path, folder);
        QCOMPARE(m_loader->files().first().error, reason);
        QCOMPARE(MessageList::instance()->messages().size(), 1);
    }

    void checkReported(const QString& file, const QString& reason) {
        QCOMPARE(names(), QStringList(file));
        QCOMPARE(m_loader->files().first().error, reason);
        const QList<Message>& messages = MessageList::instance()->messages();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().level, MessageLevel::Error);
        QCOMPARE(messages.first().source, QString("pendant"));
        QCOMPARE(messages.first().text, m_loader->files().first().path + ' ' + reason);
        QVERIFY(m_log->lines().value(0).startsWith("\x1b[31m[E|"));
        QVERIFY(m_folder->logLines().value(0).endsWith(messages.first().text));
    }

    QStringList names() const {
        QStringList names;
        for (const PluginFile& file : m_loader->files())
            names.append(QFileInfo(file.path).fileName());
        return names;
    }

    std::unique_ptr<pendanttest::WorkingFolder> m_folder;
    std::unique_ptr<pendanttest::LogWatch> m_log;
    std::unique_ptr<PluginLoader> m_loader;
};

QTEST_GUILESS_MAIN(TestLoader)
#include "tst_loader_files.moc"
