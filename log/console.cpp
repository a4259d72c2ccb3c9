#include "kite/log.h"

#include <QMessageLogger>

namespace kite {

// Not QDebug::space(): that writes a blank at once.
QLog& QLog::space() {
    stream.setAutoInsertSpaces(true);
    return *this;
}

QLog::QLog(const QString& colour, const QString& tag, const QString& module)
    : stream(QMessageLogger(nullptr, 0, nullptr).debug()) {
    stream.nospace().noquote() << colour << tag;
    if (!module.isEmpty())
        stream << module;
}

// The stream itself takes the blank away that it would leave behind the last item.
QLog::~QLog() {
    stream << "\x1b[0m";
}

// As a C string, so the text ends at a NUL character; intended.
QLog& QLog::operator<<(const QString& text) {
    stream << text.toUtf8().constData();
    return *this;
}

QLog& QLog::operator<<(const QVariant& value) {
    return *this << value.toString();
}

QLog& QLog::operator<<(const void* pointer) {
    stream << pointer;
    return *this;
}

} // namespace kite
