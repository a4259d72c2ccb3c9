#include "pagetitle.h"

#include "briskx/navigationmodel.h"
#include "pagekeys.h"

namespace pendant {

using ot::gyre::standin::NavigationModel;

PageTitle::PageTitle(tarp::CenterWidget* center, QWidget* parent) : QLabel(parent), m_center(center) {
    setObjectName(QStringLiteral("pageTitle"));
    setTextFormat(Qt::PlainText);
    connect(center, &tarp::CenterWidget::currentChanged, this, &PageTitle::showTitle);
    connect(NavigationModel::instance(), &NavigationModel::changed, this, &PageTitle::showTitle);
    showTitle();
}

void PageTitle::showTitle() {
    const QString page = m_center->current();
    setText(pagekeys::isOwn(page) ? QString() : NavigationModel::instance()->titleOf(page));
    setVisible(!text().isEmpty());
}

} // namespace pendant
