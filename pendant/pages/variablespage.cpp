#include "variablespage.h"

#include "variablesmodel.h"

namespace pendant {

VariablesPage::VariablesPage(const Theme& theme, QWidget* parent)
    : RecordsPage(QStringLiteral("variablesPage"), new VariablesModel, theme, parent) {
    setColumnWidths({184, 136, 232, 112});
    retranslate();
}

void VariablesPage::retranslate() {
    setTitle(tr("Variables"));
    RecordsPage::retranslate();
}

QString VariablesPage::emptyTitle() const {
    return tr("No variables");
}

QString VariablesPage::emptyText() const {
    return tr("The variables of the robot project are listed here. They are loaded when the links come up; a plugin "
              "adds one with addVarData().");
}

} // namespace pendant
