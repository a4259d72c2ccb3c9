#pragma once

#include "recordspage.h"

namespace pendant {

/// The variables of the robot project, live.
class VariablesPage : public RecordsPage {
    Q_OBJECT

public:
    explicit VariablesPage(const Theme& theme, QWidget* parent = nullptr);

protected:
    void retranslate() override;
    QString emptyTitle() const override;
    QString emptyText() const override;
};

} // namespace pendant
