#include "navigationentry.h"

#include <QResizeEvent>

namespace pendant {

namespace {

// The edge mark, the icon and the gaps beside the text, as the style sheet sets them.
const int widthBesideText = 4 + 12 + 24 + 12 + 8;

} // namespace

NavigationEntry::NavigationEntry(const QString& title, const QString& nav, QWidget* parent)
    : QPushButton(parent), m_title(title), m_nav(nav) {
    setObjectName(QStringLiteral("nav:") + nav);
    setAccessibleName(title);
    setCheckable(true);
    setIconSize({24, 24});
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void NavigationEntry::resizeEvent(QResizeEvent* event) {
    QFont bold = font();
    bold.setWeight(QFont::DemiBold); // as it is drawn when it is the current one
    const QString shown =
        QFontMetrics(bold).elidedText(m_title, Qt::ElideRight, event->size().width() - widthBesideText);
    setToolTip(shown == m_title ? QString() : m_title);
    // "&" would be taken for the mark of a shortcut.
    setText(QStringLiteral(" ") + QString(shown).replace(QLatin1Char('&'), QLatin1String("&&")));
    QPushButton::resizeEvent(event);
}

} // namespace pendant
