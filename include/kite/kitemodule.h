#pragma once

#include "kite/export.h"
#include "kite/pluginbase.h"
#include "kite/pluginsettingpage.h"
#include "kite/throwlevel.h"

#include "helm/physicalbutton.h"
#include "tarp/bmodule.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace kite {

class PluginRegister;

/// The pendant's module that stands for one plugin. It owns the plugin object and the plugin's page, hands the
/// pendant's lifecycle on to the plugin, and is the one place where a plugin's widgets are entered into the pendant.
///
/// The pendant makes it; a plugin reaches its own as the parent() of its PluginBase, by a static_cast (the class has no
/// meta-object of its own, so qobject_cast does not know it). Every operation may be called from the plugin's
/// constructor on until detach(), not from its destructor; what needs the page does nothing, and says false, before
/// setup() has made it.
///
/// User-interface thread only. A module must be gone before the process exits.
/// \since 0.1
class KITE_EXPORT Kite : public tarp::BModule {
public:
    /// Binds the module to the node "brisk.kite." + `pluginName` and makes the plugin's resources known under its name.
    Kite(const QString& pluginName, QObject* parent);
    /// Takes the plugin out of the register, its page out of the centre area and its entry out of the navigation.
    /// Status-bar items, side-bar pages and physical-button pages stay with the pendant.
    ~Kite() override;

    /// The type of the module: "kite", the same for every plugin.
    QString name() const override;
    /// The name under which the plugin was registered.
    QString& pluginName();

    void setup() override;
    void init() override;
    void afterInit() override;
    void render() override;
    void idle() override;
    void detach() override;

    /// Shows `w` on the plugin's page, which takes it over (PluginSettingPage::createCenterWidget). Does nothing for
    /// null, before setup(), once the page has been deleted, and for a widget that contains the page: the widget is
    /// then still yours.
    void createCenterWidgte(QWidget* w);

    /// Switches the centre widget to full screen or back (PluginSettingPage::changeFullWidget).
    /// \return false when there is no page yet or no centre widget, and when it already is that way
    bool changeFullScreen(bool full);

    /// Counts this plugin's model window as open or closed in "helm.msg._", a count that all plugins share and the host
    /// may change, so that it can fall below zero. Say when yours is closed: the destructor does not.
    /// \return false when `shown` is what was last passed (closed, at first); nothing changes then
    bool changeModelWindowStatus(bool shown);

    /// Enables or disables the plugin's physical-button page of that name. \return true
    bool changePhyBtnStatus(const QString& pageName, bool enable);

    /// Registers a page of physical buttons: the upper and the lower key of each row, and the captions of the rows.
    /// \return true
    bool createPhyBtnPage(const QString& pageName, const QList<helm::PhysicalButton>& first,
                          const QList<helm::PhysicalButton>& second, QStringList names);

    /// Puts `w` into the status bar, which takes it over.
    /// \param index tells the plugin's items apart; it is no position
    /// \return false for null, for an index or a widget that is in the bar already, and where the pendant has no status
    ///         bar with a place for plugins; `w` is then still yours
    bool createStatusBar(QWidget* w, int index);

    /// Adds `w` to the side bar, which takes it over.
    /// \param pageId tells the plugin's side-bar pages apart; empty for the plugin's name
    /// \return false for null, for a page id or a widget that is in the side bar already, and where the pendant has no
    ///         side bar; `w` is then still yours
    bool createRightExpandWidgte(QWidget* w, const QString& pageId);

    /// Switches the side bar to that page and opens it. A page that is not there changes nothing.
    void switchRightExpandWidgte(const QString& pageId);

    /// Puts a line into the pendant's message list under the plugin's name. \return 0
    int ThrowLog(kite::enThrowLogLevel level, const QString& message);

    /// Removes the first navigation entry of `group` whose "nav" is exactly `nav`. The log tells of the entries before
    /// and after.
    /// \param group dotted path of a page group, "robot.pack" for plugins; a group that holds no entries is left alone
    /// \return false for an empty group, otherwise true, also when there was no such entry
    bool cancelPage(const QString& group, const QString& nav);

private:
    friend class PluginRegister;

    QString pageKey() const;
    QString sideBarKey(const QString& pageId) const;

    // Null once the object is deleted, whoever does it.
    QPointer<PluginBase> plugin;
    QPointer<PluginSettingPage> settingPage;
    QString storedName; ///< what pluginName() gives out; the field cannot have the operation's name
    bool modelWindowShown = false;
};

} // namespace kite
