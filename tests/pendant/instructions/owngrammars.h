#pragma once

#include "instructions/assignline.h"
#include "instructions/commentline.h"
#include "instructions/moveline.h"
#include "instructions/outputline.h"
#include "instructions/waitline.h"

#include <QPair>
#include <QStringList>
#include <QVector>

/// The types of the pendant's own instructions and how their lines are written.
inline QVector<QPair<QString, const pendant::LineGrammar*>> ownGrammars() {
    using namespace pendant;
    return {{"MoveJ", &MoveLine::grammar(MoveLine::Joint)},
            {"MoveL", &MoveLine::grammar(MoveLine::Linear)},
            {"Wait", &WaitLine::grammar()},
            {"SetDO", &OutputLine::grammar()},
            {"Assign", &AssignLine::grammar()},
            {"Comment", &CommentLine::grammar()}};
}

/// The types whose lines `line` is one of.
inline QStringList typesThatRead(const QString& line) {
    QStringList types;
    for (const auto& grammar : ownGrammars()) {
        if (grammar.second->read(line, nullptr))
            types << grammar.first;
    }
    return types;
}
