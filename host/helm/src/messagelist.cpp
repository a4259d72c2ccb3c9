#include "helm/messagelist.h"

namespace helm {
namespace standin {

MessageList::MessageList() = default;

MessageList* MessageList::instance() {
    static MessageList list;
    return &list;
}

void MessageList::add(MessageLevel level, const QString& source, const QString& text) {
    if (m_messages.size() == capacity) {
        beginRemoveRows(QModelIndex(), 0, 0);
        m_messages.removeFirst();
        endRemoveRows();
    }
    const Message message{QDateTime::currentDateTime(), level, source, text};
    beginInsertRows(QModelIndex(), m_messages.size(), m_messages.size());
    m_messages.append(message);
    endInsertRows();
    emit added(message);
}

void MessageList::clear() {
    beginResetModel();
    m_messages.clear();
    endResetModel();
}

const QList<Message>& MessageList::messages() const {
    return m_messages;
}

int MessageList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_messages.size();
}

QVariant MessageList::data(const QModelIndex& index, int role) const {
    if (index.row() < 0 || index.row() >= m_messages.size())
        return QVariant();
    const Message& message = m_messages.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return message.text;
    case TimeRole:
        return message.time;
    case LevelRole:
        return static_cast<int>(message.level);
    case SourceRole:
        return message.source;
    default:
        return QVariant();
    }
}

} // namespace standin
} // namespace helm
