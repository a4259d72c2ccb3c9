#include "kite/pluginsettingpage.h"

#include "log/hostline.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>

namespace kite {

namespace {

// A tool window on purpose: it gets no place of its own among the windows.
const Qt::WindowFlags fullScreenFlags = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;

void fillScreen(QWidget* window) {
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        window->setGeometry(screen->geometry());
}

} // namespace

PluginSettingPage::PluginSettingPage(const QString& name, const QString& pluginName, QWidget* parent, QObject* owner)
    : BaseSettingPage(name, pluginName, parent, owner) {
    titleWgt()->setVisible(false);
    auto* layout = new QHBoxLayout(contentWgt());
    layout->setContentsMargins(0, 0, 0, 0);
}

PluginSettingPage::~PluginSettingPage() {
    // As a window it has no parent that would delete it, unless someone else has taken it in.
    if (fullScreen && centerWidget && !centerWidget->parentWidget())
        delete centerWidget;
    // Here and not in the base, for the plugin's widgets may call back while they die.
    delete BaseSettingPage::wgt();
}

void PluginSettingPage::createCenterWidget(QWidget* w) {
    QWidget* content = contentWgt();
    if (!content)
        return;
    if (w && (w == content || w->isAncestorOf(content))) {
        hostline::error(hostline::pluginModule()) << "The page of a plugin cannot stand in itself: " << w->objectName();
        return;
    }
    const QPointer<PluginSettingPage> self(this);
    const QPointer<QWidget> widget(w);
    if (fullScreen && centerWidget)
        changeFullWidget(false);
    if (!self)
        return;
    // Its handlers may have lifted it out again; as a window it would be nobody's from here on.
    if (fullScreen && centerWidget)
        addToLayout(centerWidget);
    if (!self)
        return;
    fullScreen = false;
    centerWidget = widget;
    if (widget && !addToLayout(widget))
        widget->setParent(contentWgt());
}

bool PluginSettingPage::addToLayout(QWidget* widget) {
    QLayout* layout = contentWgt() ? contentWgt()->layout() : nullptr;
    if (!layout)
        return false;
    layout->addWidget(widget);
    layout->update();
    return true;
}

bool PluginSettingPage::changeFullWidget(bool full) {
    if (!centerWidget)
        return false;
    if (full == fullScreen) {
        hostline::error(hostline::pluginModule())
            << "Current FullWidget Type is" << (full ? "true" : "false") << "! Change Failed!";
        return false;
    }
    return full ? toFullScreen() : backIntoPage();
}

// Every step may run the plugin's event handlers, which may call this page again or delete the widget. So the new state
// stands before the first of them, and each step asks whether it still holds.
bool PluginSettingPage::toFullScreen() {
    savedParent = centerWidget->parentWidget();
    savedStyleSheet = centerWidget->styleSheet();
    savedWindowFlags = centerWidget->windowFlags();
    takeOutOfLayout();
    fullScreen = true;
    doWhile(true,
            {[](QWidget* w) { w->setParent(nullptr); }, [](QWidget* w) { w->setWindowFlags(fullScreenFlags); },
             [](QWidget* w) { fillScreen(w); }, [this](QWidget* w) { w->setStyleSheet(savedStyleSheet); },
             [](QWidget* w) { w->ensurePolished(); }, [](QWidget* w) { w->repaint(); }, [](QWidget* w) { w->raise(); },
             [](QWidget* w) { w->show(); }, [](QWidget* w) { w->activateWindow(); }});
    return true;
}

void PluginSettingPage::doWhile(bool full, std::initializer_list<std::function<void(QWidget*)>> steps) {
    const QPointer<PluginSettingPage> self(this);
    const QPointer<QWidget> widget(centerWidget);
    for (const auto& step : steps) {
        if (!self || !widget || widget != centerWidget || fullScreen != full)
            return;
        step(widget);
    }
}

// Only the first item is looked at.
void PluginSettingPage::takeOutOfLayout() {
    QLayout* layout = contentWgt() ? contentWgt()->layout() : nullptr;
    QLayoutItem* first = layout ? layout->itemAt(0) : nullptr;
    if (first && first->widget() == centerWidget)
        delete layout->takeAt(0);
}

bool PluginSettingPage::backIntoPage() {
    const QPointer<QWidget> home = savedParent ? savedParent.data() : contentWgt();
    // Without a page there is nowhere to go back to; the window then goes with this object.
    if (!home)
        return false;
    fullScreen = false;
    doWhile(false,
            {[home](QWidget* w) { w->setParent(home); }, [this](QWidget* w) { w->setWindowFlags(savedWindowFlags); },
             [this](QWidget* w) { w->setStyleSheet(savedStyleSheet); }, [](QWidget* w) { w->ensurePolished(); },
             [this](QWidget* w) { addToLayout(w); }, [](QWidget* w) { w->show(); }});
    return true;
}

} // namespace kite
