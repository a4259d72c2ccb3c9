#include "programplace.h"

#include "brisk/modulemanager.h"
#include "helm/managerhelper.h"
#include "project/projectkeys.h"

#include <QDir>
#include <QStringList>

#include <algorithm>

namespace pendant {

namespace {

// One that names a folder or a file in the folder where it is looked up, and nothing else.
bool isPlainName(const QString& name) {
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/')) && !name.contains(QChar::Null);
}

bool arePlainNames(const QStringList& names) {
    return std::all_of(names.begin(), names.end(), isPlainName);
}

} // namespace

ProgramPlace::ProgramPlace(const QString& workspace, const QString& project, const QString& function)
    : m_project(project), m_name(function.isEmpty() ? QStringLiteral("main") : function) {
    if (project.isEmpty())
        m_problem = tr("No project is open.");
    else if (!arePlainNames(project.split(QLatin1Char('/'))))
        m_problem = tr("The project's name “%1” leads out of the workspace.").arg(project);
    else if (!isPlainName(m_name))
        m_problem = tr("The program's name “%1” leads out of the project.").arg(m_name);
    else
        m_file = QDir::current().absoluteFilePath(workspace + QLatin1Char('/') + project +
                                                  QStringLiteral("/programs/") + m_name + QStringLiteral(".txt"));
}

ProgramPlace ProgramPlace::ofTree() {
    const QString setting =
        helm::ManagerHelper::instance()->settingManager()->getStr(QStringLiteral("workspace"), QString());
    return {setting.isEmpty() ? QStringLiteral("workspace") : setting, m(projectkeys::name())->getString(),
            m(projectkeys::function())->getString()};
}

QString ProgramPlace::projectFolder() const {
    return isValid() ? QDir::cleanPath(m_file + QStringLiteral("/../..")) : QString();
}

QString ProgramPlace::unsavedFile() const {
    return isValid() ? m_file + QStringLiteral(".unsaved") : QString();
}

bool ProgramPlace::operator==(const ProgramPlace& other) const {
    return m_project == other.m_project && m_name == other.m_name && m_file == other.m_file;
}

} // namespace pendant
