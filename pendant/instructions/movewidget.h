#pragma once

#include "instructionwidget.h"
#include "moveline.h"

#include <QSpinBox>

namespace pendant {

/// Edits a joint move or a linear move.
class MoveWidget : public InstructionWidget {
    Q_OBJECT

public:
    MoveWidget(MoveLine::Kind kind, QWidget* parent);

protected:
    void show(const LineParts& parts) override;
    QString text() const override;
    QString missing() const override;
    void retranslate() override;

private:
    MoveLine::Kind m_kind;
    QComboBox* m_point;
    QSpinBox* m_speed;
    QSpinBox* m_zone;
    QComboBox* m_tool;
    QComboBox* m_workObject;
    QVector<QLabel*> m_captions;
};

} // namespace pendant
