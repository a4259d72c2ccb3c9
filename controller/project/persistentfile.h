#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QTimer>

namespace controller {

class PersistentVariables;
class Project;

/// Keeps the values of persistent variables in a file. Of the project's it keeps the whole records, so that one which a
/// plugin added is there again; they go back into the project that they are of, no other.
class PersistentFile : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it.
    PersistentFile(Project* project, PersistentVariables* variables, QObject* parent = nullptr);
    ~PersistentFile() override;

    /// Brings back what the file at `path` holds, if it is there, and writes every change to it: from the event loop,
    /// or when this is deleted. A value whose variable is there with another type is left out. \param error says what
    /// is wrong, a sentence; untouched when all is well \return false when the file is there and is no good; nothing is
    /// brought back then, and the file is left alone
    bool keepIn(const QString& path, QString* error);

signals:
    /// The file cannot be written; a sentence for the people at the pendant.
    void failed(const QString& text);

private:
    void restore(const QJsonObject& json);
    void restoreRecord(const QJsonObject& json);
    QJsonObject present() const;
    void save();

    Project* m_project;
    PersistentVariables* m_variables;
    QString m_path;
    QTimer m_soon;
};

} // namespace controller
