#include "includerules.h"

#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QStringList folders{"include",    "plugin",  "interface", "log",   "instruction", "host",
                          "controller", "pendant", "examples",  "tests", "bench"};

} // namespace

class IncludeRules : public QObject {
    Q_OBJECT

private slots:
    void everyIncludeOfTheTreeKeepsTheRules();
    void forbiddenIncludesAreNamed_data();
    void forbiddenIncludesAreNamed();
    void allowedIncludesPass_data();
    void allowedIncludesPass();
    void everySpellingOfAnIncludeIsRead();
    void aPublicHeaderCountsForTheFolderOfItsSource();

private:
    const QString qtDir = QLibraryInfo::location(QLibraryInfo::HeadersPath);
    const IncludeTargets targets{QStringLiteral(KITE_SOURCE_DIR), qtDir};
};

void IncludeRules::everyIncludeOfTheTreeKeepsTheRules() {
    QVector<Include> includes;
    for (const QString& folder : folders) {
        QDirIterator files(KITE_SOURCE_DIR "/" + folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            includes += includesIn(QDir(KITE_SOURCE_DIR).relativeFilePath(path), readText(path));
        }
    }
    QVERIFY(includes.size() > 100);
    const QStringList found = breaches(includes, targets);
    QVERIFY2(found.isEmpty(), qPrintable('\n' + found.join('\n')));
}

void IncludeRules::forbiddenIncludesAreNamed_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");
    const QString libraryReason = "the library knows itself";
    const QString beneath = "the host's libraries know only those beneath";
    const auto row = [](const char* file, const char* line, const QString& reason) {
        QTest::addRow("%s, %s", file, line) << file << line << reason;
    };
    row("include/kite/a.h", "#include \"brisk/link.h\"", "a public header knows");
    row("include/kite/a.h", "#include <QTcpSocket>", "a public header knows");
    row("include/kite/a.h", "#include <charconv>", "the pendant's compiler lacks it");
    row("plugin/a.cpp", "#include \"briskx/navigationmodel.h\"", libraryReason);
    row("plugin/a.cpp", "#include <QtNetwork/QTcpSocket>", libraryReason);
    row("plugin/a.cpp", "#include <filesystem>", "the pendant's compiler lacks it");
    row("interface/a.cpp", "#include <nlohmann/json.hpp>", libraryReason);
    row("interface/a.cpp", "#include \"tests/project/includerules.h\"", libraryReason);
    row("log/a.cpp", "#include \"kite/kite.h\"", "log knows nothing of interface");
    row("instruction/a.cpp", "#include \"kite/pluginregister.h\"", "instruction knows nothing of plugin");
    row("host/helm/src/a.cpp", "#include \"kite/plugin.h\"", "the host does not know the library");
    row("host/helm/src/a.cpp", "#include \"briskx/navigation.h\"", beneath);
    row("host/briskTarp/src/a.cpp", "#include \"helm/settingmanager.h\"", beneath);
    row("host/briskCore/src/a.cpp", "#include \"tarp/factory.h\"", beneath);
    row("host/briskCore/include/brisk/a.h", "#include \"brisk/link.h\"", "does not show the stand-in");
    row("controller/a.cpp", "#include \"kite/plugin.h\"", "the controller does not know the library");
    row("controller/a.cpp", "#include <QLabel>", "the controller has no widgets");
    row("controller/a.cpp", "#include <QtWidgets>", "the controller has no widgets");
    row("pendant/a.cpp", "#include <kite/plugin.h>", "the pendant meets plugins only through");
    row("examples/hello/a.cpp", "#include \"helm/physicalbutton.h\"", "an example knows");
    row("examples/hello/a.cpp", "#include \"brisk/link.h\"", "an example knows");
}

void IncludeRules::forbiddenIncludesAreNamed() {
    QFETCH(QString, file);
    QFETCH(QString, line);
    QFETCH(QString, reason);
    const QStringList found = breaches(includesIn(file, "\n" + line), targets);
    QCOMPARE(found.size(), 1);
    QVERIFY2(found[0].startsWith(file + ":2: includes "), qPrintable(found[0]));
    QVERIFY2(found[0].contains(reason), qPrintable(found[0]));
}

void IncludeRules::allowedIncludesPass_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* file, const char* line) { QTest::addRow("%s, %s", file, line) << file << line; };
    row("include/kite/a.h", "#include \"helm/physicalbutton.h\"");
    row("include/kite/a.h", "#include <QWidget>");
    row("plugin/a.cpp", "#include \"kite/pluginbase.h\"");
    row("plugin/a.cpp", "#include \"a.moc\"");
    row("plugin/a.cpp", "#include <vector>");
    row("plugin/a.cpp", "// #include <filesystem>");
    row("host/briskx/src/a.cpp", "#include \"brisk/moduleobject.h\"");
    row("host/helm/standin/helm/a.h", "#include \"brisk/link.h\"");
    row("controller/a.cpp", "#include \"brisk/link.h\"");
    row("controller/a.cpp", "#include <filesystem>");
    row("pendant/a.cpp", "#include \"tarp/factory.h\"");
    row("examples/hello/a.cpp", "#include \"kite/plugin.h\"");
    row("examples/hello/a.cpp", "#include <QTcpSocket>");
}

void IncludeRules::allowedIncludesPass() {
    QFETCH(QString, file);
    QFETCH(QString, line);
    QCOMPARE(breaches(includesIn(file, line), targets), QStringList());
}

void IncludeRules::everySpellingOfAnIncludeIsRead() {
    const QVector<Include> includes =
        includesIn("a.cpp", "#include <one>\n  # include \"two\"\n#\tinclude<three> // why\nint four;\n");
    QCOMPARE(includes.size(), 3);
    QCOMPARE(includes[0].name, QString("one"));
    QCOMPARE(includes[1].name, QString("two"));
    QCOMPARE(includes[2].name, QString("three"));
    QCOMPARE(includes[2].line, 3);
}

void IncludeRules::aPublicHeaderCountsForTheFolderOfItsSource() {
    QTemporaryDir project;
    for (const QString& path : QStringList{"include/kite/points.h", "interface/points.cpp"}) {
        QVERIFY(QDir(project.path()).mkpath(QFileInfo(path).path()));
        QFile file(project.filePath(path));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const IncludeTargets other(project.path(), qtDir);
    QCOMPARE(breaches({{"log/a.cpp", 1, "kite/points.h"}}, other),
             QStringList("log/a.cpp:1: includes kite/points.h: log knows nothing of interface"));
    QCOMPARE(breaches({{"instruction/a.cpp", 1, "kite/points.h"}}, other), QStringList());
}

QTEST_GUILESS_MAIN(IncludeRules)
#include "tst_includerules.moc"
