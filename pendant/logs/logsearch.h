#pragma once

#include "logfilter.h"
#include "loghits.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <memory>

namespace pendant {

class LogText;

/// Looks through a log for what a filter lets pass, a slice at a time, so that the pendant stays usable: first what is
/// newest, then backwards to the beginning. What is written meanwhile is looked at as well, also after the search has
/// ended or was stopped.
class LogSearch : public QObject {
    Q_OBJECT

public:
    explicit LogSearch(const LogText* text, QObject* parent = nullptr);

    void start(const LogFilter& filter);
    /// Looks no further back.
    void stop();
    /// Drops what was found and looks at nothing any more.
    void forget();
    /// Looks at nothing while it is paused, and goes on where it was.
    void setPaused(bool paused);
    /// To be called when the text has grown; after any other change it is start() again.
    void textGrown();

    bool isActive() const { return m_matcher != nullptr; }
    bool isPaused() const { return m_isPaused; }
    /// Whether it still looks back.
    bool isRunning() const { return isActive() && !m_done; }
    /// Whether it has looked at everything.
    bool isComplete() const { return m_complete; }
    /// How much has been looked at, 0 to 1.
    double progress() const;
    /// Whether everything from `place` on has been looked at.
    bool hasReached(const LogPlace& place) const { return m_complete || !(place < m_upper); }
    const LogHits& hits() const { return m_hits; }

signals:
    /// After every slice.
    void progressed(bool found);

private:
    void goOn();
    void slice();
    bool step();
    bool stepForward();
    bool stepBetween();
    bool stepBack();
    LogPlace stretchBefore(const LogPlace& upper) const;
    bool matches(const QByteArray& entry);

    const LogText* m_text;
    LogHits m_hits;
    std::unique_ptr<LogMatcher> m_matcher;
    QTimer m_timer;
    LogPlace m_upper;          ///< everything from here to m_newest has been looked at
    LogPlace m_newest;         ///< where the newest entry begins, which may yet get lines
    LogPlace m_end;            ///< of the text when it was looked at
    QMap<int, qint64> m_sizes; ///< how much has been looked at of the files before the newest
    bool m_found = false;
    bool m_done = true;
    bool m_complete = false;
    bool m_isPaused = false;
};

} // namespace pendant
