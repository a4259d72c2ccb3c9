#pragma once

#include "view/armgeometry.h"

#include <QJsonObject>
#include <QObject>

namespace pendant {

/// What the controller tells of the shape of its robot.
class ArmFeed : public QObject {
    Q_OBJECT

public:
    explicit ArmFeed(QObject* parent = nullptr);
    ~ArmFeed() override;

    /// Whether somebody looks. Nothing is asked and watched while nobody does.
    void setActive(bool active);
    /// Without links while nothing is known.
    const view::ArmGeometry& arm() const { return m_arm; }

signals:
    /// It is another one.
    void changed();

private:
    void setWatching(bool on);
    void read();
    void take(const QJsonObject& description);

    bool m_isActive = false;
    bool m_isWatching = false;
    QJsonObject m_description;
    view::ArmGeometry m_arm;
};

} // namespace pendant
