#include "includerules.h"

namespace {

enum Kind { KnowsOnly, NeverKnows };

/// A place is a path of the project, "Qt/MODULE", "std/HEADER", or "own" for the file's own folder and what is made of
/// it. It covers what lies below; "*" stands for one name. `who` and `places` hold places with a blank between them.
struct Rule {
    const char* who;
    Kind kind;
    const char* places;
    const char* reason;
};

const char* const library = "include/kite plugin interface log instruction";
const char* const beneath = "the host's libraries know only those beneath";

const Rule rules[] = {
    {"include/kite", KnowsOnly, "include/kite host/*/include Qt/Core Qt/Gui Qt/Widgets std",
     "a public header knows public headers, host/*/include, Qt Core, Gui, Widgets and the standard library"},
    {"plugin interface instruction", KnowsOnly,
     "include/kite plugin interface log instruction host/*/include Qt/Core Qt/Gui Qt/Widgets std",
     "the library knows itself, host/*/include, Qt Core, Gui, Widgets and the standard library"},
    {"log", KnowsOnly,
     "include/kite log host/*/include Qt/Core std elsewhere/fcntl.h elsewhere/unistd.h elsewhere/sys/stat.h "
     "elsewhere/sanitizer",
     "log knows itself, host/*/include, Qt Core, the standard library, the system's files and the sanitizer"},
    {library, NeverKnows, "std/filesystem std/charconv", "the pendant's compiler lacks it"},
    {"log", NeverKnows, "interface include/kite/kite.h", "log knows nothing of interface"},
    {"instruction", NeverKnows, "plugin include/kite/kite.h", "instruction knows nothing of plugin"},
    {"host", NeverKnows, library, "the host does not know the library"},
    {"host", NeverKnows, "controller pendant", "the host does not know who runs it"},
    {"host/*/include", NeverKnows, "host/*/standin host/*/src", "the platform interface does not show the stand-in"},
    {"host/briskCore", NeverKnows, "host/briskTarp host/helm host/briskx", beneath},
    {"host/briskTarp", NeverKnows, "host/helm host/briskx", beneath},
    {"host/helm", NeverKnows, "host/briskx", beneath},
    {"controller", NeverKnows, library, "the controller does not know the library"},
    {"controller", NeverKnows, "pendant Qt/Widgets", "the controller has no widgets"},
    {"pendant", NeverKnows, library, "the pendant meets plugins only through the module factory"},
    {"examples", KnowsOnly, "own include/kite Qt std elsewhere/pendanttest",
     "an example knows kite/, Qt, the standard library and itself, and its test the library for tests"},
};

bool covers(const QString& place, const QString& path) {
    const QStringList wanted = place.split(QLatin1Char('/'));
    const QStringList names = path.split(QLatin1Char('/'));
    if (wanted.size() > names.size())
        return false;
    for (int i = 0; i < wanted.size(); ++i) {
        if (wanted[i] != QLatin1String("*") && wanted[i] != names[i])
            return false;
    }
    return true;
}

QString ownFolder(const QString& file) {
    return file.section(QLatin1Char('/'), 0, 1);
}

bool anyCovered(const QString& places, const QStringList& paths, const QString& file) {
    for (const QString& place : places.split(QLatin1Char(' '))) {
        for (const QString& path : paths) {
            const bool isOwn = place == QLatin1String("own") && covers(ownFolder(file), path);
            if (isOwn || covers(place, path))
                return true;
        }
    }
    return false;
}

bool keeps(const Rule& rule, const Include& include, const IncludeTargets& targets) {
    if (!anyCovered(rule.who, targets.placesOf(include.file), include.file))
        return true;
    const QStringList paths = targets.placesOf(include);
    const bool isMadeOfTheFile = paths.contains(QStringLiteral("own"));
    const bool isNamed = anyCovered(rule.places, paths, include.file);
    return rule.kind == KnowsOnly ? isNamed || isMadeOfTheFile : !isNamed;
}

} // namespace

QStringList breaches(const QVector<Include>& includes, const IncludeTargets& targets) {
    QStringList found;
    for (const Include& include : includes) {
        for (const Rule& rule : rules) {
            if (!keeps(rule, include, targets))
                found << QStringLiteral("%1:%2: includes %3: %4")
                             .arg(include.file, QString::number(include.line), include.name, rule.reason);
        }
    }
    return found;
}
