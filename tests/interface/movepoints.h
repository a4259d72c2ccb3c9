#pragma once

#include "project.h"

/// Points to move to.
struct MovePoints {
    static QJsonObject cartesian(const QString& name, double x, double y, double z) {
        const QJsonObject frame{{"pos", QJsonObject{{"x", x}, {"y", y}, {"z", z}}},
                                {"ori", QJsonObject{{"euler", QJsonObject{{"a", 10}, {"b", 20.5}, {"c", -90}}},
                                                    {"quaternion", QJsonObject{{"q1", 1}}}}}};
        QJsonObject conf;
        for (int i = 1; i <= 7; ++i)
            conf.insert(QString("cf%1").arg(i), i);
        conf.insert("cfx", 8.5);
        return point(name, QJsonObject{{"pose", QJsonObject{{"frame", frame}, {"elb", 7}}}, {"conf", conf}});
    }
    static QJsonObject joint(const QString& name) {
        return point(name, QJsonObject{{"inner_pos", QJsonArray{1, 2, 3, 4, 5, 6, 7}}});
    }
    static QJsonObject point(const QString& name, const QJsonObject& position) {
        return {{"name", name}, {"value", QJsonObject{{"[0][0][0]", position}}}};
    }
};
