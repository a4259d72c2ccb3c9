#include "brisk/log.h"

#include "logfile.h"

namespace brisk {

namespace {

struct Line {
    explicit Line(const QString& start) : text(start), stream(&text) { stream.nospace().noquote(); }
    Q_DISABLE_COPY(Line)

    QString text;
    QDebug stream;
};

const QLatin1String colourOff("\x1b[0m");

} // namespace

struct QLog::Private {
    Line line;
};

QLog::QLog(const QString& colour, const QString& tag, const QString& module)
    : d(new Private{Line(colour + tag + module)}) {}

QLog::~QLog() {
    qDebug().nospace().noquote() << QString(d->line.text + colourOff);
}

QDebug& QLog::stream() {
    return d->line.stream;
}

struct FLog::Private {
    Line line;
    QString path;
    QString ext;
};

FLog::FLog(const QString& tag, const QString& module, const QString& path, const QString& ext)
    : d(new Private{Line(tag + module), path, ext}) {}

FLog::~FLog() {
    appendToDayFile(d->path, d->ext, d->line.text);
}

QDebug& FLog::stream() {
    return d->line.stream;
}

QFLog::QFLog(const QString& colour, const QString& tag, const QString& module, const QString& path, const QString& ext)
    : m_console(colour, tag, module), m_file(tag, module, path, ext) {}

QFLog::~QFLog() = default;

} // namespace brisk
