#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// One #include line of a file; the file's path is relative to the project.
struct Include {
    QString file;
    int line;
    QString name;
};

/// The whole text of a file; ends the program when it cannot be read.
QString readText(const QString& path);

/// The #include lines of `text`, the content of `file`.
QVector<Include> includesIn(const QString& file, const QString& text);

/// Finds out where included headers are from.
class IncludeTargets {
public:
    /// \param project the project's folder
    /// \param qt      the folder that holds QtCore, QtGui, ...
    IncludeTargets(const QString& project, const QString& qt);

    /// Every place that the file counts for: its own path, and for a public header also the folder of its source.
    QStringList placesOf(const QString& file) const;

    /// Every place that the included header counts for: those of a project file, "Qt/Core" and so on, "std/NAME", "own"
    /// for what the build makes of the file itself, "elsewhere/NAME" for anything else.
    QStringList placesOf(const Include& include) const;

private:
    QString projectFile(const Include& include) const;
    QString qtModule(const QString& name) const;

    QString projectDir;
    QString qtDir;
    QStringList includeDirs;
    QStringList qtModules;
};
