#pragma once

#include "brisk/channel.h"
#include "brisk/link.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QList>
#include <QStringList>

#include <functional>

namespace pendanttest {

/// The far side of a channel, made of a function: what it returns is the answer. Plugs itself in, link up, for as long
/// as it lives. Deliveries arrive at once and not from the event loop.
class FakeLink : public brisk::standin::Link {
public:
    explicit FakeLink(brisk::standin::Channel* channel = brisk::standin::Channel::bus()) : m_channel(channel) {
        m_channel->setLink(this);
    }
    ~FakeLink() override {
        if (m_channel->link() == this)
            m_channel->setLink(nullptr);
    }

    /// Answers what wants an answer; null content unless set. Messages that want none are only kept.
    std::function<brisk::standin::Content(const brisk::standin::Message&)> reply;
    /// False for a far side that never answers; nobody waits for it then.
    bool answers = true;
    /// What was sent, oldest first.
    QList<brisk::standin::Message> sent;

    /// Every message answered with that content from now on.
    void answerWith(const brisk::standin::Content& content) {
        reply = [content](const brisk::standin::Message&) { return content; };
    }
    /// The messages of that verb as "key|subKey|JSON of the content".
    QStringList sentAs(brisk::standin::Verb verb) const {
        QStringList lines;
        for (const brisk::standin::Message& message : sent) {
            if (message.verb == verb)
                lines << line(message);
        }
        return lines;
    }
    void deliver(const QString& key, const QVariant& value) { emit delivered(key, brisk::standin::contentOf(value)); }

    /// Has that answer come out before what is answered from now on.
    void queue(const brisk::standin::Answer& answer) { m_answers << answer; }

    bool isUp() const override { return m_up; }
    void setUp(bool up) override {
        if (up == m_up)
            return;
        m_up = up;
        emit upChanged(up);
    }
    void send(const brisk::standin::Message& message) override {
        sent << message;
        if (message.wantsAnswer && answers)
            m_answers << brisk::standin::Answer{message.id, reply ? reply(message) : nullptr};
    }
    bool receive(brisk::standin::Answer* answer, int) override {
        if (m_answers.isEmpty())
            return false;
        *answer = m_answers.takeFirst();
        return true;
    }

private:
    static QString line(const brisk::standin::Message& message) {
        const QJsonArray wrapped{brisk::standin::jsonOf(message.content)};
        const QString json = QString::fromUtf8(QJsonDocument(wrapped).toJson(QJsonDocument::Compact));
        return QStringList{message.key, message.subKey, json.mid(1, json.size() - 2)}.join(QLatin1Char('|'));
    }

    brisk::standin::Channel* m_channel;
    QList<brisk::standin::Answer> m_answers;
    bool m_up = true;
};

} // namespace pendanttest
