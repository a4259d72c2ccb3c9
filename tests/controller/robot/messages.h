#pragma once

#include "../contents.h"

#include "controller/virtualcontroller.h"

#include <QSignalSpy>
#include <QStringList>

/// A controller to which messages are sent, and what it delivers meanwhile.
class Messages : public QObject {
public:
    Messages() {
        connect(&controller, &controller::VirtualController::delivered, this,
                [this](const QString& key, const controller::Content& value) { delivered << key + ' ' + text(value); });
    }

    controller::Content send(controller::Verb verb, const QString& key, const QByteArray& json = QByteArray(),
                             const QString& subKey = QString()) {
        controller::Message message;
        message.verb = verb;
        message.key = key;
        message.subKey = subKey;
        message.content = json.isEmpty() ? nullptr : content(json.constData());
        return controller.handle(message);
    }
    controller::Content get(const QString& key, const QString& subKey = QString()) {
        return send(controller::Verb::Get, key, QByteArray(), subKey);
    }
    controller::Content set(const QString& key, const QByteArray& json, const QString& subKey = QString()) {
        return send(controller::Verb::Set, key, json, subKey);
    }
    controller::Content command(const QString& key, const QByteArray& json = QByteArray()) {
        return send(controller::Verb::Command, key, json);
    }
    void watch(const QString& key) { send(controller::Verb::Watch, key); }

    controller::VirtualController controller;
    QSignalSpy noticed{&controller, &controller::VirtualController::noticed};
    QSignalSpy remarked{&controller, &controller::VirtualController::remarked};
    QStringList delivered;
};
