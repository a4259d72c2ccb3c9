#include "kite/pluginsettingpage.h"

#include "log/hostline.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>

#include <memory>

namespace kite {

namespace {

// A tool window on purpose: it gets no place of its own among the windows.
const Qt::WindowFlags fullScreenFlags = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;

} // namespace

PluginSettingPage::PluginSettingPage(const QString& name, const QString& pluginName, QWidget* parent, QObject* owner)
    : BaseSettingPage(name, pluginName, parent, owner) {
    titleWgt()->setVisible(false);
    auto* layout = new QHBoxLayout(contentWgt());
    layout->setContentsMargins(0, 0, 0, 0);
}

PluginSettingPage::~PluginSettingPage() {
    forget(savedParent);
    QWidget* const widget = centerWidget;
    forget(centerWidget);
    // As a window it has no parent that would delete it.
    if (fullScreen)
        delete widget;
}

// A widget that its plugin deletes must leave no dangling pointer behind.
void PluginSettingPage::remember(QWidget*& field, QWidget* widget) {
    field = widget;
    if (!widget)
        return;
    connect(widget, &QObject::destroyed, this, [this, &field] {
        if (&field == &centerWidget)
            fullScreen = false;
        field = nullptr;
    });
}

void PluginSettingPage::forget(QWidget*& field) {
    if (field)
        disconnect(field, &QObject::destroyed, this, nullptr);
    field = nullptr;
}

void PluginSettingPage::createCenterWidget(QWidget* w) {
    if (!w || !contentWgt())
        return;
    if (fullScreen)
        changeFullWidget(false);
    forget(centerWidget);
    remember(centerWidget, w);
    if (contentWgt()->layout())
        contentWgt()->layout()->addWidget(w);
}

bool PluginSettingPage::changeFullWidget(bool full) {
    if (!centerWidget)
        return false;
    if (full == fullScreen) {
        hostline::error(hostline::pluginModule())
            << "Current FullWidget Type is" << (full ? "true" : "false") << "! Change Failed!";
        return false;
    }
    if (full)
        toFullScreen();
    else
        backIntoPage();
    fullScreen = full;
    return true;
}

void PluginSettingPage::toFullScreen() {
    remember(savedParent, centerWidget->parentWidget());
    savedStyleSheet = centerWidget->styleSheet();
    savedWindowFlags = centerWidget->windowFlags();
    takeOutOfLayout();
    centerWidget->setParent(nullptr);
    centerWidget->setWindowFlags(fullScreenFlags);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        centerWidget->setGeometry(screen->geometry());
    centerWidget->setStyleSheet(savedStyleSheet);
    centerWidget->ensurePolished();
    centerWidget->repaint();
    centerWidget->raise();
    centerWidget->show();
    centerWidget->activateWindow();
}

// The first item is looked at and no other. When it is another widget than the centre widget, it goes back to its
// place.
void PluginSettingPage::takeOutOfLayout() {
    auto* layout = contentWgt() ? qobject_cast<QHBoxLayout*>(contentWgt()->layout()) : nullptr;
    std::unique_ptr<QLayoutItem> item(layout ? layout->takeAt(0) : nullptr);
    if (item && item->widget() != centerWidget)
        layout->insertItem(0, item.release());
}

void PluginSettingPage::backIntoPage() {
    centerWidget->setParent(savedParent ? savedParent : contentWgt());
    forget(savedParent);
    centerWidget->setWindowFlags(savedWindowFlags);
    centerWidget->setStyleSheet(savedStyleSheet);
    centerWidget->ensurePolished();
    if (contentWgt() && contentWgt()->layout()) {
        contentWgt()->layout()->addWidget(centerWidget);
        contentWgt()->layout()->update();
    }
    centerWidget->show();
}

} // namespace kite
