#pragma once

#include "recordspage.h"

namespace pendant {

class PointDetails;

/// The taught points of the robot project, live, with all values of the one that is selected.
class PointsPage : public RecordsPage {
    Q_OBJECT

public:
    explicit PointsPage(const Theme& theme, QWidget* parent = nullptr);

protected:
    void retranslate() override;
    QString emptyTitle() const override;
    QString emptyText() const override;

private:
    void showDetails();

    QLabel* m_hint;
    PointDetails* m_details;
};

} // namespace pendant
