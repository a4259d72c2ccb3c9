#include "includerules.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using Arrow = QPair<QString, QString>; // from, to: paths of the project

namespace {

// The name by which one includes a header of the place: "host/helm" -> "helm/probe.h"
QString probeName(const QString& place) {
    return place.section(QLatin1Char('/'), -1) + QLatin1String("/probe.h");
}

// "host/helm" -> "host/helm/include/helm/probe.h", "log" -> "log/probe.h"
QString probeFile(const QString& place) {
    const QString folder = place.startsWith(QLatin1String("host/")) ? place + QLatin1String("/include/")
                           : place == QLatin1String("include/kite") ? QStringLiteral("include/")
                                                                    : QString();
    return folder + probeName(place);
}

QString inWords(const Arrow& arrow) {
    return arrow.first + QLatin1String(" --> ") + arrow.second;
}

} // namespace

// The drawing of the architecture page: a line "plugin --> log", or with the path in quotes, 'kite["include/kite"]'.
class Architecture : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void theDrawingShowsEveryPlace();
    void everyArrowThatIsDrawnIsAllowed();
    void everyIncludeBetweenPlacesIsDrawn();

private:
    QString nodePath(const QString& id, const QString& label);
    QString placeOf(const QString& file) const;

    QHash<QString, QString> m_paths; // of a node's name in the drawing
    QSet<Arrow> m_arrows;
    const QString m_qt = QLibraryInfo::location(QLibraryInfo::HeadersPath);
};

QString Architecture::nodePath(const QString& id, const QString& label) {
    if (!label.isEmpty())
        m_paths[id] = label;
    return m_paths.contains(id) ? m_paths[id] : m_paths[id] = id;
}

void Architecture::initTestCase() {
    static const QRegularExpression line(
        QStringLiteral("^ *(\\w+)(?:\\[\"(.+?)\"\\])? --> (\\w+)(?:\\[\"(.+?)\"\\])?$"),
        QRegularExpression::MultilineOption);
    auto arrows = line.globalMatch(readText(KITE_SOURCE_DIR "/docs/architecture.md"));
    while (arrows.hasNext()) {
        const QRegularExpressionMatch arrow = arrows.next();
        const QString from = nodePath(arrow.captured(1), arrow.captured(2));
        m_arrows.insert({from, nodePath(arrow.captured(3), arrow.captured(4))});
    }
}

void Architecture::theDrawingShowsEveryPlace() {
    const QSet<QString> places{"include/kite", "plugin",         "interface",      "log",
                               "instruction",  "host/briskCore", "host/briskTarp", "host/helm",
                               "host/briskx",  "controller",     "pendant",        "examples"};
    const QStringList drawn = m_paths.values();
    QCOMPARE(QSet<QString>(drawn.begin(), drawn.end()), places);
}

void Architecture::everyArrowThatIsDrawnIsAllowed() {
    const QTemporaryDir project;
    for (const QString& place : qAsConst(m_paths)) {
        const QString path = project.filePath(probeFile(place));
        QVERIFY(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const IncludeTargets targets(project.path(), m_qt);
    QStringList forbidden;
    for (const Arrow& arrow : qAsConst(m_arrows)) {
        const QString file = arrow.first + QLatin1String("/drawn.cpp");
        forbidden += breaches({{file, 1, probeName(arrow.second)}}, targets);
    }
    QVERIFY2(forbidden.isEmpty(), qPrintable('\n' + forbidden.join('\n')));
}

QString Architecture::placeOf(const QString& file) const {
    for (const QString& place : m_paths) {
        if (file.startsWith(place + QLatin1Char('/')))
            return place;
    }
    return QString();
}

void Architecture::everyIncludeBetweenPlacesIsDrawn() {
    const IncludeTargets targets(KITE_SOURCE_DIR, m_qt);
    QSet<Arrow> seen;
    for (const QString& place : qAsConst(m_paths)) {
        QDirIterator files(KITE_SOURCE_DIR "/" + place, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = QDir(KITE_SOURCE_DIR).relativeFilePath(files.next());
            for (const Include& include : includesIn(file, readText(KITE_SOURCE_DIR "/" + file)))
                seen.insert({place, placeOf(targets.placesOf(include).first())});
        }
    }
    QStringList missing;
    for (const Arrow& arrow : qAsConst(seen)) {
        if (!arrow.second.isEmpty() && arrow.first != arrow.second && !m_arrows.contains(arrow))
            missing << inWords(arrow);
    }
    QVERIFY(seen.size() > 10);
    QVERIFY2(missing.isEmpty(), qPrintable("not drawn: " + missing.join(", ")));
}

QTEST_GUILESS_MAIN(Architecture)
#include "tst_architecture.moc"
