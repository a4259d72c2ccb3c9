#pragma once

#include "kite/export.h"

#include "helm/basesettingpage.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <initializer_list>

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
    /// Deletes the page's widget with all that is in it, and a centre widget that is full screen unless someone else
    /// has become its parent.
    ~PluginSettingPage() override;

    /// Makes `w` the plugin's centre widget, which fills the page; the page's content becomes its parent. A centre
    /// widget that is full screen goes back into the page before. After a second call both widgets stand side by side,
    /// and full screen takes the last one. With null there is no centre widget; the former one stays in the page. Once
    /// the page's widget has been deleted, nothing happens and `w` is still yours. A widget that contains the page is
    /// refused with an error line in the log. The plugin may delete its widget at any time.
    void createCenterWidget(QWidget* w);

    /// Lifts the centre widget out into a window without parent and frame that fills the primary screen and stays on
    /// top, or puts it back at the end of the page with its former window flags and style sheet, and shows it.
    ///
    /// \return false when there is no centre widget, or no page left to put it back into; false, and an error line in
    ///         the log, when it already is that way
    bool changeFullWidget(bool full);

private:
    bool toFullScreen();
    bool backIntoPage();
    bool addToLayout(QWidget* widget);
    void takeOutOfLayout();
    void doWhile(bool full, std::initializer_list<std::function<void(QWidget*)>> steps);

    // Null once the widget is deleted, whoever does it.
    QPointer<QWidget> centerWidget;
    QPointer<QWidget> savedParent;
    QString savedStyleSheet;
    Qt::WindowFlags savedWindowFlags;
    bool fullScreen = false;
};

} // namespace kite
