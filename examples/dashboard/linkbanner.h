#pragma once

#include <QLabel>

class LiveState;

/// Whether what the page shows is live; when not, since when.
class LinkBanner : public QLabel {
    Q_OBJECT

public:
    explicit LinkBanner(LiveState* live);

private:
    void display();

    LiveState* m_live;
};
