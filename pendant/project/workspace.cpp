#include "workspace.h"

#include "projectkeys.h"
#include "settings.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using brisk::ModuleObject;

namespace pendant {

namespace {

const QString workspaceSetting = QStringLiteral("workspace");
const int longestName = 60;

QString infoFile(const QString& folder) {
    return folder + QStringLiteral("/projectinfo.json");
}

bool leadsElsewhere(const QString& name) {
    return name == QLatin1String(".") || name == QLatin1String("..") || name.contains(QLatin1Char('/'));
}

bool hasUnprintable(const QString& name) {
    return std::any_of(name.begin(), name.end(), [](QChar letter) {
        return letter.category() == QChar::Other_Control || letter.category() == QChar::Other_Format;
    });
}

} // namespace

void Workspace::declare() {
    if (path().isEmpty())
        settings::setText(workspaceSetting, QDir::current().absoluteFilePath(workspaceSetting));
}

QString Workspace::path() {
    return settings::text(workspaceSetting);
}

QString Workspace::robot() {
    const QString id = m(projectkeys::robotId())->getString();
    return id.isEmpty() ? QStringLiteral("LOCALHOST") : id;
}

QString Workspace::reference(const QString& name) {
    return robot() + QLatin1Char('/') + name;
}

QString Workspace::folder(const QString& name) {
    return QDir::current().absoluteFilePath(path() + QLatin1Char('/') + reference(name));
}

Workspace::Info Workspace::info(const QString& name) {
    QFile file(infoFile(folder(name)));
    if (!file.open(QIODevice::ReadOnly))
        return Info();
    const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    return {json.value(QStringLiteral("description")).toString(), json.value(QStringLiteral("create_time")).toString()};
}

bool Workspace::isBlank(const QString& reference) {
    const QString path = QDir::current().absoluteFilePath(Workspace::path() + QLatin1Char('/') + reference);
    return QFileInfo(path).isDir() && !QFileInfo::exists(path + QStringLiteral("/project.json"));
}

QString Workspace::problemOfName(const QString& name) {
    if (name.isEmpty())
        return tr("Type a name.");
    if (name == QLatin1String("_temp"))
        return tr("“_temp” is kept for the pendant itself. Choose another name.");
    if (leadsElsewhere(name))
        return tr("A name has no “/” and is neither “.” nor “..”.");
    if (name.startsWith(QLatin1Char('.')))
        return tr("A name does not begin with a dot: the folder would be hidden.");
    if (name != name.trimmed() || hasUnprintable(name))
        return tr("A name has no blanks at its ends and no letters that cannot be seen.");
    return name.size() > longestName ? tr("A name has at most %1 letters.").arg(longestName) : QString();
}

QString Workspace::create(const QString& name, const QString& description) {
    const QString problem = problemOfName(name);
    if (!problem.isEmpty())
        return problem;
    const QString path = folder(name);
    if (QFileInfo::exists(path))
        return tr("There is a project “%1” already.").arg(name);
    if (!QDir().mkpath(path))
        return tr("The folder %1 cannot be made.").arg(QDir::toNativeSeparators(path));
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    const QJsonObject json{{QStringLiteral("description"), description}, {QStringLiteral("create_time"), now}};
    const bool isWritten = m()->writeToJson(infoFile(path), json, /*indented*/ true);
    m(projectkeys::refresh())->trigger();
    return isWritten ? QString() : tr("The description of “%1” was not written.").arg(name);
}

void Workspace::open(QObject* sender, const QString& name) {
    m(projectkeys::name())->setValue(sender, reference(name));
}

QString Workspace::remove(QObject* sender, const QString& name) {
    if (leadsElsewhere(name) || name.isEmpty() || !isInItsPlace(name))
        return tr("There is no project “%1”.").arg(name);
    ModuleObject task(QStringLiteral("tmp"));
    task.set(nullptr, QStringLiteral("name"), name);
    relay()->execCommand(sender, QStringLiteral("project.remove_task"), &task);
    const QString problem = deleteFolder(name);
    m(projectkeys::refresh())->trigger();
    return problem;
}

QString Workspace::deleteFolder(const QString& name) {
    const QString path = folder(name);
    const bool isDeleted = QFileInfo(path).isSymLink() ? QFile::remove(path) : QDir(path).removeRecursively();
    return isDeleted ? QString()
                     : tr("The project “%1” was not deleted completely: something in %2 cannot be deleted.")
                           .arg(name, QDir::toNativeSeparators(path));
}

// In the robot's folder of the workspace, where neither leads elsewhere.
bool Workspace::isInItsPlace(const QString& name) {
    const QString workspace = QFileInfo(path()).canonicalFilePath();
    const QFileInfo project(folder(name));
    const bool isThere = project.isSymLink() || project.isDir();
    return isThere && !path().isEmpty() && !workspace.isEmpty() && !leadsElsewhere(robot()) &&
           QFileInfo(project.path()).canonicalFilePath() == workspace + QLatin1Char('/') + robot();
}

} // namespace pendant
