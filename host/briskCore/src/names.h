#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>
#include <cstring>

namespace brisk {

/// Names are compared and hashed four characters at a time: they are most of the cost of a look-up.
constexpr qsizetype charsPerWord = 4;

inline quint64 wordAt(const QChar* chars) {
    quint64 word;
    std::memcpy(&word, chars, sizeof word);
    return word;
}

/// Tells most names apart at the cost of a few instructions: "cf1", "cf2", "#7", "pos", "ori".
inline uint nameTag(QStringView name) {
    if (name.isEmpty())
        return 0;
    const qsizetype last = name.size() - 1;
    return uint(last + 1) << 26 ^ uint(name.at(0).unicode()) << 13 ^ name.at(last).unicode();
}

inline bool sameName(QStringView a, QStringView b) {
    const qsizetype size = a.size();
    if (size != b.size())
        return false;
    if (size < charsPerWord)
        return std::equal(a.begin(), a.end(), b.begin());
    for (qsizetype i = 0; i + charsPerWord <= size; i += charsPerWord) {
        if (wordAt(a.data() + i) != wordAt(b.data() + i))
            return false;
    }
    return wordAt(a.data() + size - charsPerWord) == wordAt(b.data() + size - charsPerWord);
}

/// The hash by which one of many children is found.
uint nameHash(QStringView name);

/// The one copy of `name` that all nodes of that name share.
QString sharedName(const QString& name);

/// 7 -> "#7"
QString itemName(int number);
/// "#7" -> 7; -1 for what is no item's name.
int itemNumber(QStringView name);

} // namespace brisk
