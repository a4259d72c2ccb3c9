#pragma once

#include "style/theme.h"
#include "tarp/containers.h"

#include <QToolButton>

namespace pendant {

class SideBarHeader;

/// Opens and closes the side bar; there as long as the side bar has pages.
class SideBarButton : public QToolButton {
    Q_OBJECT

public:
    SideBarButton(tarp::ExpandSideBar* bar, SideBarHeader* header, const Theme& theme, QWidget* parent);

    void setTheme(const Theme& theme);

protected:
    void changeEvent(QEvent* event) override;

private:
    void press();
    void retranslate();

    tarp::ExpandSideBar* m_bar;
    SideBarHeader* m_header;
};

} // namespace pendant
