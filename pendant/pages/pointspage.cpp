#include "pointspage.h"

#include "pointdetails.h"
#include "pointsmodel.h"

namespace pendant {

PointsPage::PointsPage(const Theme& theme, QWidget* parent)
    : RecordsPage(QStringLiteral("pointsPage"), new PointsModel, theme, parent), m_hint(new QLabel(this)),
      m_details(new PointDetails(this)) {
    m_hint->setProperty("caption", true);
    content()->addWidget(m_hint);
    content()->addWidget(m_details);
    setColumnWidths({144, 112, 264, 104, 120});
    connect(this, &RecordsPage::selectionChanged, this, &PointsPage::showDetails);
    connect(model(), &RecordsModel::refreshed, this, &PointsPage::showDetails);
    retranslate();
}

void PointsPage::retranslate() {
    setTitle(tr("Points"));
    m_hint->setText(tr("Select a point to see all its values."));
    RecordsPage::retranslate();
    showDetails();
}

void PointsPage::showDetails() {
    brisk::ModuleObject* record = model()->record(selected());
    m_details->setRecord(record);
    m_hint->setVisible(!record && table()->isVisibleTo(this));
}

QString PointsPage::emptyTitle() const {
    return tr("No points");
}

QString PointsPage::emptyText() const {
    return tr("The taught points of the robot project are listed here. They are loaded when the links come up; a "
              "plugin teaches one with addCurrentPoint() where the robot stands: jog it there first.");
}

} // namespace pendant
