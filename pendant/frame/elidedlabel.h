#pragma once

#include <QLabel>

namespace pendant {

/// One line of plain text that is cut with "..." where it does not fit; the whole text is then its tool tip.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showToolTip();
};

} // namespace pendant
