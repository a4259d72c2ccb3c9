#pragma once

#include "controller/content.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVariant>

#include <functional>

namespace controller {

/// The bus keys of a controller: their values, what may be set, commanded and watched.
///
/// Keys are names as they stand and know nothing of each other: "io" and "io.do" are two keys. A sub-key is a dotted
/// path below the value of a key. What comes in and goes out are copies.
class BusTable : public QObject {
    Q_OBJECT

public:
    /// Carries out a command; what it returns is the answer, null for none.
    using CommandHandler = std::function<Content(const Content& sent)>;
    /// Looks at what somebody wants to set; a sentence that it returns refuses it.
    using SetCheck = std::function<QString(const QString& subKey, const Content& sent)>;

    /// The value of a key that is not kept here.
    using Source = std::function<Content()>;

    explicit BusTable(QObject* parent = nullptr);

    /// @name What the controller itself does
    /// @{

    /// Gives `key` a start value: a list, map or JSON value becomes children. A key that is there already starts anew,
    /// without its check; its command and who watches it stay. Delivers.
    void define(const QString& key, const QVariant& start);
    void defineContent(const QString& key, const Content& start);
    /// Lets `key` have what `source` says at the moment; write() does nothing to it. What somebody sets is given to
    /// `store`, which takes it or refuses it; without one it cannot be set.
    void defineComputed(const QString& key, const Source& source, const SetCheck& store = nullptr);
    /// Delivers the present value, as if it was written.
    void tell(const QString& key);
    /// Lets `key` be commanded; an empty handler ends that. A key may have a value, a command or both.
    void onCommand(const QString& key, const CommandHandler& handler);
    /// Has `check` asked before a value from outside is stored under `key`; an empty one lets everything pass. What is
    /// written by write() is not asked about.
    void onSet(const QString& key, const SetCheck& check);
    /// Replaces what stands at `subKey` of `key`, the whole for an empty one, and delivers. Makes what is missing.
    /// \return false when the key has no value or the path leads past the end of a list
    bool write(const QString& key, const QString& subKey, const Content& value);
    bool write(const QString& key, const QVariant& value);

    /// The answer to a message that is refused: told by noticed() too. For handlers of commands.
    Content refused(const QString& text);

    /// The present value; null when `key` has none.
    Content value(const QString& key) const;
    bool hasValue(const QString& key) const { return m_values.contains(key) || m_sources.contains(key); }
    bool hasCommand(const QString& key) const { return m_commands.contains(key); }
    /// By anybody.
    bool isWatched(const QString& key) const { return m_watchers.contains(key); }
    bool isWatched(const QString& key, const QObject* watcher) const;

    /// @}
    /// @name What comes over the bus
    /// The content is the answer; a refusal is told by noticed() too.
    /// @{

    Content get(const QString& key, const QString& subKey);
    /// Null when it was stored.
    Content set(const QString& key, const QString& subKey, const Content& value);
    Content command(const QString& key, const Content& sent);
    /// Of a key without a value noticed() tells, and the watch is kept: when the key gets one it is delivered.
    void watch(const QObject* watcher, const QString& key, bool on);
    void forgetWatches(const QObject* watcher);

    /// @}

signals:
    /// `key` starts anew; who let it change may stop now. Before it is delivered.
    void defined(const QString& key);
    /// `key` was written; an equal value counts too.
    void written(const QString& key);
    /// The watched `key` was written. `value` is the whole of it, also when a part was written.
    void delivered(const QString& key, const brisk::standin::Content& value);
    /// A message was refused; a sentence that says what to do.
    void noticed(const QString& text);

private:
    Content unknown(const QString& key);
    QString taken(const QString& key, const QString& subKey, const Content& value);

    QHash<QString, Content> m_values;
    QHash<QString, CommandHandler> m_commands;
    QHash<QString, Source> m_sources;
    QHash<QString, SetCheck> m_checks; // of one that is computed: what stores it
    QHash<QString, QSet<const QObject*>> m_watchers;
};

} // namespace controller
