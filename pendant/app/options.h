#pragma once

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>

namespace pendant {

/// What the command line asks for.
struct Options {
    QStringList pluginFolders; ///< absolute paths
    QString tourFolder;        ///< absolute path; empty for no tour
    QString workFolder;        ///< absolute path
    QString cellFile;          ///< absolute path; empty for the cell that is built in
    QSize size{1280, 800};     ///< of the window in pixels
    QString language;          ///< empty for what was chosen last
    QString theme;             ///< empty for what was chosen last
    QString error;             ///< what is wrong with the command line; empty when nothing is
    QString help;              ///< set when help or version was asked for: what to print
};

class OptionReader {
    Q_DECLARE_TR_FUNCTIONS(pendant::OptionReader)

public:
    /// Reads `arguments`, the program's name first. Paths are taken relative to the current folder.
    static Options read(const QStringList& arguments);

private:
    static void check(const QStringList& extra, Options& options);
};

} // namespace pendant
