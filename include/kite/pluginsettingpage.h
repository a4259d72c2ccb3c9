#pragma once

#include "kite/export.h"

#include "helm/basesettingpage.h"

#include <QString>
#include <QWidget>

namespace kite {

/// The page of a plugin in the pendant's centre area. It has no content of its own: it shows the plugin's centre widget
/// and can lift it out into a window that fills the screen. Kite makes one for each plugin.
///
/// User-interface thread only.
/// \since 0.1
class KITE_EXPORT PluginSettingPage : public helm::BaseSettingPage {
    Q_OBJECT

public:
    /// \param name       type of the module, "kite"
    /// \param pluginName name of the plugin
    /// \param parent     the widget in which the page stands
    /// \param owner      the plugin's module; owns the page
    PluginSettingPage(const QString& name, const QString& pluginName, QWidget* parent, QObject* owner);
    /// A centre widget that is full screen goes with its page.
    ~PluginSettingPage() override;

    /// Shows `w` as the plugin's centre widget, filling the page, which becomes its parent. A second call adds a second
    /// widget beside the first; full screen then takes the last one. Null is ignored. The plugin may delete its widget
    /// at any time.
    void createCenterWidget(QWidget* w);

    /// Switches the centre widget to full screen, or back into the page with its former parent, window flags and style
    /// sheet.
    /// \return false when there is no centre widget; false, and an error line in the log, when it already is that way
    bool changeFullWidget(bool full);

private:
    void toFullScreen();
    void backIntoPage();
    void takeOutOfLayout();
    void remember(QWidget*& field, QWidget* widget);
    void forget(QWidget*& field);

    QWidget* centerWidget = nullptr;
    QWidget* savedParent = nullptr;
    QString savedStyleSheet;
    Qt::WindowFlags savedWindowFlags;
    bool fullScreen = false;
};

} // namespace kite
