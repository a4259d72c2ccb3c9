#pragma once

#include "brisk/export.h"
#include "brisk/link.h"

#include <QObject>
#include <QString>

#include <memory>

namespace brisk {
namespace standin {

/// The near end of a link, where the host's bus and managers put their messages in. Matches answers with questions,
/// drops what comes too late and tells Traffic of everything. There are two in the process. User-interface thread only.
class BRISK_EXPORT Channel : public QObject {
    Q_OBJECT

public:
    /// How a question ended. `content` is what came back; it may be null also when `state` is Answered.
    struct Reply {
        enum State { Answered, TimedOut, Down };
        State state;
        Content content;
    };

    static Channel* bus();
    static Channel* controller();

    explicit Channel(const QString& name);
    ~Channel() override;

    /// "bus" or "controller".
    QString name() const;

    /// Puts `link` behind the channel, null for none. It is not owned; a link that is deleted counts as down.
    void setLink(Link* link);
    Link* link() const;
    bool isUp() const;

    /// Sends and wants no answer. \return false with the link down: nothing is sent then
    bool send(const QObject* sender, Message message);
    /// Sends and does not wait; what comes back within `timeoutMs` is told by answered().
    /// \return false with the link down: nothing is sent then
    bool post(const QObject* sender, Message message, int timeoutMs);
    /// Sends and waits for the answer.
    Reply ask(const QObject* sender, Message message, int timeoutMs);

signals:
    /// The link went up or down. Changes are told one after the other: who pulls the link while he is being told of its
    /// coming up lets everybody hear of that first, and of its going down then.
    void upChanged(bool up);
    void answered(const QString& key, const brisk::standin::Content& content);
    void delivered(const QString& key, const brisk::standin::Content& content);
    void noticed(const QString& text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace standin
} // namespace brisk
