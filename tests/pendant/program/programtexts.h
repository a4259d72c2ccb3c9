#pragma once

#include <QPair>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVector>

/// Lines that somebody may write, by what is odd about them; every one can stand in a program.
inline QVector<QPair<const char*, QString>> oddLines() {
    const QChar accent(0x0301);
    return {{"empty", QString()},
            {"blanks", "   "},
            {"tabs and blanks around", "\t  MoveJ p1 \t"},
            {"regular-expression characters", R"(^a.b*c+d?(e|f)[g-h]{1,2}\s$\)"},
            {"quotes", R"(say "it's" `so` "")"},
            {"comment", "// a // b"},
            {"comment behind", "MoveJ p1 // 1st"},
            {"places for values", "%1 %2 %n %%"},
            {"markup", "<b>&amp;</b>"},
            {"German", QString::fromUtf8("Größe = Maß")},
            {"Chinese", QString::fromUtf8("移动到 点一")},
            {"Arabic", QString::fromUtf8("تحرك ١٢")},
            {"accent on its own", QStringLiteral("e") + accent},
            {"emoji", QString::fromUtf8("😀 = 👩‍🔧 + 🇩🇪")},
            {"control characters", QStringLiteral("a\x01\x1b[31m\x7f")},
            {"form feed and vertical tab", QStringLiteral("a\f\v b")},
            {"no-break space", QStringLiteral("a") + QChar(0xa0) + "b"},
            {"byte order mark", QString(QChar(QChar::ByteOrderMark)) + "a"},
            {"replacement character", QString(QChar(QChar::ReplacementCharacter))},
            {"last of a plane", QString(QChar(0xffff)) + QChar(0xfffe)},
            {"a long line", QString(100000, 'x') + " end"}};
}

/// A row of a table of cases for each, in the column "line".
inline void addOddLines() {
    QTest::addColumn<QString>("line");
    for (const auto& odd : oddLines())
        QTest::newRow(odd.first) << odd.second;
}

/// "line 0", "line 1", ...
inline QStringList numberedLines(int count) {
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines << QStringLiteral("line %1").arg(i);
    return lines;
}
