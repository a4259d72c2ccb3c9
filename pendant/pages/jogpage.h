#pragma once

#include "jogdrive.h"
#include "page.h"
#include "project/followednode.h"
#include "robotfeed.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QPushButton>
#include <QScrollArea>
#include <QVector>

namespace pendant {

class EmptyState;
class JogRow;
class JogState;

/// Where the robot stands, and keys that move it while they are held: its joints, its tool, its external axes.
class JogPage : public Page {
    Q_OBJECT

public:
    explicit JogPage(const Theme& theme, QWidget* parent = nullptr);
    ~JogPage() override;

    void setTheme(const Theme& theme) override;

protected:
    void retranslate() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    enum Part { Joints, Cartesian, Externals };
    struct Row {
        JogRow* widget;
        bool isCartesian;
        int axis;
    };

    void addPart(Part part, const QString& name);
    void addSpeeds();
    QComboBox* addFrameChoice(const QString& name, const FollowedNode& node);
    void arrange();
    void followRobot();

    void showPart();
    void addAxisRows(bool external);
    void addCartesianRows();
    JogRow* addRow(const QString& name, const QString& unit, bool isCartesian, int axis);
    void showRobot();
    void showOnline();
    void showValues();
    void showFrame(QComboBox* choice, const QStringList& names, const FollowedNode& node);
    void showFrames();

    RobotFeed m_feed;
    JogDrive m_drive;
    FollowedNode m_tool;
    FollowedNode m_workObject;
    QButtonGroup m_parts;
    QButtonGroup m_speeds; ///< the ids are percent
    QLabel* m_speedCaption;
    QLabel* m_toolCaption;
    QLabel* m_workObjectCaption;
    QComboBox* m_toolChoice;
    QComboBox* m_workObjectChoice;
    QWidget* m_controls;
    QScrollArea* m_scroll;
    QVBoxLayout* m_rowColumn = nullptr;
    QVector<Row> m_rows;
    JogState* m_state;
    EmptyState* m_empty;
};

} // namespace pendant
