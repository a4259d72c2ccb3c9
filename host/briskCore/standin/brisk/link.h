#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

namespace brisk {
namespace standin {

/// What travels over a link: a node in no tree, so that the order of its children is kept. Null is "nothing at all".
using Content = std::shared_ptr<ModuleObject>;

/// A node of that value: a list, map or JSON value becomes children, everything else is the own value.
BRISK_EXPORT Content contentOf(const QVariant& value);
/// A copy of `node`; null for null.
BRISK_EXPORT Content contentOf(const ModuleObject* node);
/// A node whose own value is -1 and whose child "error" holds `text`: how the far side refuses.
BRISK_EXPORT Content refusal(const QString& text);
/// The JSON of a content, Null for null. A node with an own value and children, as a refusal, shows both: the own
/// value under "".
BRISK_EXPORT QJsonValue jsonOf(const Content& content);

/// What a message asks of the far side. The first six go over the bus, `Request` over the controller link.
enum class Verb { Get, Set, Command, Execute, Watch, Unwatch, Request };

struct Message {
    quint64 id = 0; ///< one in the process, rising
    Verb verb = Verb::Get;
    QString key;    ///< a bus key, or the full command of a request
    QString subKey; ///< of get and set; of a plugin command, its endpoint, which is never null
    Content content;
    bool wantsAnswer = false;
};

struct Answer {
    quint64 id = 0; ///< of the message
    Content content;
};

/// One way to the far side: there is one for the bus and one for the controller's requests. Whatever stands there
/// derives from it. User-interface thread only.
///
/// Signals come from the event loop, never from within send() or receive(); setUp() alone may emit upChanged() itself.
class BRISK_EXPORT Link : public QObject {
    Q_OBJECT

public:
    explicit Link(QObject* parent = nullptr);
    ~Link() override;

    virtual bool isUp() const = 0;
    /// Takes the link down, or lets it come up again. What is under way on a link that goes down is lost, and the far
    /// side forgets what was watched.
    virtual void setUp(bool up) = 0;

    /// Hands `message` on. With the link down it is lost.
    virtual void send(const Message& message) = 0;
    /// Waits up to `timeoutMs` of wall time for the next answer, whichever message it belongs to. Nothing else is
    /// delivered meanwhile: no signal, timer, input or posted event.
    /// \return false when none came
    virtual bool receive(Answer* answer, int timeoutMs) = 0;

signals:
    void upChanged(bool up);
    /// An answer that nobody waited for in receive().
    void answered(const brisk::standin::Answer& answer);
    /// The watched `key` has changed.
    void delivered(const QString& key, const brisk::standin::Content& content);
    /// The far side has something to say to the people at the pendant, a sentence.
    void noticed(const QString& text);
};

} // namespace standin
} // namespace brisk

Q_DECLARE_METATYPE(brisk::standin::Content)
