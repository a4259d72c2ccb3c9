#pragma once

#include "style/theme.h"
#include "windowdresser.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QPointer>
#include <QStyle>

#include <memory>

namespace pendant {

class Language;

/// The pendant's application object. What an event handler throws is reported in the message list and the pendant goes
/// on; what a plugin does to the look of the whole application is taken back and reported.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int& argc, char** argv);
    ~Application() override;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Palette, font and icons for what carries no style sheet.
    void applyTheme(const Theme& theme);
    /// Takes back a style sheet, palette, font or style that someone set on the application, and says so in the message
    /// list under `culprit`. True when there was something to take back.
    bool restoreLook(const QString& culprit);

    /// Dresses windows of plugins anew after the style sheet for pages has changed.
    void redressWindows() { m_dresser.redress(); }

    /// Speaks `code` ("en", "de", "zh_CN") from now on; false, and nothing changes, when there is no translation.
    bool setLanguage(const QString& code);
    QString language() const;

private:
    void report(const QObject* receiver, const QString& thrown);
    void checkLookSoon();

    std::unique_ptr<Language> m_language;
    WindowDresser m_dresser;
    QPalette m_palette;
    QFont m_font;
    QPointer<QStyle> m_ownStyle;
    bool m_applying = false;
    bool m_checkPending = false;
};

} // namespace pendant
