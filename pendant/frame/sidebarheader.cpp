#include "sidebarheader.h"

#include "style/icons.h"

#include <QEvent>
#include <QPushButton>
#include <QScroller>
#include <QTimer>
#include <QVBoxLayout>

namespace pendant {

namespace {

const int slideMs = 120;

} // namespace

SideBarHeader::SideBarHeader(tarp::ExpandSideBar* bar, const Theme& theme)
    : QWidget(bar), m_bar(bar), m_theme(theme), m_tabs(new QScrollArea(this)), m_close(new QToolButton(this)) {
    setObjectName(QStringLiteral("sideBarHeader"));
    setAttribute(Qt::WA_StyledBackground);
    m_close->setObjectName(QStringLiteral("sideBarClose"));
    m_close->setIconSize({24, 24});
    m_slide.setObjectName(QStringLiteral("slide"));
    m_slide.setParent(this);
    m_slide.setDuration(slideMs);
    connect(&m_slide, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& width) { m_bar->setFixedWidth(width.toInt()); });
    connect(&m_slide, &QVariantAnimation::finished, this, [this] {
        if (m_slide.endValue().toInt() == 0)
            m_bar->hide();
    });
    makeTabs();
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_tabs, 1);
    row->addWidget(m_close);
    qobject_cast<QVBoxLayout*>(bar->layout())->insertWidget(0, this);

    connect(m_close, &QToolButton::clicked, this, &SideBarHeader::close);
    connect(bar, &tarp::ExpandSideBar::pagesChanged, this, &SideBarHeader::rebuild);
    connect(bar, &tarp::ExpandSideBar::currentChanged, this, &SideBarHeader::markCurrent);
    connect(bar, &tarp::ExpandSideBar::openChanged, this, [this](bool open) {
        if (!open)
            return;
        m_bar->setFixedWidth(0);
        slideTo(sideBarWidth);
    });
    dress();
    rebuild();
}

void SideBarHeader::setTheme(const Theme& theme) {
    m_theme = theme;
    dress();
}

void SideBarHeader::open() {
    // What was hidden slides in as soon as it tells that it is shown.
    if (m_bar->isHidden())
        m_bar->show();
    else
        slideTo(sideBarWidth);
}

void SideBarHeader::close() {
    slideTo(0);
}

bool SideBarHeader::isOpen() const {
    const bool closing = m_slide.state() == QAbstractAnimation::Running && m_slide.endValue().toInt() == 0;
    return !m_bar->isHidden() && !closing;
}

void SideBarHeader::slideTo(int width) {
    m_slide.stop();
    m_slide.setStartValue(m_bar->width());
    m_slide.setEndValue(width);
    m_slide.start();
}

void SideBarHeader::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        dress();
}

void SideBarHeader::makeTabs() {
    m_tabs->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tabs->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_tabs->setWidgetResizable(true);
    m_tabs->setFixedHeight(56);
    QScroller::grabGesture(m_tabs->viewport(), QScroller::LeftMouseButtonGesture);
}

void SideBarHeader::rebuild() {
    // The press that leads here may come from a tab.
    if (QWidget* old = m_tabs->takeWidget()) {
        old->hide();
        old->deleteLater();
    }
    auto* content = new QWidget;
    content->setObjectName(QStringLiteral("tabRow"));
    auto* row = new QHBoxLayout(content);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (const QString& key : m_bar->keys()) {
        auto* tab = new QPushButton(titleOf(key), content);
        tab->setObjectName(QStringLiteral("tab:") + key);
        tab->setCheckable(true);
        connect(tab, &QPushButton::clicked, this, [this, key] {
            m_bar->switchTo(this, key);
            markCurrent();
        });
        row->addWidget(tab);
    }
    row->addStretch();
    m_tabs->setWidget(content);
    markCurrent();
}

void SideBarHeader::markCurrent() {
    for (QPushButton* tab : m_tabs->findChildren<QPushButton*>()) {
        const bool current = tab->objectName() == QStringLiteral("tab:") + m_bar->current();
        tab->setChecked(current);
        // Where its place is known only once the row has been laid out.
        if (current)
            QTimer::singleShot(0, tab, [this, tab] { m_tabs->ensureWidgetVisible(tab, 0, 0); });
    }
}

void SideBarHeader::dress() {
    m_close->setIcon(lineIcon(QStringLiteral("close"), m_theme.color(QStringLiteral("text")), m_theme));
    m_close->setToolTip(tr("Close the side bar"));
    m_close->setAccessibleName(m_close->toolTip());
}

QString SideBarHeader::titleOf(const QString& key) const {
    const QString title = m_bar->page(key)->windowTitle();
    // "kite.weld.monitor" -> "monitor"
    return title.isEmpty() ? key.section(QLatin1Char('.'), -1) : title;
}

} // namespace pendant
