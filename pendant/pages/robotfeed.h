#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

namespace pendant {

/// An axis of the robot as the controller describes it.
struct RobotAxis {
    QString name;
    QString unit; ///< "deg" or "mm"
    double minimum;
    double maximum;
    bool isExternal;
};

/// What the controller tells of its robot: its axes and frames, and, live while somebody looks, where it stands.
class RobotFeed : public QObject {
    Q_OBJECT

public:
    explicit RobotFeed(QObject* parent = nullptr);
    ~RobotFeed() override;

    /// Whether somebody looks. Nothing is asked and watched while nobody does.
    void setActive(bool active);
    /// True while both links are up.
    bool isOnline() const { return m_isOnline; }

    const QVector<RobotAxis>& axes() const { return m_axes; }
    const QStringList& tools() const { return m_tools; }
    const QStringList& workObjects() const { return m_workObjects; }

    bool isMoving() const { return m_isMoving; }
    /// What ended the motion before, in the controller's words; empty when somebody did.
    QString stoppedBy() const { return m_stoppedBy; }
    /// Where the axis of that index stands, in its unit.
    double axisValue(int axis) const;
    /// x, y, z in mm for 0 to 2, a, b, c in degrees for 3 to 5.
    double cartesianValue(int index) const;

signals:
    void onlineChanged(bool online);
    /// Axes, tools or work objects.
    void robotChanged();
    void positionChanged();
    void stateChanged();

private:
    void follow(const QString& key, void (RobotFeed::*take)(const QJsonObject&));
    void followLinks();
    void setWatching(bool on);
    void readRobot();
    void takePosition(const QJsonObject& position);
    void takeState(const QJsonObject& state);

    bool m_isActive = false;
    bool m_isOnline = false;
    bool m_isWatching = false;
    QVector<RobotAxis> m_axes;
    int m_joints = 0; ///< how many of the axes are not external
    QStringList m_tools;
    QStringList m_workObjects;
    QJsonObject m_position;
    bool m_isMoving = false;
    QString m_stoppedBy;
};

} // namespace pendant
