#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <functional>

namespace pendant {

/// One call into a plugin.
struct CallRecord {
    QString plugin;
    QString call; ///< "init", say
    double ms;
    QString thrown; ///< what it threw, in words; empty for nothing
};

/// Runs calls into plugins: measures them, lets nothing that they throw out and reports it under the plugin's name.
class CallGuard : public QObject {
    Q_OBJECT

public:
    /// How many records are kept; the oldest go.
    static const int capacity = 2000;

    explicit CallGuard(QObject* parent = nullptr);

    /// \return what the call threw, in words; empty for nothing
    QString run(const QString& plugin, const QString& call, const std::function<void()>& body);

    /// Oldest first.
    const QList<CallRecord>& records() const { return m_records; }
    /// How many calls have thrown since the guard was made.
    int thrownCount() const { return m_thrownCount; }

signals:
    void recorded(const pendant::CallRecord& record);

private:
    QList<CallRecord> m_records;
    int m_thrownCount = 0;
};

} // namespace pendant
