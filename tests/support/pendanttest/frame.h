#pragma once

#include "tarp/containers.h"

#include <QWidget>

namespace pendanttest {

/// The frame of a pendant: its containers in one window of 1280 x 800, shown without a screen. Modules find them as
/// they find the real ones.
class Frame : public QWidget {
public:
    /// Key of the empty page that is shown at first.
    static const char startPage[];

    Frame();

    tarp::CenterWidget* center() const { return m_center; }
    tarp::StatusBar* statusBar() const { return m_statusBar; }
    tarp::ExpandSideBar* sideBar() const { return m_sideBar; }

private:
    tarp::StatusBar* m_statusBar;
    tarp::CenterWidget* m_center;
    tarp::ExpandSideBar* m_sideBar;
};

/// Empties what the process's host keeps: messages, navigation, physical keys, the count of model windows, the plugins'
/// nodes, the project, the names that were registered with the host and the instructions. No module may be alive.
void resetHost();

} // namespace pendanttest
