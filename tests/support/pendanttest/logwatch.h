#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace pendanttest {

/// Watches what goes to the console while it lives: the lines of the log streams and Qt's own messages.
///
/// A warning of Qt's, and a line at the error level ("[E|...]"), is a problem unless it was expected; an expected line
/// that does not come is one too. The two lines at the error level that every module writes when it is destroyed
/// ("~Kite begin", "~Kite end!") are routine and pass; what Qt's platform plugin says of itself is not even kept. Lines
/// may come from any thread; everything else belongs on the test's own.
class LogWatch {
public:
    LogWatch();
    /// Fails the running test for every problem that takeProblems() has not handed out.
    ~LogWatch();

    /// One line that contains `part` is expected; to be said before it comes. Say it once for each such line.
    void expect(const QString& part);

    /// Takes `problem`, a sentence of somebody else who watches, for a line that is a problem unless it was expected.
    void take(const QString& problem);

    /// All lines so far as they were handed to the message handler, colours included.
    QStringList lines() const;
    /// How many lines contain `part`.
    int count(const QString& part) const;
    /// Forgets the lines so far; expectations and problems stay.
    void forgetLines();

    /// Hands out the problems so far, a sentence each, and forgets them and every expectation.
    QStringList takeProblems();
    /// Fails the running test for every problem so far.
    /// \return true when there was none
    bool verify();

private:
    Q_DISABLE_COPY(LogWatch)
};

} // namespace pendanttest
