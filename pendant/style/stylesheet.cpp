#include "stylesheet.h"

#include <QFile>
#include <QRegularExpression>

namespace pendant {

namespace {

QString resource(const QString& name) {
    QFile file(QStringLiteral(":/pendant/style/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString replacement(const QString& token, const Theme& theme) {
    if (token == QLatin1String("theme"))
        return theme.name();
    const QColor color = theme.color(token);
    return color.isValid() ? color.name() : QLatin1Char('@') + token;
}

QString controls(const Theme& theme) {
    return withTokens(resource(QStringLiteral("labels.qss")) + resource(QStringLiteral("buttons.qss")) +
                          resource(QStringLiteral("fields.qss")) + resource(QStringLiteral("views.qss")),
                      theme);
}

} // namespace

QString withTokens(const QString& text, const Theme& theme) {
    static const QRegularExpression token(QStringLiteral("@([A-Za-z]+)"));
    QString result;
    int done = 0;
    QRegularExpressionMatchIterator matches = token.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result += text.midRef(done, match.capturedStart() - done);
        result += replacement(match.captured(1), theme);
        done = match.capturedEnd();
    }
    return result + text.mid(done);
}

QString controlStyleSheet(const Theme& theme) {
    return controls(theme);
}

QString frameStyleSheet(const Theme& theme) {
    return controls(theme) + withTokens(resource(QStringLiteral("frame.qss")), theme);
}

QString developerStyleSheet(const Theme& theme) {
    return withTokens(resource(QStringLiteral("developer.qss")), theme);
}

} // namespace pendant
