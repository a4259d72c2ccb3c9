#pragma once

#include <kite/kite.h>

class KeptPanel;
class KeptValues;
class PointPanel;
class Teacher;

/// A plugin that works with the robot project: teaches, lists, changes and compares points, and keeps two values.
class TeachPlugin : public kite::PluginBase {
    Q_OBJECT

public:
    explicit TeachPlugin(QObject* parent);

    void init() override;
    void render() override;

private:
    void keep(const QString& name);

    Teacher* m_teacher;
    KeptValues* m_values;
    PointPanel* m_points = nullptr;
    KeptPanel* m_kept = nullptr;
};
