#include "controller/embeddedlink.h"

#include <QPointer>
#include <QThread>

#include <algorithm>

using brisk::standin::Answer;

namespace controller {

EmbeddedLink::EmbeddedLink(VirtualController* controller, QObject* parent) : Link(parent), m_controller(controller) {
    m_wall.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &EmbeddedLink::handOut);
    m_comingUp.setSingleShot(true);
    m_comingUp.setTimerType(Qt::PreciseTimer);
    connect(&m_comingUp, &QTimer::timeout, this, [this] { setUp(true); });
    connect(controller, &VirtualController::delivered, this, &EmbeddedLink::passDelivery);
    connect(controller, &VirtualController::noticed, this, &EmbeddedLink::passNotice);
}

EmbeddedLink::~EmbeddedLink() {
    m_controller->bus()->forgetWatches(this);
}

void EmbeddedLink::setUp(bool up) {
    m_comingUp.stop();
    if (up == m_isUp)
        return;
    m_isUp = up;
    ++m_connection;
    m_outbox.clear();
    m_timer.stop();
    if (up)
        handOutNoticesLater();
    else
        m_controller->bus()->forgetWatches(this);
    emit upChanged(up);
}

void EmbeddedLink::send(const Message& message) {
    if (!m_isUp)
        return;
    const qint64 sentMs = m_wall.elapsed();
    const quint64 connection = m_connection;
    // Who carries the message out may destroy the link.
    const QPointer<EmbeddedLink> self(this);
    const Content content = m_controller->handle(message, this);
    if (!self || connection != m_connection)
        return;
    if (message.wantsAnswer && m_fault != Fault::Lost)
        put({message.id, faulty(content)}, sentMs);
}

// An answer that is due later than the caller waits does not come, however late the thread wakes up.
bool EmbeddedLink::receive(Answer* answer, int timeoutMs) {
    const qint64 deadlineMs = m_wall.elapsed() + qMax(0, timeoutMs);
    const bool comes = !m_outbox.isEmpty() && m_outbox.first().atMs <= deadlineMs;
    sleepUntil(comes ? m_outbox.first().atMs : deadlineMs);
    return comes && takeDue(answer);
}

void EmbeddedLink::sleepUntil(qint64 atMs) const {
    for (qint64 leftMs = atMs - m_wall.elapsed(); leftMs > 0; leftMs = atMs - m_wall.elapsed())
        QThread::msleep(static_cast<unsigned long>(leftMs));
}

// The delay counts from the question on; there is no answer before it was made.
void EmbeddedLink::put(const Answer& answer, qint64 sentMs) {
    const Due due{qMax(sentMs + m_delayMs, m_wall.elapsed()), answer};
    const auto later = [](const Due& a, const Due& b) { return a.atMs < b.atMs; };
    m_outbox.insert(std::upper_bound(m_outbox.begin(), m_outbox.end(), due, later), due);
    startTimer();
}

Content EmbeddedLink::faulty(const Content& content) const {
    if (m_fault == Fault::Null)
        return nullptr;
    if (m_fault == Fault::Malformed)
        return brisk::standin::contentOf(QVariant(QStringLiteral("?")));
    return content;
}

bool EmbeddedLink::takeDue(Answer* answer) {
    if (m_outbox.isEmpty() || m_outbox.first().atMs > m_wall.elapsed())
        return false;
    *answer = m_outbox.takeFirst().answer;
    startTimer();
    return true;
}

void EmbeddedLink::handOut() {
    const QPointer<EmbeddedLink> self(this);
    Answer answer;
    while (self && takeDue(&answer))
        emit answered(answer);
    if (self)
        startTimer();
}

void EmbeddedLink::startTimer() {
    if (m_outbox.isEmpty())
        return m_timer.stop();
    m_timer.start(int(qMax<qint64>(0, m_outbox.first().atMs - m_wall.elapsed())));
}

// What was told before the link went down is lost with it.
void EmbeddedLink::later(std::function<void()> tell) {
    QMetaObject::invokeMethod(
        this,
        [this, tell, connection = m_connection] {
            if (connection == m_connection)
                tell();
        },
        Qt::QueuedConnection);
}

void EmbeddedLink::passDelivery(const QString& key, const Content& content) {
    if (m_isUp && m_controller->bus()->isWatched(key, this))
        later([this, key, content] { emit delivered(key, content); });
}

void EmbeddedLink::passNotice(const QString& text) {
    if (m_controller->asker() != this || m_controller->wasHandedOut(text) || !m_notices.add(text))
        return;
    handOutNoticesLater();
}

void EmbeddedLink::handOutNoticesLater() {
    QMetaObject::invokeMethod(this, &EmbeddedLink::handOutNotices, Qt::QueuedConnection);
}

// Who hears of one may take the link down or destroy it; one that is new then has a call of its own.
void EmbeddedLink::handOutNotices() {
    const QPointer<EmbeddedLink> self(this);
    for (int left = m_notices.size(); left > 0 && self && m_isUp && m_notices.size() > 0; --left) {
        const QString text = m_notices.takeOldest();
        if (m_controller->handOutOnce(text))
            emit noticed(text);
    }
}

void EmbeddedLink::remark(const QString& text) {
    if (m_isUp)
        later([this, text] { emit noticed(text); });
}

} // namespace controller
