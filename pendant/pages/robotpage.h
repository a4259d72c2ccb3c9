#pragma once

#include "armfeed.h"
#include "page.h"
#include "pointsmodel.h"
#include "project/followednode.h"
#include "robotfeed.h"

#include <QPushButton>

namespace pendant {

class ArmView;
class EmptyState;
class JogState;

/// The robot as it stands, drawn, with its tool, its work objects and the points of the project.
class RobotPage : public Page {
    Q_OBJECT

public:
    /// Names of more points could not be read; what is above is left out.
    static constexpr int pointsAtMost = 500;

    explicit RobotPage(const Theme& theme, QWidget* parent = nullptr);

    void setTheme(const Theme& theme) override;

protected:
    void retranslate() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QPushButton* addLook(const QString& name);
    void connectLooks();
    void followRobot();
    void showOnline();
    void showArm();
    void showFrame();
    void showPosition();
    void showPoints();
    void showSelected();

    RobotFeed m_feed;
    ArmFeed m_armFeed;
    PointsModel m_points;
    FollowedNode m_tool;
    FollowedNode m_workObject;
    QPushButton* m_front;
    QPushButton* m_side;
    QPushButton* m_top;
    QPushButton* m_fit;
    QWidget* m_shown;
    ArmView* m_view;
    JogState* m_state;
    QLabel* m_hint;
    EmptyState* m_empty;
};

} // namespace pendant
