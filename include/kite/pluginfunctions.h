#pragma once

#include "kite/export.h"
#include "kite/physicalbutton.h"
#include "kite/throwlevel.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

/// \file
/// What a plugin's page, its settings page or any other piece of it asks of the pendant, knowing no more than the
/// plugin's name. Each function finds the plugin's module (kite::Kite) by the name and calls it.
///
/// Two things are the same for all functions that take `pluginName`, save SwitchRightExpandWidgte():
/// - an empty name gives -1, and nothing happens;
/// - a name without a module gives -2 and one error line in the log, and nothing else happens. That is the case
///   before the pendant has made the module, after it is gone, and when the name is misspelt.
///
/// When the module is found, the results differ. Take care: two functions say 1 for success and 0 for failure.
///
/// | function                  | 0                                      | 1                   |
/// |---------------------------|----------------------------------------|---------------------|
/// | CreateStatusBar()         | refused; the widget is still yours     | the widget is there |
/// | CreateRightExpandWidgte() | refused; the widget is still yours     | the widget is there |
/// | all others                | called; what came of it is not told    | never               |
///
/// GetPluginDataPath() calls nothing: 0 means that the path is set. GetRightExpandSideBar() takes no name.
///
/// User-interface thread only.
/// \since 0.1

namespace kite {

/// Switches the plugin's centre widget to full screen or back (Kite::changeFullScreen).
/// \return 0, also when it was that way already or there is no centre widget; -1 or -2 as above
KITE_EXPORT int ChangeFullScreen(const QString& pluginName, bool full);

/// Counts the plugin's model window as open or closed (Kite::changeModelWindowStatus).
/// \return 0, also when that is what was last passed; -1 or -2 as above
KITE_EXPORT int ChangeModelWindowStatus(const QString& pluginName, bool shown);

/// Enables or disables the plugin's physical-button page of that name (Kite::changePhyBtnStatus).
/// \return 0, also when there is no such page; -1 or -2 as above
KITE_EXPORT int ChangePhyButtonStatus(const QString& pluginName, const QString& pageName, bool enable);

/// Switches the side bar to the plugin's page `pageId` and opens it (Kite::switchRightExpandWidgte).
///
/// Unlike the other functions, this one does something when it does not find the module: it closes the side bar. So an
/// empty name is the way to close it.
///
/// \param pageId as it was passed to CreateRightExpandWidgte()
/// \return 0, also when there is no such page (nothing changes then) and for an empty name (the side bar is closed);
///         -2 when the name has no module: the side bar is closed, and an error line is in the log
KITE_EXPORT int SwitchRightExpandWidgte(const QString& pluginName, const QString& pageId);

/// Adds `w` to the side bar, which takes it over (Kite::createRightExpandWidgte).
/// \param pageId tells the plugin's side-bar pages apart; empty for the plugin's name
/// \return 1 when it was added; 0 for null, for a page id or a widget that is in the side bar already, and where the
///         pendant has no side bar; -1 or -2 as above. `w` is still yours unless it was added
KITE_EXPORT int CreateRightExpandWidgte(const QString& pluginName, QWidget* w, const QString& pageId);

/// Puts `w` into the status bar, which takes it over (Kite::createStatusBar).
/// \param index tells the plugin's items apart; it is no position
/// \return 1 when it was added; 0 for null, for an index or a widget that is in the bar already, and where the pendant
///         has no status bar with a place for plugins; -1 or -2 as above. `w` is still yours unless it was added
KITE_EXPORT int CreateStatusBar(const QString& pluginName, QWidget* w, int index);

/// Shows `w` on the plugin's page, which takes it over (Kite::createCenterWidgte).
/// \return 0, also for null, when the page is not there, and for a widget that contains the page; `w` is then still
///         yours. -1 or -2 as above
KITE_EXPORT int CreateCenterWidget(const QString& pluginName, QWidget* w);

/// Puts a line into the pendant's message list under the plugin's name (Kite::ThrowLog).
/// \return 0; -1 or -2 as above: the message is lost then
KITE_EXPORT int ThrowLog(const QString& pluginName, kite::enThrowLogLevel level, const QString& message);

/// Registers a page of physical buttons (Kite::createPhyBtnPage).
/// \param first  the upper key of each row
/// \param second the lower key of each row
/// \param names  the captions of the rows
/// \return 0; -1 or -2 as above
KITE_EXPORT int CreatePhyButtonList(const QString& pluginName, const QString& pageName,
                                    const QList<kite::PhysicalButton>& first, const QList<kite::PhysicalButton>& second,
                                    QStringList names);

/// Tells the folder in which the plugin keeps its data: "upgrade/plugins/client/NAME/data/", relative to the pendant's
/// working directory. The folder is not made.
/// \param path set to the folder; left as it is unless the result is 0
/// \return 0; -1 or -2 as above
KITE_EXPORT int GetPluginDataPath(QString& path, const QString& pluginName);

/// Tells the pendant's right-hand side bar.
/// \param out set to the side bar, null where the pendant has none. It stays the pendant's
/// \return 0; -1 when `out` is null
KITE_EXPORT int GetRightExpandSideBar(QWidget** out);

} // namespace kite
