#include "autoload.h"

#include "projectkeys.h"
#include "settings.h"

#include "brisk/modulemanager.h"
#include "brisk/relay.h"

using brisk::ModuleObject;

namespace pendant {

namespace {

const QString setting = QStringLiteral("pendant.autoload");
const QString controllersKey = QStringLiteral("project.autoload");

} // namespace

Autoload::Autoload(QObject* parent) : QObject(parent), m_node(projectkeys::autoload()) {
    setObjectName(QStringLiteral("autoload"));
    if (path().isEmpty() && !settings::text(setting).isEmpty())
        setPath(nullptr, settings::text(setting));
    connect(&m_node, &FollowedNode::renewed, this, &Autoload::listen);
    listen(m_node.node());
    // A plugin may have asked the controller for another one.
    relay()->watch(this, controllersKey, true);
    const ModuleObject* told = relay()->watchNode(controllersKey);
    if (told)
        connect(told, &ModuleObject::changed, this,
                [this](const QVariant& path) { setPath(nullptr, path.toString()); });
}

void Autoload::listen(ModuleObject* node) {
    connect(node, &ModuleObject::changed, this,
            [](const QVariant& path) { settings::setText(setting, path.toString()); });
}

QString Autoload::path() const {
    return m_node.node() ? m_node.node()->getString() : QString();
}

void Autoload::setPath(QObject* sender, const QString& path) {
    if (m_node.node())
        m_node.node()->setValue(sender, path);
}

} // namespace pendant
