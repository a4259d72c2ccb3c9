#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QDir project(QStringLiteral(KITE_SOURCE_DIR));

QString readText(const QString& path) {
    QFile file(project.filePath(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList pages() {
    QStringList paths{QStringLiteral("README.md"), QStringLiteral("CONTRIBUTING.md"), QStringLiteral("CHANGELOG.md")};
    for (const QString& name : QDir(project.filePath("docs")).entryList({"*.md"}, QDir::Files))
        paths << "docs/" + name;
    return paths;
}

// The lines without their indentation, so that a member function may be shown as a whole.
QString withoutIndent(const QString& text) {
    QStringList lines;
    for (const QString& line : text.split('\n'))
        lines << line.trimmed();
    return lines.join('\n').trimmed();
}

} // namespace

// What the pages promise: links that lead somewhere, and code that is compiled.
class Docs : public QObject {
    Q_OBJECT

private slots:
    void everyLinkLeadsToAFile_data() { pagesAsRows(); }
    void everyLinkLeadsToAFile();
    void codeThatNamesItsSourceStandsThere_data() { pagesAsRows(); }
    void codeThatNamesItsSourceStandsThere();
    void somePagesNameTheSourceOfTheirCode();

private:
    static void pagesAsRows();
};

void Docs::pagesAsRows() {
    QTest::addColumn<QString>("page");
    for (const QString& page : pages())
        QTest::addRow("%s", qPrintable(page)) << page;
}

void Docs::everyLinkLeadsToAFile() {
    QFETCH(QString, page);
    const QRegularExpression link("\\]\\(([^)#:]+)(#[^)]*)?\\)");
    const QDir folder = QFileInfo(project.filePath(page)).dir();
    QString prose = readText(page);
    prose.remove(QRegularExpression("```.*?```", QRegularExpression::DotMatchesEverythingOption));
    QStringList missing;
    for (auto it = link.globalMatch(prose); it.hasNext();) {
        const QString target = it.next().captured(1);
        if (!QFileInfo::exists(folder.filePath(target)))
            missing << target;
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(", ")));
}

// <!-- from examples/hello/hello.cpp --> before a block of code: the block stands in that file.
void Docs::codeThatNamesItsSourceStandsThere() {
    QFETCH(QString, page);
    const QRegularExpression block("<!-- from (\\S+) -->\\s*```\\w*\\n(.*?)```",
                                   QRegularExpression::DotMatchesEverythingOption);
    for (auto it = block.globalMatch(readText(page)); it.hasNext();) {
        const auto match = it.next();
        const QString source = readText(match.captured(1));
        QVERIFY2(!source.isEmpty(), qPrintable("There is no " + match.captured(1)));
        QVERIFY2(withoutIndent(source).contains(withoutIndent(match.captured(2))),
                 qPrintable(match.captured(1) + " does not hold:\n" + match.captured(2)));
    }
}

void Docs::somePagesNameTheSourceOfTheirCode() {
    int named = 0;
    for (const QString& page : pages())
        named += readText(page).count("<!-- from ");
    QVERIFY(named > 0);
}

QTEST_GUILESS_MAIN(Docs)
#include "tst_docs.moc"
