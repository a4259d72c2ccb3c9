#pragma once

#include "instructionwidget.h"

#include <QLineEdit>

namespace pendant {

/// Edits what gives a variable a value.
class AssignWidget : public InstructionWidget {
    Q_OBJECT

public:
    explicit AssignWidget(QWidget* parent);

protected:
    void show(const LineParts& parts) override;
    QString text() const override;
    QString missing() const override;
    void retranslate() override;

private:
    QComboBox* m_variable;
    QLineEdit* m_value;
    QLabel* m_variableCaption;
    QLabel* m_valueCaption;
};

} // namespace pendant
