#include "controller/project/projectstore.h"

#include "controller/project/persistentvariables.h"
#include "controller/project/project.h"
#include "controller/project/projectfile.h"

#include <QDir>

#include <algorithm>

namespace controller {

namespace {

// In bytes, what the usual file systems take.
const int longestName = 255;

} // namespace

QString ProjectStore::refusalOfName(const QString& name) {
    if (name.isEmpty())
        return QStringLiteral("A project needs a name.");
    const bool leadsElsewhere = name == QLatin1String(".") || name == QLatin1String("..") ||
                                name.contains(QLatin1Char('/')) || name.contains(QChar::Null);
    if (leadsElsewhere || name == QLatin1String("_temp"))
        return QStringLiteral("\"%1\" is no name for a project.").arg(name);
    return name.toUtf8().size() > longestName ? QStringLiteral("The name is too long.") : QString();
}

ProjectStore::ProjectStore(Project* project, PersistentVariables* variables, QObject* parent, int saveDelayMs)
    : QObject(parent), m_project(project), m_variables(variables) {
    m_soon.setSingleShot(true);
    m_soon.setInterval(saveDelayMs);
    connect(&m_soon, &QTimer::timeout, this, &ProjectStore::saveSoon);
    connect(project, &Project::changed, this, &ProjectStore::noteChange);
    connect(variables, &PersistentVariables::changed, this, &ProjectStore::noteChange);
}

// Nobody is there any more to hear of a failure.
ProjectStore::~ProjectStore() {
    blockSignals(true);
    save();
}

void ProjectStore::noteChange() {
    if (m_isOpening || m_folder.isEmpty())
        return;
    m_isUnsaved = true;
    // So that what is written all the time is kept too.
    if (!m_soon.isActive())
        m_soon.start();
}

void ProjectStore::start(const QString& workspace, const QString& reference, const QString& autoload) {
    QStringList problems{close()};
    if (!refusalOfName(m_project->robot()).isEmpty()) {
        emit failed(
            QStringLiteral("The robot's identifier \"%1\" is no name for a folder: the project is kept nowhere.")
                .arg(m_project->robot()));
        return;
    }
    m_workspace = workspace;
    if (!reference.isEmpty())
        problems << open(reference);
    else if (names().contains(autoload))
        problems << open(m_project->referenceOf(autoload));
    if (m_folder.isEmpty())
        problems << openCells();
    problems.removeAll(QString());
    for (const QString& problem : problems)
        emit failed(problem);
}

QString ProjectStore::openCells() {
    const QString reference = m_project->referenceOf(m_project->cellsStart().name);
    // What is not stored yet may have got persistent variables from elsewhere.
    if (m_project->reference() != reference)
        m_project->open(m_project->cellsStart());
    const QString folder = folderOf(reference);
    if (QFileInfo::exists(folder))
        return open(reference);
    const QString refusal = refusalOfName(m_project->cellsStart().name);
    if (!refusal.isEmpty() || !QDir().mkpath(folder))
        return QStringLiteral("The folder %1 cannot be made: the project is kept nowhere. %2").arg(folder, refusal);
    const QString why = projectfile::writeInfo(folder);
    return why.isEmpty() ? take(folder) : why;
}

QString ProjectStore::open(const QString& reference) {
    const QString folder = folderOf(reference);
    const bool isOpen = !m_folder.isEmpty() && folder == m_folder;
    if (isOpen && !isGone())
        return QString();
    QString why = problemOf(reference);
    ProjectStart start = startOf(reference.section(QLatin1Char('/'), 1));
    if (why.isEmpty() && QFileInfo::exists(projectfile::pathIn(folder)))
        why = projectfile::read(folder, &start);
    // What cannot be kept would be lost.
    if (why.isEmpty() && !isOpen)
        why = save();
    if (!why.isEmpty())
        return why;
    m_isOpening = true;
    m_project->open(start);
    m_isOpening = false;
    return take(folder);
}

QString ProjectStore::take(const QString& folder) {
    m_folder = folder;
    m_isToldGone = false;
    m_wasWritten = QFileInfo::exists(projectfile::pathIn(folder));
    m_isUnsaved = !m_wasWritten;
    const QString why = save();
    if (!why.isEmpty())
        emit failed(why);
    return QString();
}

ProjectStart ProjectStore::startOf(const QString& name) const {
    ProjectStart start = m_project->cellsStart();
    if (name == start.name)
        return start;
    start.name = name;
    start.variables.clear();
    start.points.clear();
    return start;
}

QString ProjectStore::problemOf(const QString& reference) const {
    const QString name = reference.section(QLatin1Char('/'), 1);
    const QString refusal = refusalOfName(name);
    if (m_workspace.isEmpty())
        return QStringLiteral("The project %1 was not opened: there is no workspace.").arg(reference);
    if (reference != m_project->referenceOf(name))
        return QStringLiteral("The project %1 is none of this robot's.").arg(reference);
    if (!refusal.isEmpty())
        return QStringLiteral("The project %1 was not opened: %2").arg(reference, refusal);
    if (!QFileInfo(folderOf(reference)).isDir())
        return QStringLiteral("The project %1 was not opened: there is no folder %2.")
            .arg(reference, folderOf(reference));
    return QString();
}

QString ProjectStore::save() {
    m_soon.stop();
    if (m_folder.isEmpty() || !m_isUnsaved)
        return QString();
    if (isGone()) {
        tellGone();
        return QString();
    }
    const QString why = projectfile::write(m_folder, *m_project, *m_variables);
    m_isUnsaved = !why.isEmpty();
    m_wasWritten = m_wasWritten || why.isEmpty();
    return why;
}

void ProjectStore::saveSoon() {
    const QString why = save();
    if (!why.isEmpty())
        emit failed(why);
}

// One that somebody made anew in the place of it is another project.
bool ProjectStore::isGone() const {
    return m_wasWritten ? !QFileInfo::exists(projectfile::pathIn(m_folder)) : !QFileInfo(m_folder).isDir();
}

void ProjectStore::tellGone() {
    m_isUnsaved = false;
    if (m_isToldGone)
        return;
    m_isToldGone = true;
    emit failed(
        QStringLiteral("The project %1 was deleted while it is open: its variables and points are kept nowhere. "
                       "Open another one.")
            .arg(m_project->reference()));
}

QString ProjectStore::close() {
    const QString why = save();
    m_folder.clear();
    m_workspace.clear();
    m_isUnsaved = false;
    return why;
}

QString ProjectStore::robotFolder() const {
    return m_workspace + QLatin1Char('/') + m_project->robot();
}

QString ProjectStore::folderOf(const QString& reference) const {
    return robotFolder() + QLatin1Char('/') + reference.section(QLatin1Char('/'), 1);
}

QStringList ProjectStore::names() const {
    if (m_workspace.isEmpty())
        return QStringList();
    QStringList names = QDir(robotFolder()).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::NoSort);
    names.removeAll(QStringLiteral("_temp"));
    std::sort(names.begin(), names.end());
    return names;
}

// Whether it comes to that shows when it is written next.
void ProjectStore::expectRemoval(const QString& name) {
    if (m_folder.isEmpty() || folderOf(m_project->referenceOf(name)) != m_folder)
        return;
    m_isUnsaved = true;
    m_soon.start();
}

} // namespace controller
