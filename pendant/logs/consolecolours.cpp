#include "consolecolours.h"

#include <QtGlobal>

#include <atomic>

#include <unistd.h>

namespace pendant {

namespace {

const QChar escape(0x1b);

std::atomic<QtMessageHandler> handlerBefore{nullptr};

// Qt ends the process after a fatal message by itself, whatever a handler does.
void handOnPlain(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    const QtMessageHandler before = handlerBefore;
    before(type, context, text.contains(escape) ? withoutColours(text) : text);
}

// Behind a colour code that begins at `start`; `start` when none does.
int colourEnd(const QString& text, int start) {
    int at = start + 1;
    if (at >= text.size() || text.at(at) != QLatin1Char('['))
        return start;
    do
        ++at;
    while (at < text.size() &&
           (text.at(at) == QLatin1Char(';') || (text.at(at) >= QLatin1Char('0') && text.at(at) <= QLatin1Char('9'))));
    return at < text.size() && text.at(at) == QLatin1Char('m') ? at + 1 : start;
}

} // namespace

void keepColoursOnTerminals() {
    if (::isatty(STDERR_FILENO))
        return;
    // Known before the handler can be called.
    handlerBefore = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(handOnPlain);
}

QString withoutColours(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (int at = 0; at < text.size();) {
        const int end = text.at(at) == escape ? colourEnd(text, at) : at;
        if (end == at)
            plain += text.at(at++);
        else
            at = end;
    }
    return plain;
}

} // namespace pendant
