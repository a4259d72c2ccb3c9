#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

namespace {

const QDir project(QStringLiteral(KITE_SOURCE_DIR));
const QDir programs(QStringLiteral(TEST_PROGRAM_DIR));

QStringList linesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QStringList lines;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith('#'))
            lines << line;
    }
    return lines;
}

// What the compiler makes beside the operations that somebody wrote.
bool isMade(const QString& operation) {
    static const QRegularExpression made("^(vtable|typeinfo|non-virtual thunk|guard variable)|::staticMetaObject$|"
                                         "::qt_metacall\\(|::qt_metacast\\(|::metaObject\\(|::~");
    return made.match(operation).hasMatch();
}

// The operations that the library exports: signature -> symbols. A constructor has several of them.
QMap<QString, QStringList> exportedOperations() {
    QMap<QString, QStringList> operations;
    for (const QString& line : linesOf(project.filePath("tests/project/kite.symbols"))) {
        const QString operation = line.section(' ', 1);
        if (!isMade(operation))
            operations[operation] << line.section(' ', 0, 0);
    }
    return operations;
}

struct Row {
    QString operation;
    QString test;    ///< a test program that calls it
    QString example; ///< a folder or page that shows it, from the project's folder

    /// Exported with its class, and nothing that anybody else can call.
    bool isPrivate() const { return test == "private" && example == "private"; }
};

QList<Row> table() {
    QList<Row> rows;
    for (const QString& line : linesOf(project.filePath("tests/project/operations.txt"))) {
        const QStringList cells = line.split(" | ");
        if (cells.size() != 3)
            qFatal("not three cells: %s", qPrintable(line));
        rows << Row{cells.at(0).trimmed(), cells.at(1).trimmed(), cells.at(2).trimmed()};
    }
    return rows;
}

// What the program takes from shared objects, by symbol.
QSet<QString> importsOf(const QString& program) {
    QProcess nm;
    nm.start("nm", {"-D", "--undefined-only", "--format=posix", programs.filePath(program)});
    if (!nm.waitForFinished() || nm.exitCode() != 0)
        return {};
    QSet<QString> symbols;
    for (const QString& line : QString::fromLatin1(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts))
        symbols << line.section(' ', 0, 0);
    return symbols;
}

QString textBelow(const QString& path) {
    const QString whole = project.filePath(path);
    if (QFileInfo(whole).isFile())
        return linesOf(whole).join('\n');
    QString text;
    for (QDirIterator it(whole, {"*.cpp", "*.h"}, QDir::Files); it.hasNext();)
        text += linesOf(it.next()).join('\n');
    return text;
}

// What stands after "private:" in the classes of the public headers.
QString privateParts() {
    static const QRegularExpression part("\\nprivate:(.*?)\\n};", QRegularExpression::DotMatchesEverythingOption);
    QString parts;
    for (const QString& name : QDir(project.filePath("include/kite")).entryList({"*.h"}, QDir::Files)) {
        for (auto it = part.globalMatch(linesOf(project.filePath("include/kite/" + name)).join('\n')); it.hasNext();)
            parts += it.next().captured(1);
    }
    return parts;
}

// kite::InterfaceManager::addVarData(QString const&, QVariant, bool) -> addVarData
QString nameOf(const QString& operation) {
    return operation.section('(', 0, 0).section("::", -1);
}

// "operator<<" is used as "<<".
QString useOf(const QString& name) {
    const QString sign = "operator";
    return name.startsWith(sign) ? QRegularExpression::escape(name.mid(sign.size())) : "\\b" + name + "\\b";
}

} // namespace

// Every operation that the library exports has a test that calls it and a place that shows it to plugin authors.
class Operations : public QObject {
    Q_OBJECT

private slots:
    void everyExportedOperationStandsInTheTable();
    void everyRowIsAnExportedOperation();
    void aRowThatIsCalledPrivateIsSo();
    void theTestOfARowCallsTheOperation_data();
    void theTestOfARowCallsTheOperation();
    void theExampleOfARowShowsTheOperation_data();
    void theExampleOfARowShowsTheOperation();

private:
    static void addRows(QString Row::*cell);
};

void Operations::addRows(QString Row::*cell) {
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("where");
    for (const Row& row : table()) {
        if (!row.isPrivate())
            QTest::addRow("%s", qPrintable(row.operation)) << row.operation << row.*cell;
    }
}

void Operations::everyExportedOperationStandsInTheTable() {
    QSet<QString> rows;
    for (const Row& row : table())
        rows << row.operation;
    const QStringList exported = exportedOperations().keys();
    QVERIFY(!exported.isEmpty());
    for (const QString& operation : exported)
        QVERIFY2(rows.contains(operation),
                 qPrintable("Write a test for " + operation + " and name it in operations.txt"));
}

void Operations::everyRowIsAnExportedOperation() {
    const auto exported = exportedOperations();
    QSet<QString> seen;
    for (const Row& row : table()) {
        QVERIFY2(exported.contains(row.operation), qPrintable(row.operation));
        QVERIFY2(!seen.contains(row.operation), qPrintable("twice: " + row.operation));
        seen << row.operation;
    }
}

void Operations::aRowThatIsCalledPrivateIsSo() {
    const QString parts = privateParts();
    for (const Row& row : table()) {
        if (row.isPrivate())
            QVERIFY2(parts.contains(" " + nameOf(row.operation) + "("), qPrintable(row.operation));
    }
}

void Operations::theTestOfARowCallsTheOperation_data() {
    addRows(&Row::test);
}

// The linker knows which operation, and which overload of it, a program calls.
void Operations::theTestOfARowCallsTheOperation() {
    QFETCH(QString, operation);
    QFETCH(QString, where);
    const QSet<QString> imports = importsOf(where);
    QVERIFY2(!imports.isEmpty(), qPrintable("There is no test program " + where));
    bool calls = false;
    for (const QString& symbol : exportedOperations().value(operation))
        calls = calls || imports.contains(symbol);
    QVERIFY2(calls, qPrintable(where + " does not call it"));
}

void Operations::theExampleOfARowShowsTheOperation_data() {
    addRows(&Row::example);
}

void Operations::theExampleOfARowShowsTheOperation() {
    QFETCH(QString, operation);
    QFETCH(QString, where);
    const QRegularExpression use(useOf(nameOf(operation)));
    QVERIFY2(use.match(textBelow(where)).hasMatch(), qPrintable(where + " does not show it"));
}

QTEST_GUILESS_MAIN(Operations)
#include "tst_operations.moc"
