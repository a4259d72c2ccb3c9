#pragma once

#include <QString>

/// What came of something that was asked for: a sentence, and whether it is bad news.
struct Answer {
    bool isProblem;
    QString text;

    static Answer problem(const QString& text) { return {true, text}; }
    static Answer done(const QString& text) { return {false, text}; }
};
