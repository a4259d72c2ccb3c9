#pragma once

#include "instructionwidget.h"

#include <QPushButton>

namespace pendant {

/// Edits what sets a digital output.
class OutputWidget : public InstructionWidget {
    Q_OBJECT

public:
    explicit OutputWidget(QWidget* parent);

protected:
    void show(const LineParts& parts) override;
    QString text() const override;
    QString missing() const override;
    void retranslate() override;

private:
    QComboBox* m_signal;
    QPushButton* m_on;
    QPushButton* m_off;
    QLabel* m_signalCaption;
    QLabel* m_stateCaption;
};

} // namespace pendant
