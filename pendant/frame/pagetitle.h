#pragma once

#include "tarp/containers.h"

#include <QLabel>

namespace pendant {

/// The title above a page that a plugin brings: that of its navigation entry. The pendant's own pages have one of their
/// own.
class PageTitle : public QLabel {
    Q_OBJECT

public:
    PageTitle(tarp::CenterWidget* center, QWidget* parent);

private:
    void showTitle();

    tarp::CenterWidget* m_center;
};

} // namespace pendant
