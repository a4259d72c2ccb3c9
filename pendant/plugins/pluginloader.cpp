#include "pluginloader.h"

#include "opensharedobject.h"
#include "report.h"

#include "tarp/factory.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <dirent.h>

namespace pendant {

namespace {

// The system's words for why the folder cannot be read; empty when it can.
QString openingProblem(const QString& folder) {
    DIR* opened = ::opendir(QFile::encodeName(folder).constData());
    if (!opened)
        return qt_error_string(errno);
    ::closedir(opened);
    return QString();
}

QStringList registeredNames() {
    return bfactory()->creators.keys();
}

QStringList namesSince(const QStringList& before) {
    QStringList names = registeredNames();
    for (const QString& name : before)
        names.removeAll(name);
    names.sort();
    return names;
}

} // namespace

void PluginLoader::add(const PluginFile& file) {
    m_files.append(file);
    if (!file.error.isEmpty())
        reportError(QStringLiteral("pendant"), file.path + QLatin1Char(' ') + file.error);
}

void PluginLoader::loadFolder(const QString& folder) {
    const QFileInfo info(folder);
    if (!info.exists())
        return add({folder, {}, tr("does not exist.")});
    if (!info.isDir())
        return add({folder, {}, tr("is not a folder.")});
    const QString problem = openingProblem(folder);
    if (!problem.isEmpty())
        return add({folder, {}, tr("cannot be read: %1.").arg(problem)});
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.so")}, QDir::Files | QDir::System, QDir::Name);
    if (names.isEmpty())
        return add({folder, {}, tr("holds no plugin file (*.so).")});
    for (const QString& name : names)
        loadFile(QDir(folder).absoluteFilePath(name));
}

void PluginLoader::loadFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        return add({path, {}, info.isSymLink() ? tr("points to a file that does not exist.") : tr("does not exist.")});
    if (m_canonicalPaths.contains(info.canonicalFilePath()))
        return;
    m_canonicalPaths.insert(info.canonicalFilePath());

    const QStringList before = registeredNames();
    const QString problem = openSharedObject(info.canonicalFilePath());
    const QStringList names = namesSince(before);
    if (!problem.isEmpty())
        return add({path, names, problem + QLatin1Char('.')});
    if (names.isEmpty())
        return add({path, names, tr("registers no plugin, or only names that other plugins hold.")});
    add({path, names, QString()});
}

QString PluginLoader::fileOf(const QString& plugin) const {
    const auto found = std::find_if(m_files.begin(), m_files.end(),
                                    [&](const PluginFile& file) { return file.names.contains(plugin); });
    return found == m_files.end() ? QString() : found->path;
}

bool PluginLoader::hasErrors() const {
    return std::any_of(m_files.begin(), m_files.end(), [](const PluginFile& file) { return !file.error.isEmpty(); });
}

} // namespace pendant
