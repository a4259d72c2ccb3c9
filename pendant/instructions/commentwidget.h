#pragma once

#include "instructionwidget.h"

#include <QLineEdit>

namespace pendant {

class CommentWidget : public InstructionWidget {
    Q_OBJECT

public:
    explicit CommentWidget(QWidget* parent);

protected:
    void show(const LineParts& parts) override;
    QString text() const override;
    void retranslate() override;

private:
    QLineEdit* m_comment;
    QLabel* m_caption;
};

} // namespace pendant
