#pragma once

#include <QCoreApplication>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace pendant {

/// What became of one plugin file, or of a folder that has none to offer.
struct PluginFile {
    QString path;
    QStringList names; ///< the plugins that it registered, sorted
    QString error;     ///< why it brought no plugin, to be read after the path; empty when all is well
};

/// Loads plugin files. Loading runs the file's registrations; the plugins themselves are made by a PluginSession.
///
/// A file stays loaded for the life of the process: what it registered points into it. What cannot be loaded is
/// reported with path and reason in the message list and the log, and the others are loaded all the same.
class PluginLoader {
    Q_DECLARE_TR_FUNCTIONS(pendant::PluginLoader)

public:
    /// Loads every *.so file of `folder` in the order of the names. A file that was loaded before, also under another
    /// name (a symbolic link), is passed over.
    void loadFolder(const QString& folder);
    void loadFile(const QString& path);

    /// Everything that was tried, in order.
    const QList<PluginFile>& files() const { return m_files; }
    /// The path of the file that registered `plugin`; empty for one that is part of the program.
    QString fileOf(const QString& plugin) const;
    bool hasErrors() const;

private:
    void add(const PluginFile& file);

    QList<PluginFile> m_files;
    QSet<QString> m_canonicalPaths;
};

} // namespace pendant
