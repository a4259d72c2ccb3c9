#include "settingspage.h"

#include "app/language.h"

#include <QPushButton>
#include <QVariant>

namespace pendant {

SettingsPage::SettingsPage(const Theme& theme, QWidget* parent)
    : Page(QStringLiteral("settingsPage"), theme, parent), m_themeCaption(new QLabel(this)),
      m_themeHint(new QLabel(this)), m_languageCaption(new QLabel(this)), m_languageHint(new QLabel(this)) {
    m_themes = addChoices(m_themeCaption, m_themeHint, QStringLiteral("theme:"), Theme::names());
    content()->addSpacing(24);
    m_languages = addChoices(m_languageCaption, m_languageHint, QStringLiteral("language:"), Language::codes());
    content()->addStretch();
    for (QAbstractButton* button : m_languages->buttons())
        button->setText(Language::title(button->property("value").toString()));
    connect(m_themes, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            [this](QAbstractButton* button) { emit themeChosen(button->property("value").toString()); });
    connect(m_languages, QOverload<QAbstractButton*>::of(&QButtonGroup::buttonClicked), this,
            [this](QAbstractButton* button) { emit languageChosen(button->property("value").toString()); });
    mark(m_themes, theme.name());
    setLanguage(QStringLiteral("en"));
    retranslate();
}

void SettingsPage::setTheme(const Theme& theme) {
    Page::setTheme(theme);
    mark(m_themes, theme.name());
}

void SettingsPage::setLanguage(const QString& code) {
    mark(m_languages, code);
}

void SettingsPage::retranslate() {
    setTitle(tr("Settings"));
    m_themeCaption->setText(tr("Appearance"));
    m_themeHint->setText(tr("Dark suits a dim hall, light a bright one."));
    m_languageCaption->setText(tr("Language"));
    m_languageHint->setText(tr("Texts of plugins stay in the language of the plugin."));
    m_themes->buttons().at(0)->setText(tr("Light"));
    m_themes->buttons().at(1)->setText(tr("Dark"));
}

QButtonGroup* SettingsPage::addChoices(QLabel* caption, QLabel* hint, const QString& prefix,
                                       const QStringList& values) {
    caption->setProperty("strong", true);
    hint->setProperty("caption", true);
    auto* group = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    for (const QString& value : values) {
        auto* button = new QPushButton(this);
        button->setObjectName(prefix + value);
        button->setProperty("value", value);
        button->setCheckable(true);
        button->setMinimumWidth(144);
        group->addButton(button);
        row->addWidget(button);
    }
    row->addStretch();
    content()->addWidget(caption);
    content()->addWidget(hint);
    content()->addLayout(row);
    return group;
}

void SettingsPage::mark(QButtonGroup* group, const QString& value) {
    for (QAbstractButton* button : group->buttons())
        button->setChecked(button->property("value").toString() == value);
}

} // namespace pendant
