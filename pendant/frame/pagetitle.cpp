#include "pagetitle.h"

#include "briskx/navigationmodel.h"
#include "pagekeys.h"

namespace pendant {

namespace {

// Empty for a page that no entry leads to.
QString titleOf(const QString& page) {
    for (const ot::gyre::standin::Group& group : ot::gyre::standin::NavigationModel::instance()->groups()) {
        for (const ot::gyre::standin::Entry& entry : group.entries) {
            if (entry.nav == page)
                return entry.title;
        }
    }
    return QString();
}

} // namespace

PageTitle::PageTitle(tarp::CenterWidget* center, QWidget* parent) : QLabel(parent), m_center(center) {
    setObjectName(QStringLiteral("pageTitle"));
    setTextFormat(Qt::PlainText);
    connect(center, &tarp::CenterWidget::currentChanged, this, &PageTitle::showTitle);
    connect(ot::gyre::standin::NavigationModel::instance(), &ot::gyre::standin::NavigationModel::changed, this,
            &PageTitle::showTitle);
    showTitle();
}

void PageTitle::showTitle() {
    const QString page = m_center->current();
    setText(pagekeys::isOwn(page) ? QString() : titleOf(page));
    setVisible(!text().isEmpty());
}

} // namespace pendant
