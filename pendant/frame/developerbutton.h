#pragma once

#include "style/theme.h"

#include <QToolButton>

namespace pendant {

/// Opens and closes the developer dock; pressed in while that is open.
class DeveloperButton : public QToolButton {
    Q_OBJECT

public:
    DeveloperButton(const Theme& theme, QWidget* parent);

    void setTheme(const Theme& theme);

protected:
    void changeEvent(QEvent* event) override;
    /// Whoever opens the dock says when it is open; the press alone does not check the button.
    void nextCheckState() override {}

private:
    void retranslate();
};

} // namespace pendant
