#include "controller/bustable.h"

using brisk::standin::contentOf;

namespace controller {

namespace {

QString quoted(const QString& name) {
    return '"' + name + '"';
}

QString unknownKey(const QString& key) {
    return QStringLiteral("The controller knows no bus key %1. Define it in the cell file, under \"bus\".")
        .arg(quoted(key));
}

// "io.do.3" with "io.do" at hand -> "io.do"
QString keyAbove(const QString& key, const BusTable& bus) {
    QString above = key;
    while (above.contains('.')) {
        above = above.section('.', 0, -2);
        if (bus.hasValue(above))
            return above;
    }
    return QString();
}

QString subKeyMeant(const QString& key, const QString& above) {
    return QStringLiteral("The controller knows no bus key %1, but %2: ask for that with the sub-key %3, or define %1 "
                          "in the cell file, under \"bus\".")
        .arg(quoted(key), quoted(above), quoted(key.mid(above.size() + 1)));
}

} // namespace

Content BusTable::get(const QString& key, const QString& subKey) {
    if (!hasValue(key))
        return unknown(key);
    const Content whole = m_sources.contains(key) ? value(key) : m_values.value(key);
    const brisk::ModuleObject* node = whole->r(subKey);
    if (!node)
        return refused(QStringLiteral("The bus key %1 has no %2 below it.").arg(quoted(key), quoted(subKey)));
    return contentOf(node);
}

Content BusTable::set(const QString& key, const QString& subKey, const Content& value) {
    if (!hasValue(key))
        return unknown(key);
    const QString reason = taken(key, subKey, value);
    return reason.isEmpty() ? nullptr : refused(reason);
}

// A sentence when it was not.
QString BusTable::taken(const QString& key, const QString& subKey, const Content& value) {
    // A check may replace itself.
    const SetCheck check = m_checks.value(key);
    const bool isComputed = m_sources.contains(key);
    if (isComputed && !check)
        return QStringLiteral("The bus key %1 cannot be set.").arg(quoted(key));
    const QString reason = check ? check(subKey, value) : QString();
    if (!reason.isEmpty())
        return reason;
    if (isComputed)
        tell(key);
    else if (!write(key, subKey, value))
        return QStringLiteral("The bus key %1 has no %2 below it: a list is made longer by its next item only.")
            .arg(quoted(key), quoted(subKey));
    return QString();
}

Content BusTable::command(const QString& key, const Content& sent) {
    // A handler may replace itself.
    if (const CommandHandler handler = m_commands.value(key))
        return handler(sent);
    return refused(QStringLiteral("The controller knows no bus command %1. Give it an answer in the cell file, under "
                                  "\"commands\".")
                       .arg(quoted(key)));
}

void BusTable::watch(const QObject* watcher, const QString& key, bool on) {
    if (!on) {
        m_watchers[key].remove(watcher);
        if (m_watchers.value(key).isEmpty())
            m_watchers.remove(key);
        return;
    }
    m_watchers[key].insert(watcher);
    if (!hasValue(key))
        unknown(key);
}

void BusTable::forgetWatches(const QObject* watcher) {
    const QStringList keys = m_watchers.keys();
    for (const QString& key : keys)
        watch(watcher, key, false);
}

Content BusTable::unknown(const QString& key) {
    if (hasCommand(key))
        return refused(QStringLiteral("The bus key %1 is a command and has no value. Define one in the cell file, "
                                      "under \"bus\".")
                           .arg(quoted(key)));
    const QString above = keyAbove(key, *this);
    return refused(above.isEmpty() ? unknownKey(key) : subKeyMeant(key, above));
}

Content BusTable::refused(const QString& text) {
    emit noticed(text);
    return brisk::standin::refusal(text);
}

} // namespace controller
