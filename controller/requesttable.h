#pragma once

#include "controller/content.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>

namespace controller {

/// The requests that a controller answers, by full command: group and request joined by ".".
class RequestTable : public QObject {
    Q_OBJECT

public:
    /// Carries out a request; what it returns is the answer.
    using Handler = std::function<Content(const Content& sent)>;

    explicit RequestTable(QObject* parent = nullptr);

    /// Lets `handler` answer `command`, in place of the one before; an empty one makes the command unknown.
    void onRequest(const QString& command, const Handler& handler);
    bool knows(const QString& command) const { return m_handlers.contains(command); }

    /// The answer to a request that is refused: told by noticed() too. For handlers.
    Content refused(const QString& text);

    /// The answer; of an unknown command a refusal, told by noticed() too.
    Content handle(const QString& command, const Content& sent);

signals:
    void noticed(const QString& text);

private:
    QHash<QString, Handler> m_handlers;
};

} // namespace controller
