#pragma once

#include "instructionwidget.h"

#include <QSpinBox>

namespace pendant {

class WaitWidget : public InstructionWidget {
    Q_OBJECT

public:
    explicit WaitWidget(QWidget* parent);

protected:
    void show(const LineParts& parts) override;
    QString text() const override;
    void retranslate() override;

private:
    QSpinBox* m_time;
    QLabel* m_caption;
};

} // namespace pendant
