#include "developerbutton.h"

#include "style/icons.h"

#include <QEvent>

namespace pendant {

DeveloperButton::DeveloperButton(const Theme& theme, QWidget* parent) : QToolButton(parent) {
    setObjectName(QStringLiteral("developerButton"));
    setCheckable(true);
    setIconSize({24, 24});
    setTheme(theme);
    retranslate();
}

void DeveloperButton::setTheme(const Theme& theme) {
    setIcon(lineIcon(QStringLiteral("developer"), theme.color(QStringLiteral("text")), theme));
}

void DeveloperButton::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void DeveloperButton::retranslate() {
    setToolTip(tr("Developer dock (F12)"));
    setAccessibleName(toolTip());
}

} // namespace pendant
