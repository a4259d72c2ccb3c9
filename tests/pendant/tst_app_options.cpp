#include "app/options.h"
#include "app/preferences.h"
#include "app/workfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using pendant::OptionReader;
using pendant::Options;

class TestOptions : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { QDir::setCurrent(QDir::tempPath()); }
    void withoutOptionsThereAreNeitherPluginsNorATour();
    void foldersOfPluginsAreMadeAbsoluteAndKeepTheirOrder();
    void severalFoldersMayFollowOneOption();
    void sizeThemeAndLanguageAreTaken();
    void aWrongCommandLineIsExplained_data();
    void aWrongCommandLineIsExplained();
    void helpNamesEveryOption();
    void theWorkFolderIsMadeWithItsFoldersAndEntered();
    void aWorkFolderThatCannotBeMadeIsExplained();
    void whatWasChosenIsKeptInTheWorkFolder();

private:
    static Options read(const QStringList& arguments) {
        return OptionReader::read(QStringList{"kite-pendant"} + arguments);
    }
    QScopedPointer<QTemporaryDir> m_folder;
};

void TestOptions::init() {
    m_folder.reset(new QTemporaryDir);
    QDir::setCurrent(m_folder->path());
}

void TestOptions::withoutOptionsThereAreNeitherPluginsNorATour() {
    const Options options = read({});
    QCOMPARE(options.error, QString());
    QVERIFY(options.pluginFolders.isEmpty());
    QVERIFY(options.tourFolder.isEmpty());
    QVERIFY(options.cellFile.isEmpty());
    QCOMPARE(options.size, QSize(1280, 800));
    QVERIFY(QFileInfo(options.workFolder).isAbsolute());
}

void TestOptions::foldersOfPluginsAreMadeAbsoluteAndKeepTheirOrder() {
    const Options options =
        read({"--plugins", "b", "--plugins", "/opt/a/", "--tour", "../out", "--work", "w", "--cell", "c.json"});
    const QString here = QDir::currentPath();
    QCOMPARE(options.pluginFolders, QStringList({here + "/b", "/opt/a"}));
    QCOMPARE(options.tourFolder, QDir::cleanPath(here + "/../out"));
    QCOMPARE(options.workFolder, here + "/w");
    QCOMPARE(options.cellFile, here + "/c.json");
}

void TestOptions::severalFoldersMayFollowOneOption() {
    const Options options = read({"--plugins", "a", "b", "--theme", "dark", "c"});
    const QString here = QDir::currentPath();
    QCOMPARE(options.error, QString());
    QCOMPARE(options.pluginFolders, QStringList({here + "/a", here + "/b", here + "/c"}));
}

void TestOptions::sizeThemeAndLanguageAreTaken() {
    const Options options = read({"--size", "1024x600", "--theme", "dark", "--language", "zh_CN"});
    QCOMPARE(options.error, QString());
    QCOMPARE(options.size, QSize(1024, 600));
    QCOMPARE(options.theme, QString("dark"));
    QCOMPARE(options.language, QString("zh_CN"));
}

void TestOptions::aWrongCommandLineIsExplained_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("word");
    QTest::newRow("unknown option") << QStringList{"--fast"} << "fast";
    QTest::newRow("value missing") << QStringList{"--plugins"} << "plugins";
    QTest::newRow("folder without option") << QStringList{"build/plugins"} << "build/plugins";
    QTest::newRow("size in words") << QStringList{"--size", "big"} << "--size";
    QTest::newRow("size too small") << QStringList{"--size", "80x48"} << "800x480";
    QTest::newRow("theme") << QStringList{"--theme", "pink"} << "light, dark";
    QTest::newRow("language") << QStringList{"--language", "xx"} << "en, de, zh_CN";
}

void TestOptions::aWrongCommandLineIsExplained() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, word);
    const Options options = read(arguments);
    QVERIFY2(options.error.contains(word), qPrintable(options.error));
}

void TestOptions::helpNamesEveryOption() {
    const QString help = read({"--help"}).help;
    for (const char* option : {"--plugins", "--tour", "--work", "--cell", "--size", "--language", "--theme"})
        QVERIFY2(help.contains(option), option);
    QVERIFY(read({}).help.isEmpty());
}

void TestOptions::theWorkFolderIsMadeWithItsFoldersAndEntered() {
    const QString path = m_folder->filePath("a/b");
    QCOMPARE(pendant::enterWorkFolder(path), QString());
    QCOMPARE(QDir::currentPath(), QDir(path).canonicalPath());
    for (const char* name : {"log", "upgrade", "workspace"})
        QVERIFY2(QFileInfo(name).isDir(), name);
    QCOMPARE(pendant::enterWorkFolder(path), QString());
}

void TestOptions::aWorkFolderThatCannotBeMadeIsExplained() {
    QFile file("taken");
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString error = pendant::enterWorkFolder(m_folder->filePath("taken/work"));
    QVERIFY2(error.contains("taken/work"), qPrintable(error));
    QVERIFY(error.contains("--work"));
    QCOMPARE(QDir::currentPath(), QDir(m_folder->path()).canonicalPath());
}

void TestOptions::whatWasChosenIsKeptInTheWorkFolder() {
    QCOMPARE(pendant::Preferences::theme(), QString("light"));
    QCOMPARE(pendant::Preferences::language(), QString("en"));
    pendant::Preferences::setTheme("dark");
    pendant::Preferences::setLanguage("de");
    QCOMPARE(pendant::Preferences::theme(), QString("dark"));
    QCOMPARE(pendant::Preferences::language(), QString("de"));
    QVERIFY(QFile::exists("settings.ini"));
}

QTEST_GUILESS_MAIN(TestOptions)
#include "tst_app_options.moc"
