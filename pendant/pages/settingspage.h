#pragma once

#include "page.h"

#include <QButtonGroup>

namespace pendant {

/// What can be chosen about the pendant: its look and its language.
class SettingsPage : public Page {
    Q_OBJECT

public:
    explicit SettingsPage(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme) override;
    /// Marks the language that the pendant speaks.
    void setLanguage(const QString& code);

signals:
    void themeChosen(const QString& name);
    void languageChosen(const QString& code);

protected:
    void retranslate() override;

private:
    /// A row of buttons of which one is chosen; their objectNames are `prefix` and the value.
    QButtonGroup* addChoices(QLabel* caption, QLabel* hint, const QString& prefix, const QStringList& values);
    static void mark(QButtonGroup* group, const QString& value);

    QLabel* m_themeCaption;
    QLabel* m_themeHint;
    QLabel* m_languageCaption;
    QLabel* m_languageHint;
    QButtonGroup* m_themes;
    QButtonGroup* m_languages;
};

} // namespace pendant
