#include "controller/requesttable.h"

namespace controller {

RequestTable::RequestTable(QObject* parent) : QObject(parent) {}

void RequestTable::onRequest(const QString& command, const Handler& handler) {
    if (handler)
        m_handlers.insert(command, handler);
    else
        m_handlers.remove(command);
}

Content RequestTable::handle(const QString& command, const Content& sent) {
    // A handler may replace itself.
    if (const Handler handler = m_handlers.value(command))
        return handler(sent);
    return refused(QStringLiteral("The controller knows no request \"%1\". Give it an answer in the cell file, "
                                  "under \"requests\".")
                       .arg(command));
}

Content RequestTable::refused(const QString& text) {
    emit noticed(text);
    return brisk::standin::refusal(text);
}

} // namespace controller
