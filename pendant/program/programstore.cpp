#include "programstore.h"

#include "programfile.h"
#include "project/projectkeys.h"

#include <QFileInfo>

#include <utility>

using brisk::ModuleObject;

namespace pendant {

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
    if (m_isOpen && place == m_place && !m_folder.isReplaced())
        return;
    QString error;
    const bool isKept = keepUnsaved(&error);
    if (!isKept && error != m_reported && isProjectGone())
        m_toTell << error;
    // Of a project that was deleted nothing is left to go back to.
    if (isKept || isProjectGone())
        return open(place);
    reportOnce(error);
    m_isHeld = true;
    m_keepTimer.start();
}

void ProgramStore::open(const ProgramPlace& place) {
    QStringList lines;
    QString problem = place.problem();
    const bool isOpen = place.isValid() && read(place, &lines, &problem);
    if (!isOpen && !m_isOpen && place == m_place && problem == m_problem)
        return;
    m_place = place;
    m_folder.hold(place.projectFolder());
    m_problem = problem;
    m_isOpen = isOpen;
    m_isBlocked = false;
    m_other.clear();
    m_reported.clear();
    m_program.load(lines);
    if (m_isOpen)
        takeUpUnsaved();
    m_keepTimer.stop();
    emit opened();
    const QStringList failures = std::exchange(m_toTell, QStringList());
    for (const QString& failure : failures)
        emit failed(failure);
}

bool ProgramStore::read(const ProgramPlace& place, QStringList* lines, QString* problem) {
    QByteArray fingerprint;
    QString why;
    const bool isRead = ProgramFile::isMissing(place.file(), place.projectFolder(), &why) ||
                        (why.isEmpty() && ProgramFile::load(place.file(), lines, &why, &fingerprint));
    *problem = why;
    if (!isRead)
        return false;
    m_basis = fingerprint;
    m_basisTime = QFileInfo(place.file()).lastModified();
    return true;
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
    if (!isProjectGone() && !keepOther(error))
        return false;
    if (!write(m_place.file(), error))
        return false;
    m_other.clear();
    m_basis = ProgramFile::fingerprint(m_program.lines());
    m_basisTime = QFileInfo(m_place.file()).lastModified();
    m_program.setSaved();
    keepNow();
    return true;
}

bool ProgramStore::isProjectGone() const {
    return m_folder.isGone();
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
    if (m_isHeld)
        m_followTimer.start();
    if (!std::exchange(m_reported, QString()).isEmpty())
        emit recovered();
}

void ProgramStore::reportOnce(const QString& what) {
    if (what == m_reported)
        return;
    m_reported = what;
    emit failed(what);
}

} // namespace pendant
