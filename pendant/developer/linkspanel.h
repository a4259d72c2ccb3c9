#pragma once

#include "dockpanel.h"

#include <QLabel>
#include <QPushButton>

namespace pendant {

class LinkCard;

/// The links to bus and controller, to be taken down and brought up by hand.
class LinksPanel : public DockPanel {
    Q_OBJECT

public:
    explicit LinksPanel(const Theme& theme, QWidget* parent = nullptr);

    QString title() const override { return tr("Links"); }
    void setLive(bool live) override;
    void setTheme(const Theme& theme) override;

protected:
    void showEvent(QShowEvent* event) override;
    void retranslate() override;

private:
    void setBoth(bool up);
    void refresh();

    LinkCard* m_bus;
    LinkCard* m_controller;
    QLabel* m_hint;
    QPushButton* m_bothDown;
    QPushButton* m_bothUp;
};

} // namespace pendant
