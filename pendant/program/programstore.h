#pragma once

#include "heldfolder.h"
#include "program.h"
#include "programplace.h"
#include "project/followednode.h"

#include <QByteArray>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

namespace pendant {

/// The program of the open project, and its file.
///
/// It opens the program when the tree names a project or a function, or other ones, when control is back in the event
/// loop. Changes that are not saved are kept beside the file ("main.txt.unsaved"): a moment after they were made, and
/// when the program is left or the store goes. When such are found on opening, they are taken up as one step of the
/// history: undo gives the saved program, save keeps them. Those that belong to an older file, by the time that they
/// carry, are moved aside and told of. What can be neither read nor moved is never written over.
///
/// There is no program in a project whose folder is there and has none: it is empty. Where that is not certain, none is
/// open. A project that was deleted and made again is another one: its program is opened when the tree names it again.
///
/// When the changes cannot be kept, the program stays open although the tree names another one; it is left when
/// they are kept, saved or undone. A project that was deleted meanwhile is not made again: its program is left without
/// them. User-interface thread only.
class ProgramStore : public QObject {
    Q_OBJECT

public:
    /// It opens nothing before control is in the event loop.
    /// \param keepDelayMs how long a change may wait until it is kept beside the file
    explicit ProgramStore(QObject* parent = nullptr, int keepDelayMs = 1000);
    /// Keeps what is not saved. Ask keepUnsaved() before, to be able to tell somebody when it cannot.
    ~ProgramStore() override;

    /// Lives as long as the store, and is empty while none is open. Do not load() it, and do not change it while
    /// isOpen() is false: it would be kept nowhere.
    Program* program() { return &m_program; }
    bool isOpen() const { return m_isOpen; }
    /// Why none is open, a sentence: no project, a name that leads nowhere, a file that cannot be read.
    QString problem() const { return m_problem; }
    /// Where the open program lies, or the one that could not be opened.
    const ProgramPlace& place() const { return m_place; }
    /// The open program had unsaved changes from before, and they have not been saved or undone since.
    bool hasTakenUpUnsaved() const { return m_hasTakenUp; }

    /// Writes the program to its file. A file that somebody else has changed since it was read is not written over: the
    /// first call says so, and the next one copies it aside first ("main.txt.other").
    /// \return false, with a sentence in `error`, when it was not written; all is as it was
    bool save(QString* error);
    /// Writes what is not saved beside the file, at once; nothing when all is saved.
    /// \return false, with a sentence in `error`, when it cannot be written
    bool keepUnsaved(QString* error);
    /// Opens what the tree names, at once. It leaves alone what is open already; what could not be opened is tried
    /// again.
    void follow();

signals:
    /// Another program is open, or none. isOpen(), place() and problem() tell.
    void opened();
    /// hasTakenUpUnsaved() is another now.
    void takenUpChanged(bool takenUp);
    /// Something could not be kept or read aside, a sentence. Of a row of failures of the same kind the first is told.
    /// What has to do with the opening of a program is told after opened().
    void failed(const QString& what);
    /// What could not be kept, as failed() has told, is kept now, or nothing has to be.
    void recovered();

private:
    void listen(brisk::ModuleObject* node);
    void open(const ProgramPlace& place);
    bool read(const ProgramPlace& place, QStringList* lines, QString* problem);
    void takeUpUnsaved();
    bool isUnsavedOutdated() const;
    void setAside(const QString& ending, const QString& error);
    bool clearUnsaved(QString* error);
    bool keepOther(QString* error);
    bool copyOther(QString* error);
    void setTakenUp(bool takenUp);
    bool isProjectGone() const;
    bool write(const QString& path, QString* error);
    void keepSoon();
    void keepNow();
    void forgetUnsaved();
    void reportOnce(const QString& what);

    Program m_program;
    ProgramPlace m_place;
    QString m_problem;
    FollowedNode m_project;
    FollowedNode m_function;
    QTimer m_followTimer;
    QTimer m_keepTimer;
    QString m_reported;
    QStringList m_toTell;     // when the program is open
    QByteArray m_basis;       // the fingerprint of the file that the program began as; empty when there was none
    QDateTime m_basisTime;    // and when it was written
    QByteArray m_other;       // of what somebody else has put in its place, and that was told
    HeldFolder m_folder;      // the project's
    bool m_isBlocked = false; // what cannot be read is where changes are kept
    bool m_isOpen = false;
    bool m_hasTakenUp = false;
    bool m_isHeld = false; // the tree names another one, and this one cannot be kept
};

} // namespace pendant
