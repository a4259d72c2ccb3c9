#include "includetarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

QString readText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

QVector<Include> includesIn(const QString& file, const QString& text) {
    static const QRegularExpression pattern(QStringLiteral("^\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"]"));
    QVector<Include> includes;
    int line = 0;
    for (const QString& content : text.split(QLatin1Char('\n'))) {
        ++line;
        const QRegularExpressionMatch match = pattern.match(content);
        if (match.hasMatch())
            includes.append({file, line, match.captured(1)});
    }
    return includes;
}

IncludeTargets::IncludeTargets(const QString& project, const QString& qt)
    : projectDir(project), qtDir(qt), includeDirs({QString(), QStringLiteral("include/")}),
      qtModules(QDir(qtDir).entryList({QStringLiteral("Qt*")}, QDir::Dirs)) {
    for (const QString& library : QDir(projectDir + "/host").entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        includeDirs << "host/" + library + "/include/"
                    << "host/" + library + "/standin/";
}

QStringList IncludeTargets::placesOf(const QString& file) const {
    QStringList places{file};
    if (!file.startsWith(QLatin1String("include/kite/")))
        return places;
    const QString source = QFileInfo(file).baseName() + ".cpp";
    for (const QString& folder : QStringList{"plugin", "interface", "log", "instruction"}) {
        if (QFileInfo::exists(projectDir + '/' + folder + '/' + source))
            places << folder + '/' + source;
    }
    return places;
}

QStringList IncludeTargets::placesOf(const Include& include) const {
    const QString file = projectFile(include);
    if (!file.isEmpty())
        return placesOf(file);
    const QString module = qtModule(include.name);
    if (!module.isEmpty())
        return {"Qt/" + module};
    if (include.name.endsWith(QLatin1String(".moc")) || include.name.startsWith(QLatin1String("moc_")))
        return {QStringLiteral("own")};
    const bool fromStd = !include.name.contains(QLatin1Char('/')) && !include.name.contains(QLatin1Char('.'));
    return {(fromStd ? "std/" : "elsewhere/") + include.name};
}

QString IncludeTargets::projectFile(const Include& include) const {
    const QString folder = QFileInfo(include.file).path() + '/';
    for (const QString& base : QStringList{folder} + includeDirs) {
        const QString path = QDir::cleanPath(base + include.name);
        if (QFileInfo(projectDir + '/' + path).isFile())
            return path;
    }
    return {};
}

QString IncludeTargets::qtModule(const QString& name) const {
    const int slash = name.indexOf(QLatin1Char('/'));
    if (slash > 0 && qtModules.contains(name.left(slash)))
        return name.mid(2, slash - 2);
    for (const QString& module : qtModules) {
        if (QFileInfo(qtDir + '/' + module + '/' + name).isFile())
            return module.mid(2);
    }
    return {};
}
