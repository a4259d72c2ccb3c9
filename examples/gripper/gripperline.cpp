#include "gripperline.h"

#include <QRegularExpression>

#include <algorithm>

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

bool breaksALine(QChar character) {
    const ushort code = character.unicode();
    return code == 0 || (code >= 0xa && code <= 0xd) || code == 0x85 || code == 0x2028 || code == 0x2029;
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
    line->value = match.captured(QStringLiteral("value")).toDouble();
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

// Not by a regular expression: it refuses a text with half of a surrogate pair, and would leave its breaks in.
QString onOneLine(QString text) {
    std::replace_if(text.begin(), text.end(), breaksALine, QChar(QLatin1Char(' ')));
    return text;
}
