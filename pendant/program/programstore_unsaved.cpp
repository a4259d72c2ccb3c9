#include "programfile.h"
#include "programstore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace pendant {

namespace {

// main.txt, .other -> main.txt.other, main.txt.other2, ...
QString freeName(const QString& path, const QString& ending) {
    QString target = path + ending;
    for (int number = 2; QFileInfo::exists(target); ++number)
        target = path + ending + QString::number(number);
    return target;
}

// The new name; empty when it cannot be renamed.
QString moveAway(const QString& path, const QString& ending) {
    const QString target = freeName(path, ending);
    return QFile::rename(path, target) ? target : QString();
}

} // namespace

void ProgramStore::takeUpUnsaved() {
    const QString path = m_place.unsavedFile();
    QStringList lines;
    QString error;
    if (!QFileInfo::exists(path))
        return;
    if (!ProgramFile::load(path, &lines, &error))
        return setAside(QStringLiteral(".unreadable"), error);
    if (isUnsavedOutdated() && lines != m_program.lines())
        return setAside(QStringLiteral(".older"), tr("There are unsaved changes of an older program %1. They were not "
                                                     "taken up: it was saved since.")
                                                      .arg(m_place.name()));
    m_program.replaceAll(lines, tr("Take up unsaved changes"));
    setTakenUp(m_program.isModified());
    if (!m_hasTakenUp)
        forgetUnsaved();
}

bool ProgramStore::isUnsavedOutdated() const {
    return !m_basis.isEmpty() && QFileInfo(m_place.unsavedFile()).lastModified() < m_basisTime;
}

// The changes to come must not be written over it.
void ProgramStore::setAside(const QString& ending, const QString& error) {
    const QString target = moveAway(m_place.unsavedFile(), ending);
    m_isBlocked = target.isEmpty();
    const QString what = m_isBlocked ? tr("It cannot be renamed, so changes are kept by “Save” only.")
                                     : tr("It was renamed to %1.").arg(target);
    m_toTell << error + QLatin1Char(' ') + what;
}

bool ProgramStore::clearUnsaved(QString* error) {
    m_isBlocked = m_isBlocked && QFileInfo::exists(m_place.unsavedFile()) &&
                  moveAway(m_place.unsavedFile(), QStringLiteral(".unreadable")).isEmpty();
    if (m_isBlocked)
        *error = tr("Changes that are not saved are not kept: %1 is in the way and cannot be renamed.")
                     .arg(QDir::toNativeSeparators(m_place.unsavedFile()));
    return !m_isBlocked;
}

bool ProgramStore::keepUnsaved(QString* error) {
    m_keepTimer.stop();
    if (!m_isOpen)
        return true;
    if (!m_program.isModified()) {
        forgetUnsaved();
        return true;
    }
    if (!clearUnsaved(error) || !write(m_place.unsavedFile(), error))
        return false;
    // The time of the file that they belong to tells later whether they still do.
    QFile unsaved(m_place.unsavedFile());
    if (m_basisTime.isValid() && unsaved.open(QIODevice::ReadWrite))
        unsaved.setFileTime(m_basisTime, QFileDevice::FileModificationTime);
    return true;
}

void ProgramStore::forgetUnsaved() {
    if (!m_isBlocked && !isProjectGone())
        QFile::remove(m_place.unsavedFile());
}

// Of two who have changed the file, none loses anything.
bool ProgramStore::keepOther(QString* error) {
    QByteArray now;
    if (!ProgramFile::readFingerprint(m_place.file(), &now, error))
        return false;
    if (now.isEmpty() || now == m_basis || now == ProgramFile::fingerprint(m_program.lines()))
        return true;
    if (now == m_other)
        return copyOther(error);
    m_other = now;
    *error = tr("The program was not written: somebody else has changed %1 since it was opened. Save once more to "
                "write yours; the other one is then kept beside it as %2.")
                 .arg(QDir::toNativeSeparators(m_place.file()),
                      QFileInfo(freeName(m_place.file(), QStringLiteral(".other"))).fileName());
    return false;
}

bool ProgramStore::copyOther(QString* error) {
    const QString target = freeName(m_place.file(), QStringLiteral(".other"));
    if (QFile::copy(m_place.file(), target))
        return true;
    *error = tr("The program was not written: what somebody else has written cannot be copied to %1.")
                 .arg(QDir::toNativeSeparators(target));
    return false;
}

} // namespace pendant
