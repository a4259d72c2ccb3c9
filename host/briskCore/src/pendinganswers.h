#pragma once

#include <QList>
#include <QMap>
#include <QString>

namespace brisk {

/// Questions whose answers nobody waits for, until they are answered or their time is over.
class PendingAnswers {
public:
    struct Question {
        QString key;
        qint64 askedMs;    ///< on the clock that the caller uses throughout
        qint64 deadlineMs; ///< on the same clock
    };

    void add(quint64 id, const Question& question) { m_questions.insert(id, question); }
    bool contains(quint64 id) const { return m_questions.contains(id); }
    Question take(quint64 id) { return m_questions.take(id); }
    QList<Question> takeAll() {
        const QList<Question> all = m_questions.values();
        m_questions.clear();
        return all;
    }
    bool isEmpty() const { return m_questions.isEmpty(); }

    /// Takes out those whose time is over at `nowMs`.
    QList<Question> takeExpired(qint64 nowMs) {
        QList<Question> expired;
        for (auto it = m_questions.begin(); it != m_questions.end();) {
            if (it->deadlineMs >= nowMs) {
                ++it;
                continue;
            }
            expired.append(*it);
            it = m_questions.erase(it);
        }
        return expired;
    }

private:
    QMap<quint64, Question> m_questions;
};

} // namespace brisk
