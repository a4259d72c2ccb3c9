#include "controller/cell/repeatedname.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <QVector>

namespace controller {

namespace {

/// An object or array that is not closed yet.
struct Open {
    bool isObject;
    bool awaitsName;
    QSet<QString> names;
};

// The offset of the closing quotation mark of the text that begins at `from`.
int endOfText(const QByteArray& json, int from) {
    int at = from + 1;
    while (at < json.size() && json.at(at) != '"')
        at += json.at(at) == '\\' ? 2 : 1;
    return at;
}

QString unquoted(const QByteArray& text) {
    return QJsonDocument::fromJson('[' + text + ']').array().first().toString();
}

void follow(char c, QVector<Open>* open) {
    if (c == '{' || c == '[')
        open->append({c == '{', c == '{', {}});
    else if (open->isEmpty())
        return;
    else if (c == '}' || c == ']')
        open->removeLast();
    else if (c == ',')
        open->last().awaitsName = open->last().isObject;
    else if (c == ':')
        open->last().awaitsName = false;
}

} // namespace

RepeatedName RepeatedName::in(const QByteArray& json) {
    QVector<Open> open;
    for (int at = 0; at < json.size(); ++at) {
        if (json.at(at) != '"') {
            follow(json.at(at), &open);
            continue;
        }
        const int end = endOfText(json, at);
        if (!open.isEmpty() && open.last().awaitsName) {
            const QString name = unquoted(json.mid(at, end - at + 1));
            if (open.last().names.contains(name))
                return {name, at};
            open.last().names.insert(name);
        }
        at = end;
    }
    return {QString(), -1};
}

} // namespace controller
