#pragma once

#include "controller/virtualcontroller.h"

#include "brisk/link.h"

#include <QElapsedTimer>
#include <QList>
#include <QTimer>

#include <functional>

namespace controller {

/// What goes wrong with answers. The controller has carried the message out all the same.
enum class Fault {
    None,
    Lost,     ///< the answer never comes
    Null,     ///< the answer is nothing at all, a null content
    Malformed ///< the answer is the plain text "?" and has no children
};

/// A way to a virtual controller in the same process. It starts down.
///
/// The controller handles a message within send(); the answer then lies in an outbox until it is due. What
/// the controller tells on its own goes through the event loop. What it refuses is told of with a notice, once for each
/// sentence; one that the link has no time for before it goes down comes when it is up again.
class EmbeddedLink : public brisk::standin::Link {
    Q_OBJECT

public:
    /// \param controller not owned; it must outlive the link
    explicit EmbeddedLink(VirtualController* controller, QObject* parent = nullptr);
    ~EmbeddedLink() override;

    /// From the next message on.
    void setFault(Fault fault) { m_fault = fault; }
    /// How long the answers to the next messages take, in wall time; 0 at the start.
    void setDelayMs(int delayMs) { m_delayMs = qMax(0, delayMs); }

    /// Tells `text` over the link as a notice.
    void remark(const QString& text);

    bool isUp() const override { return m_isUp; }
    /// What comeUpIn() was told before is off then.
    void setUp(bool up) override;
    void comeUpIn(int delayMs) { m_comingUp.start(delayMs); }
    void send(const Message& message) override;
    bool receive(brisk::standin::Answer* answer, int timeoutMs) override;

private:
    struct Due {
        qint64 atMs; // of m_wall
        brisk::standin::Answer answer;
    };

    void sleepUntil(qint64 atMs) const;
    void put(const brisk::standin::Answer& answer, qint64 sentMs);
    Content faulty(const Content& content) const;
    bool takeDue(brisk::standin::Answer* answer);
    void handOut();
    void startTimer();
    void later(std::function<void()> tell);
    void passDelivery(const QString& key, const Content& content);
    void passNotice(const QString& text);
    void handOutNotices();
    void handOutNoticesLater();

    VirtualController* m_controller;
    Fault m_fault = Fault::None;
    int m_delayMs = 0;
    bool m_isUp = false;
    quint64 m_connection = 0; // counts how often the link went up or down
    QElapsedTimer m_wall;
    QList<Due> m_outbox; // the next due first
    QTimer m_timer;
    QTimer m_comingUp;
    RecentTexts m_notices; // not handed out yet
};

} // namespace controller
