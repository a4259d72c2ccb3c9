#include "gripperline.h"

#include <QRegularExpression>

namespace {

// 40 -> "40", 12.5 -> "12.5", 0 -> "?"
QString valueText(double value) {
    if (value <= 0.0)
        return QStringLiteral("?");
    QString text = QString::number(value, 'f', 1);
    if (text.endsWith(QLatin1String(".0")))
        text.chop(2);
    return text;
}

// "// slowly" -> "slowly", "//slowly" -> "slowly"
QString commentText(const QString& behindTheSlashes) {
    return behindTheSlashes.startsWith(QLatin1Char(' ')) ? behindTheSlashes.mid(1) : behindTheSlashes;
}

} // namespace

const LineForm& closeGripperForm() {
    static const LineForm form{QStringLiteral("CloseGripper"), QStringLiteral("force"), QStringLiteral("N"), 1.0,
                               200.0};
    return form;
}

const LineForm& openGripperForm() {
    static const LineForm form{QStringLiteral("OpenGripper"), QStringLiteral("width"), QStringLiteral("mm"), 1.0,
                               120.0};
    return form;
}

QString linePattern(const LineForm& form) {
    return QStringLiteral("^(?<indent>\\s*)%1\\s+%2=(?<value>\\?|\\d{1,3}(?:\\.\\d)?)%3\\s+wait=(?<wait>\\d{1,4})ms"
                          "\\s*(?://(?<comment>.*))?$")
        .arg(form.type, form.key, form.unit);
}

QString lineSkeleton(const LineForm& form) {
    return writeLine(form, GripperLine());
}

bool readLine(const LineForm& form, const QString& text, GripperLine* line) {
    const QRegularExpressionMatch match = QRegularExpression(linePattern(form)).match(text);
    if (!match.hasMatch())
        return false;
    // "?" reads as 0.
    const double value = match.captured(QStringLiteral("value")).toDouble();
    line->value = isInRange(form, value) ? value : 0.0;
    line->waitMs = match.captured(QStringLiteral("wait")).toInt();
    line->comment = commentText(match.captured(QStringLiteral("comment")));
    line->indent = match.captured(QStringLiteral("indent"));
    return true;
}

QString writeLine(const LineForm& form, const GripperLine& line) {
    const QString text = QStringLiteral("%1%2 %3=%4%5 wait=%6ms")
                             .arg(line.indent, form.type, form.key, valueText(line.value), form.unit)
                             .arg(line.waitMs);
    return onOneLine(line.comment.isEmpty() ? text : text + QLatin1String(" // ") + line.comment);
}

bool isInRange(const LineForm& form, double value) {
    return value >= form.least && value <= form.most;
}

QString onOneLine(QString text) {
    static const QRegularExpression breaks(QStringLiteral("[\\x{0}\\x{a}-\\x{d}\\x{85}\\x{2028}\\x{2029}]"));
    return text.replace(breaks, QStringLiteral(" "));
}
