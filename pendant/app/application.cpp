#include "application.h"

#include "culprit.h"
#include "helm/messagelist.h"
#include "language.h"
#include "plugins/report.h"
#include "plugins/thrown.h"
#include "style/fonts.h"
#include "style/icons.h"
#include "style/resources.h"
#include "style/touchstyle.h"

#include <QThread>
#include <QTimer>

using helm::standin::MessageLevel;
using helm::standin::MessageList;

namespace pendant {

namespace {

bool touchesLook(QEvent::Type type) {
    return type == QEvent::StyleChange || type == QEvent::ApplicationPaletteChange ||
           type == QEvent::ApplicationFontChange;
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv), m_language(new Language) {
    initResources();
    setApplicationName(QStringLiteral("kite-pendant"));
    applyTheme(Theme::light());
}

Application::~Application() = default;

bool Application::notify(QObject* receiver, QEvent* event) {
    const QPointer<QObject> living(receiver);
    const QEvent::Type type = event->type();
    const bool here = QThread::currentThread() == thread();
    if (here)
        m_dresser.watch(receiver, event);
    bool accepted = false;
    const QString thrown = thrownBy([&] { accepted = QApplication::notify(receiver, event); });
    if (!thrown.isEmpty())
        report(living, thrown);
    if (here && touchesLook(type))
        checkLookSoon();
    return accepted;
}

void Application::report(const QObject* receiver, const QString& thrown) {
    const QString object = receiver ? describe(receiver) : tr("an object that is gone");
    const QString plugin = receiver ? pluginOf(receiver) : QString();
    const QString source = plugin.isEmpty() ? object : plugin;
    const QString text = tr("An event handler of %1 threw: %2").arg(object, thrown);
    // The message list belongs to the user-interface thread; this may be any.
    const bool here = QThread::currentThread() == thread();
    QMetaObject::invokeMethod(
        this, [=] { reportError(source, text); }, here ? Qt::DirectConnection : Qt::QueuedConnection);
}

void Application::applyTheme(const Theme& theme) {
    m_applying = true;
    selectIconTheme(theme);
    if (!m_ownStyle) {
        m_ownStyle = new TouchStyle;
        setStyle(m_ownStyle);
    }
    setPalette(theme.palette());
    setFont(bodyFont());
    m_palette = palette();
    m_font = font();
    m_applying = false;
}

bool Application::restoreLook(const QString& culprit) {
    QStringList changed;
    m_applying = true;
    if (!styleSheet().isEmpty()) {
        setStyleSheet(QString());
        changed << QStringLiteral("setStyleSheet");
    }
    if (style() != m_ownStyle) {
        m_ownStyle = new TouchStyle;
        setStyle(m_ownStyle);
        changed << QStringLiteral("setStyle");
    }
    if (palette() != m_palette) {
        setPalette(m_palette);
        changed << QStringLiteral("setPalette");
    }
    if (font() != m_font) {
        setFont(m_font);
        changed << QStringLiteral("setFont");
    }
    m_applying = false;
    if (changed.isEmpty())
        return false;
    MessageList::instance()->add(MessageLevel::Warning, culprit,
                                 tr("The look of the whole pendant was changed by %1 of the application; that was "
                                    "taken back. Style your own widgets instead.")
                                     .arg(changed.join(QStringLiteral(", "))));
    return true;
}

bool Application::setLanguage(const QString& code) {
    return m_language->select(code);
}

QString Application::language() const {
    return m_language->code();
}

void Application::checkLookSoon() {
    if (m_applying || m_checkPending)
        return;
    m_checkPending = true;
    QTimer::singleShot(0, this, [this] {
        m_checkPending = false;
        restoreLook(tr("a plugin"));
    });
}

} // namespace pendant
