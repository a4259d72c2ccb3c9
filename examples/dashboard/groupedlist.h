#pragma once

#include <QTreeWidget>

/// Rows of two texts under headings. Rows that stay are kept, so that a list which changes all the time can be read and
/// scrolled.
class GroupedList : public QTreeWidget {
    Q_OBJECT

public:
    struct Row {
        QString name;
        QString text;
    };

    GroupedList(const QString& nameTitle, const QString& textTitle);

    void addGroup(const QString& title);
    /// \param group counts from 0, in the order of addGroup()
    void setRows(int group, const QList<Row>& rows);

private:
    QStringList m_titles;
};
