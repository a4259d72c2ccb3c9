#pragma once

#include "pendanttest/fakelink.h"
#include "pendanttest/logwatch.h"
#include "pendanttest/workingfolder.h"

#include "brisk/hostfaults.h"
#include "brisk/relay.h"
#include "helm/managerhelper.h"
#include "kite/interfacemanager.h"

#include <QScopedPointer>
#include <QTest>

using brisk::standin::Channel;
using brisk::standin::Content;
using brisk::standin::contentOf;
using brisk::standin::Message;
using brisk::standin::Verb;
using kite::kiteInterface;

/// What each case of a test of the interface manager begins with: both links up, answered by the test, the log watched,
/// an empty working folder. The manager is the process's own, so a case ends what it began.
class LinksTest : public QObject {
    Q_OBJECT

protected:
    struct Links {
        pendanttest::WorkingFolder folder;
        pendanttest::LogWatch log;
        pendanttest::FakeLink bus{Channel::bus()};
        pendanttest::FakeLink controller{Channel::controller()};
    };

    pendanttest::FakeLink& bus() { return m_links->bus; }
    pendanttest::FakeLink& controller() { return m_links->controller; }
    pendanttest::LogWatch& log() { return m_links->log; }
    pendanttest::WorkingFolder& folder() { return m_links->folder; }

    /// Subscribes until the case is over.
    bool subscribe(const QString& plugin, const QString& serviceKey, std::function<void(const QVariant&)> callback,
                   const QString& connectKey) {
        m_subscribed.append({plugin, serviceKey, connectKey});
        return kiteInterface()->connectRelayData(plugin, serviceKey, callback, connectKey);
    }
    bool unsubscribe(const QString& plugin, const QString& serviceKey, const QString& connectKey) {
        return kiteInterface()->disconnectRelayData(plugin, serviceKey, connectKey);
    }
    /// The keys that were watched and unwatched on the bus, in order: "+robot.state", "-robot.state".
    QStringList watches() {
        QStringList keys;
        for (const Message& message : bus().sent) {
            if (message.verb == Verb::Watch)
                keys << "+" + message.key;
            if (message.verb == Verb::Unwatch)
                keys << "-" + message.key;
        }
        return keys;
    }

    void begin() {
        kiteInterface();
        m_links.reset(new Links);
    }
    void end() {
        brisk::standin::hostFaults() = brisk::standin::HostFaults();
        for (const QStringList& names : m_subscribed)
            unsubscribe(names[0], names[1], names[2]);
        m_subscribed.clear();
        m_links.reset();
    }

private slots:
    void init() { begin(); }
    void cleanup() { end(); }

private:
    QScopedPointer<Links> m_links;
    QList<QStringList> m_subscribed;
};
