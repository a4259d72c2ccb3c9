#pragma once

#include "brisk/export.h"

#include <QAbstractListModel>
#include <QDateTime>
#include <QList>
#include <QString>

namespace helm {
namespace standin {

enum class MessageLevel { Information, Warning, Error };

struct Message {
    QDateTime time;
    MessageLevel level;
    QString source; ///< the plugin's name, or the part of the pendant that speaks
    QString text;
};

/// What stands behind ManagerHelper::throwLog(): the messages of the pendant, oldest first. The oldest go when there
/// are more than `capacity`. User-interface thread only.
class BRISK_EXPORT MessageList : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { TimeRole = Qt::UserRole + 1, LevelRole, SourceRole };
    static const int capacity = 1000;

    /// The process's list; made on first use.
    static MessageList* instance();

    void add(MessageLevel level, const QString& source, const QString& text);
    void clear();
    const QList<Message>& messages() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

signals:
    void added(const helm::standin::Message& message);

private:
    MessageList();
    QList<Message> m_messages;
};

} // namespace standin
} // namespace helm
