#include "framemirror.h"

#include "links.h"
#include "projectkeys.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

#include <QJsonObject>
#include <QTimer>

using brisk::ModuleObject;

namespace pendant {

namespace {

const QString frameKey = QStringLiteral("robot.frame");

QJsonObject frameOfTree() {
    return {{QStringLiteral("tool"), m(projectkeys::tool())->getString()},
            {QStringLiteral("wobj"), m(projectkeys::workObject())->getString()}};
}

QJsonObject frameOfController(QObject* sender) {
    const ModuleObject* reply = relay()->get(sender, frameKey);
    return reply ? reply->exportToJson(true).toObject() : QJsonObject();
}

} // namespace

FrameMirror::FrameMirror(QObject* parent)
    : QObject(parent), m_tool(projectkeys::tool()), m_workObject(projectkeys::workObject()) {
    setObjectName(QStringLiteral("frame"));
    for (const FollowedNode* followed : {&m_tool, &m_workObject}) {
        connect(followed, &FollowedNode::renewed, this, &FrameMirror::listen);
        listen(followed->node());
    }
    links::follow(this, [this] { followLink(); });
    followLink();
}

void FrameMirror::listen(ModuleObject* node) {
    connect(node, &ModuleObject::changed, this, [this](const QVariant&, const QVariant&, const QObject* sender) {
        if (sender != this)
            sendSoon();
    });
}

void FrameMirror::followLink() {
    const bool up = links::isBusUp();
    if (up == m_wasUp)
        return;
    m_wasUp = up;
    if (!up)
        return;
    const QJsonObject selected = frameOfController(this);
    take(selected, true);
    if (selected.contains(QStringLiteral("tool")) && frameOfTree() != selected)
        send();
}

void FrameMirror::sendSoon() {
    if (m_isQueued)
        return;
    m_isQueued = true;
    QTimer::singleShot(0, this, &FrameMirror::send);
}

void FrameMirror::send() {
    m_isQueued = false;
    if (!links::isBusUp())
        return;
    ModuleObject frame(QStringLiteral("frame"));
    frame.importFromJson(nullptr, frameOfTree(), false, true, false);
    relay()->set(this, frameKey, &frame);
    take(frameOfController(this), false);
}

void FrameMirror::take(const QJsonObject& frame, bool onlyMissing) {
    const QList<QPair<QString, QString>> places{{QStringLiteral("tool"), projectkeys::tool()},
                                                {QStringLiteral("wobj"), projectkeys::workObject()}};
    for (const auto& place : places) {
        ModuleObject* node = m(place.second);
        const QString name = frame.value(place.first).toString();
        const bool isWanted = node->getString().isEmpty() || !onlyMissing;
        if (!name.isEmpty() && isWanted && node->getString() != name)
            node->setValue(this, name);
    }
}

} // namespace pendant
