#include "programstore.h"

#include "programfile.h"
#include "project/projectkeys.h"

#include <QFile>
#include <QFileInfo>

using brisk::ModuleObject;

namespace pendant {

namespace {

// The new name; empty when it cannot be renamed.
QString moveAway(const QString& path) {
    QString target = path + QStringLiteral(".unreadable");
    for (int number = 2; QFileInfo::exists(target); ++number)
        target = path + QStringLiteral(".unreadable%1").arg(number);
    return QFile::rename(path, target) ? target : QString();
}

} // namespace

ProgramStore::ProgramStore(QObject* parent, int keepDelayMs)
    : QObject(parent), m_problem(m_place.problem()), m_project(projectkeys::name()),
      m_function(projectkeys::function()) {
    m_followTimer.setSingleShot(true);
    m_followTimer.setInterval(0);
    connect(&m_followTimer, &QTimer::timeout, this, &ProgramStore::follow);
    m_keepTimer.setSingleShot(true);
    m_keepTimer.setInterval(keepDelayMs);
    connect(&m_keepTimer, &QTimer::timeout, this, &ProgramStore::keepNow);
    for (const FollowedNode* followed : {&m_project, &m_function}) {
        connect(followed, &FollowedNode::renewed, this, &ProgramStore::listen);
        listen(followed->node());
    }
    connect(&m_program, &Program::linesChanged, this, &ProgramStore::keepSoon);
    connect(&m_program, &Program::modifiedChanged, this, [this](bool modified) {
        if (!modified)
            setTakenUp(false);
    });
}

ProgramStore::~ProgramStore() {
    QString error;
    if (!keepUnsaved(&error))
        reportOnce(error);
}

void ProgramStore::listen(ModuleObject* node) {
    connect(node, &ModuleObject::changed, &m_followTimer, QOverload<>::of(&QTimer::start));
    m_followTimer.start();
}

void ProgramStore::follow() {
    const ProgramPlace place = ProgramPlace::ofTree();
    m_isHeld = false;
    if (m_isOpen && place == m_place)
        return;
    QString error;
    const bool isKept = keepUnsaved(&error);
    if (!isKept)
        reportOnce(error);
    // Of a project that was deleted nothing is left to go back to.
    if (isKept || isProjectGone())
        return open(place);
    m_isHeld = true;
    m_keepTimer.start();
}

void ProgramStore::open(const ProgramPlace& place) {
    QStringList lines;
    QString problem = place.problem();
    const bool isOpen =
        place.isValid() && (!QFileInfo::exists(place.file()) || ProgramFile::load(place.file(), &lines, &problem));
    if (!isOpen && !m_isOpen && place == m_place && problem == m_problem)
        return;
    m_place = place;
    m_hadProject = QFileInfo(place.projectFolder()).isDir();
    m_problem = problem;
    m_isOpen = isOpen;
    m_reported.clear();
    m_program.load(lines);
    if (m_isOpen)
        takeUpUnsaved();
    m_keepTimer.stop();
    emit opened();
}

void ProgramStore::takeUpUnsaved() {
    const QString path = m_place.unsavedFile();
    QStringList lines;
    QString error;
    if (!QFileInfo::exists(path))
        return;
    if (!ProgramFile::load(path, &lines, &error))
        return setUnreadableAside(error);
    m_program.replaceAll(lines, tr("Take up unsaved changes"));
    setTakenUp(m_program.isModified());
    if (!m_hasTakenUp)
        forgetUnsaved();
}

// The changes to come must not be written over it.
void ProgramStore::setUnreadableAside(const QString& error) {
    const QString target = moveAway(m_place.unsavedFile());
    emit failed(target.isEmpty() ? error : error + QLatin1Char(' ') + tr("It was renamed to %1.").arg(target));
}

void ProgramStore::setTakenUp(bool takenUp) {
    if (takenUp == m_hasTakenUp)
        return;
    m_hasTakenUp = takenUp;
    emit takenUpChanged(takenUp);
}

bool ProgramStore::save(QString* error) {
    if (!m_isOpen) {
        *error = m_problem;
        return false;
    }
    if (!write(m_place.file(), error))
        return false;
    m_program.setSaved();
    keepNow();
    return true;
}

bool ProgramStore::keepUnsaved(QString* error) {
    m_keepTimer.stop();
    if (!m_isOpen)
        return true;
    if (m_program.isModified())
        return write(m_place.unsavedFile(), error);
    forgetUnsaved();
    return true;
}

bool ProgramStore::isProjectGone() const {
    return m_hadProject && !QFileInfo(m_place.projectFolder()).isDir();
}

bool ProgramStore::write(const QString& path, QString* error) {
    if (!isProjectGone())
        return ProgramFile::save(path, m_program.lines(), error);
    *error = tr("The program was not written: its project was deleted.");
    return false;
}

void ProgramStore::keepSoon() {
    if (m_isOpen && !m_keepTimer.isActive())
        m_keepTimer.start();
}

void ProgramStore::keepNow() {
    QString error;
    if (!keepUnsaved(&error)) {
        reportOnce(error);
        return m_keepTimer.start();
    }
    m_reported.clear();
    if (m_isHeld)
        m_followTimer.start();
}

void ProgramStore::forgetUnsaved() {
    QFile::remove(m_place.unsavedFile());
}

void ProgramStore::reportOnce(const QString& what) {
    if (what == m_reported)
        return;
    m_reported = what;
    emit failed(what);
}

} // namespace pendant
