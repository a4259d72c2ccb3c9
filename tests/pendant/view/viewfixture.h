#pragma once

#include "view/picture.h"

#include <QJsonArray>
#include <QJsonObject>

/// Robots as a controller describes them, and colours that tell materials apart.
namespace viewfixture {

inline QJsonObject link(const char* name, int axis, const QJsonObject& next) {
    QJsonArray direction;
    for (int i = 0; i < 3; ++i)
        direction << (i == axis ? 1 : 0);
    return QJsonObject{{"name", name}, {"axis", direction}, {"next", next}};
}

inline QJsonObject sixAxes() {
    QJsonArray links;
    links << link("A1", 2, QJsonObject{{"x", 150}, {"z", 450}}) << link("A2", 1, QJsonObject{{"z", 700}})
          << link("A3", 1, QJsonObject{{"x", 820}, {"z", 115}}) << link("A4", 0, QJsonObject())
          << link("A5", 1, QJsonObject()) << link("A6", 0, QJsonObject{{"x", 110}, {"b", 90}});
    return QJsonObject{{"links", links},
                       {"tools", QJsonObject{{"gripper", QJsonObject{{"z", 180}}}}},
                       {"wobjs", QJsonObject{{"table", QJsonObject{{"x", 800}, {"y", -300}, {"z", 400}}}}}};
}

inline QJsonObject sevenAxes() {
    QJsonArray links;
    links << link("J1", 2, QJsonObject{{"z", 340}}) << link("J2", 1, QJsonObject())
          << link("J3", 2, QJsonObject{{"z", 400}}) << link("J4", 1, QJsonObject{{"x", 400}})
          << link("J5", 0, QJsonObject()) << link("J6", 1, QJsonObject())
          << link("J7", 0, QJsonObject{{"x", 126}, {"b", 90}});
    return QJsonObject{{"foot", QJsonObject{{"z", 300}}},
                       {"links", links},
                       {"tools", QJsonObject{{"gripper", QJsonObject{{"x", 60}, {"z", 120}, {"b", 30}}}}}};
}

/// On a rail, before a table that tilts and turns.
inline QJsonObject withExternals() {
    QJsonObject description = sixAxes();
    QJsonArray externals;
    externals
        << QJsonObject{{"name", "E1"},
                       {"axis", QJsonArray{0, 1, 0}},
                       {"linear", true},
                       {"place", QJsonObject{{"y", -1000}, {"z", 250}}}}
        << QJsonObject{{"name", "E2"}, {"axis", QJsonArray{0, 1, 0}}, {"place", QJsonObject{{"x", 1200}, {"z", 600}}}}
        << QJsonObject{{"name", "E3"}, {"axis", QJsonArray{0, 0, 1}}, {"place", QJsonObject{{"z", 120}, {"on", "E2"}}}};
    description.insert("externals", externals);
    description.insert("foot", QJsonObject{{"on", "E1"}});
    return description;
}

/// A limb no longer than a finger, and joints in no order that a robot has.
inline QJsonObject odd() {
    QJsonArray links;
    links << link("O1", 0, QJsonObject{{"y", 12}}) << link("O2", 0, QJsonObject{{"x", 3}, {"z", 40}})
          << link("O3", 2, QJsonObject{{"x", -25}}) << link("O4", 2, QJsonObject());
    return QJsonObject{{"foot", QJsonObject{{"z", 900}, {"c", 180}}}, {"links", links}};
}

inline pendant::view::Colours colours() {
    pendant::view::Colours colours;
    colours.surfaces.fill(QColor(Qt::gray));
    colours.surfaces[size_t(pendant::view::Material::Metal)] = QColor(255, 0, 0);
    colours.surfaces[size_t(pendant::view::Material::AxisZ)] = QColor(0, 0, 255);
    for (QColor* colour : {&colours.sky, &colours.ground, &colours.floor, &colours.grid})
        *colour = Qt::white;
    colours.shadow = QColor(0, 0, 0, 100);
    return colours;
}

} // namespace viewfixture
