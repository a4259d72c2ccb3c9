#include "kite/log.h"

namespace kite {

QFLog::QFLog(const QString& colour, const QString& tag, const QString& module, const QString& path, const QString& ext)
    : console(colour, tag, module), file(tag, module, path, ext) {}

QFLog& QFLog::operator<<(const QString& text) {
    console << text;
    file << text;
    return *this;
}

QFLog& QFLog::operator<<(const QVariant& value) {
    console << value;
    file << value;
    return *this;
}

QFLog& QFLog::operator<<(const void* pointer) {
    console << pointer;
    file << pointer;
    return *this;
}

QFLog& QFLog::space() {
    console.space();
    file.space();
    return *this;
}

} // namespace kite
