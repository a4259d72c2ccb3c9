#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPair>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <utility>

namespace pendant {

/// A group of instructions as the picker shows it.
struct InstructionGroup {
    QString key;
    QString title;     ///< never empty but for a group without a key and a title
    QStringList types; ///< in the order of their registration, each once
};

/// A pattern that is no regular expression.
struct BadPattern {
    QString type;
    QString pattern;
    QString what; ///< what is wrong, and where
};

/// The instruction types that are registered, and which lines belong to them: a snapshot of the host's registry.
///
/// A line belongs to the first registered type whose pattern is found in it. Patterns are searched for as they are
/// given: one that has to be the whole line says so with "^" and "$". A type without a pattern, or with an empty one,
/// has no lines, and a name that is empty is no type. A name that is registered twice stands where it stood first.
///
/// A pattern that the regular-expression engine gives up on a line is not found in it. User-interface thread only.
class LineTypes : public QObject {
    Q_OBJECT

public:
    /// Reads the registry.
    explicit LineTypes(QObject* parent = nullptr);

    /// Whether the registry has changed since it was read. Cheap while it has not.
    bool isStale() const;
    /// Reads the registry again. Patterns that stayed are not compiled anew.
    void reload();

    /// All types, in the order of registration, each once.
    QStringList types() const { return m_types; }
    /// The first type whose lines `line` is one of; empty when there is none. What was asked before is remembered.
    QString typeOf(const QString& line) const;
    /// All types whose lines `line` is one of, the first first. Tries every pattern; what was asked before is
    /// remembered.
    QStringList typesOf(const QString& line) const;
    QVector<BadPattern> badPatterns() const { return m_badPatterns; }

    /// The groups in the order in which they were given titles, then those without in the order of their keys (which
    /// are their titles), then "Other" with the types that are in none. Groups without types and types that the
    /// registry hides are left out.
    QVector<InstructionGroup> groups() const;

    /// @name What is registered for a type
    /// Empty or false for what is not.
    /// @{

    /// What a person calls it; the type itself when the registry has no title.
    QString title(const QString& type) const;
    QString description(const QString& type) const;
    /// The name of a pendant icon or the path of a picture.
    QString icon(const QString& type) const;
    /// The line that an insertion begins with.
    QString skeleton(const QString& type) const;
    QString pattern(const QString& type) const;
    /// As the registry is now, not as it was read.
    static bool hasInsertWidget(const QString& type);
    static bool hasPropertyWidget(const QString& type);
    /// @}

signals:
    /// The pattern of a type is of no use, or gave up on a line. Told once for each pattern of a type while this object
    /// lives, when control is back in the event loop, so that typeOf() may be called by who paints.
    /// \param what a sentence without the name of the type
    void patternFailed(const QString& type, const QString& what);

private:
    // What is copied is shared with the registry until that is written.
    struct Snapshot {
        QStringList typeKeys;
        QList<std::pair<QString, QString>> groups;
        QHash<QString, QStringList> groupMembers;
        QHash<QString, QString> descriptions;
        QSet<QString> hiddenTypes;
        QHash<QString, QString> patterns;
        QHash<QString, QString> skeletons;
        QHash<QString, QString> icons;
        QHash<QString, QString> titles;
    };
    struct Matcher {
        QString type;
        QRegularExpression expression;
    };

    void readTypes();
    void compile();
    void addMatcher(const QString& type, const QRegularExpression& expression);
    bool isFound(const Matcher& matcher, const QString& line) const;
    int indexOfMatch(const QString& line) const;
    void tellOnce(const QString& type, const QString& pattern, const QString& what) const;
    QVector<InstructionGroup> titledGroups() const;
    QVector<InstructionGroup> untitledGroups() const;
    InstructionGroup groupOf(const QString& key, const QString& title) const;
    QStringList shown(const QStringList& types) const;
    QStringList typesInNoGroup() const;

    Snapshot m_registry;
    QStringList m_types;
    QVector<Matcher> m_matchers;
    QVector<BadPattern> m_badPatterns;
    mutable QHash<QString, int> m_known; // line -> its matcher, -1 for none
    mutable QHash<QString, QStringList> m_knownTypes;
    mutable QSet<QPair<QString, QString>> m_told;
};

} // namespace pendant
