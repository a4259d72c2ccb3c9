#pragma once

#include "dockpart.h"

#include "brisk/channel.h"

#include <QLabel>
#include <QPushButton>

namespace pendant {

/// One link: how it stands, what a plugin sees of that, and the button that takes it down or brings it up.
class LinkCard : public DockPart {
    Q_OBJECT

public:
    LinkCard(brisk::standin::Channel* channel, const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme) override;
    /// Whether there is a link that can be taken down.
    bool isThere() const { return m_channel->link() != nullptr; }
    void setUp(bool up);
    /// Looks how the link stands now.
    void refresh();

protected:
    void retranslate() override { refresh(); }

private:
    bool isBus() const;
    QString meaning(bool up) const;

    brisk::standin::Channel* m_channel;
    QLabel* m_icon;
    QLabel* m_name;
    QLabel* m_state;
    QLabel* m_meaning;
    QPushButton* m_button;
};

} // namespace pendant
