#pragma once

#include <QLabel>

namespace pendant {

/// One line of plain text that is cut with "..." where it does not fit; the whole text is then its tool tip.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;
    /// Takes the room that the whole text needs.
    void setShownWhole(bool whole);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showToolTip();

    bool m_shownWhole = false;
};

} // namespace pendant
