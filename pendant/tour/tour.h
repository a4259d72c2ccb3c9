#pragma once

#include "plugins/callguard.h"
#include "plugins/pluginloader.h"
#include "plugins/pluginsession.h"
#include "transcript.h"

#include "tarp/containers.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <functional>

namespace pendant {

class DockSwitch;
class ProgramPage;

/// The pendant as the tour walks through it. Nothing is owned; all of it outlives the tour.
struct TourStage {
    QWidget* window;
    tarp::CenterWidget* center;
    tarp::ExpandSideBar* sideBar;
    /// Turns the column of physical keys to that page; false when it cannot be shown.
    std::function<bool(const QString& page)> showButtonPage;
    DockSwitch* dock;
    ProgramPage* program;
    const PluginLoader* loader;
    PluginSession* session;
    const CallGuard* guard;
};

/// Walks through the pendant without anyone at it: every page of the navigation, every side-bar page, every page of
/// physical buttons, and on the plugins' pages the buttons for the tour (see isTourButton()), each of which is pressed,
/// looked at and pressed again, then the instructions of plugins in the program editor (see ProgramTour), and at last
/// the tabs of the developer dock, which is open all the while. Leaves a picture of each and the transcript tour.md in
/// a folder.
///
/// Physical keys are looked at, never pressed: they move robots.
class Tour {
    Q_DECLARE_TR_FUNCTIONS(pendant::Tour)

public:
    /// \param folder where pictures and transcript go; made when it is missing. Files of an earlier tour are replaced.
    Tour(const TourStage& stage, const QString& folder);

    /// Walks, stops the plugins and writes the transcript, which is there from the first step on, whatever happens.
    /// \return the exit status: 0, or 1 when a file did not load, a plugin threw or failed, what a button opened did
    /// not go
    ///         away, or something could not be written
    int run();

private:
    void walkPages();
    void showPage(const QString& key, const QString& title);
    void pressButtons(const QString& subject, const QWidget* page);
    void pressButton(const QString& subject, const QPointer<QAbstractButton>& button);
    void walkSideBar();
    void walkButtonPages();
    void walkProgram();
    void walkDock();

    void step(const QString& text, const QString& kind, const QString& subject, const QPixmap& picture);
    void note(const QString& text);
    void collectFailures();
    QString pluginOf(const QObject* module) const;
    void clearFolder();
    bool write();

    TourStage m_stage;
    QDir m_folder;
    Transcript m_transcript;
    int m_pictures = 0;
    bool m_written = true;
};

} // namespace pendant
