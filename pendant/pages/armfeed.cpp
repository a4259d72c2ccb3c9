#include "armfeed.h"

#include "brisk/relay.h"
#include "project/links.h"

#include <QJsonArray>

using brisk::ModuleObject;

namespace pendant {

namespace {

const QString armKey = QStringLiteral("robot.arm");

QJsonValue asked(QObject* sender, const QString& key) {
    const ModuleObject* reply = relay()->get(sender, key);
    return reply ? reply->exportToJson(true) : QJsonValue();
}

// How far an external axis goes is told with the axes.
void takeLimits(const QJsonArray& axes, view::ArmGeometry* arm) {
    for (view::External& external : arm->externals) {
        for (const QJsonValue& value : axes) {
            const QJsonObject axis = value.toObject();
            if (axis.value(QStringLiteral("name")).toString() != external.name)
                continue;
            external.minimum = axis.value(QStringLiteral("min")).toDouble();
            external.maximum = axis.value(QStringLiteral("max")).toDouble();
        }
    }
}

} // namespace

ArmFeed::ArmFeed(QObject* parent) : QObject(parent) {
    setObjectName(QStringLiteral("robot page"));
    ModuleObject* node = relay()->watchNode(armKey);
    if (node)
        connect(node, &ModuleObject::changed, this, [this](const QVariant& value) { take(value.toJsonObject()); });
    links::follow(this, [this] { read(); });
}

ArmFeed::~ArmFeed() {
    setWatching(false);
}

void ArmFeed::setActive(bool active) {
    m_isActive = active;
    setWatching(active);
    read();
}

void ArmFeed::setWatching(bool on) {
    if (on == m_isWatching)
        return;
    m_isWatching = on;
    relay()->watch(this, armKey, on);
}

void ArmFeed::read() {
    if (m_isActive && links::areUp())
        take(asked(this, armKey).toObject());
}

void ArmFeed::take(const QJsonObject& description) {
    if (description == m_description)
        return;
    m_description = description;
    m_arm = view::armGeometryOf(description);
    if (!m_arm.externals.isEmpty())
        takeLimits(asked(this, QStringLiteral("robot.axes")).toArray(), &m_arm);
    emit changed();
}

} // namespace pendant
