#pragma once

#include "project/followednode.h"
#include "state/signals.h"

#include <QAbstractListModel>
#include <QString>
#include <QTimer>
#include <QVector>

namespace pendant {

/// The inputs or the outputs of the data tree as rows, with a heading above those of each type. It follows the tree
/// while it is active: what is written is shown when control is back in the event loop.
class IoSignalsModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        HeadingRole = Qt::UserRole + 1, ///< true of a heading
        NameRole,                       ///< of the signal; empty of a heading
        ValueRole,                      ///< in words; of a heading how many signals stand below it
        OnRole,                         ///< whether a digital signal is on; invalid of others
        ForcedRole
    };

    explicit IoSignalsModel(QObject* parent = nullptr);

    void showInputs(bool inputs);
    /// Only those whose name contains `text`, in any case.
    void setFilter(const QString& text);
    /// Whether somebody looks. Nothing is read while nobody does.
    void setActive(bool active);

    /// Of the direction that is shown; with the filter, or all.
    int shownCount() const { return m_shownCount; }
    int allCount() const { return m_allCount; }
    /// The names of the forced signals, whether they are shown or not.
    const QStringList& forced() const { return m_forced; }
    /// -1 when it is not shown.
    int rowOf(const QString& name) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    static QString typeText(SignalType type);
    static QString valueText(const Signal& signal);

signals:
    /// The tree was read again: any value may have changed.
    void refreshed();

private:
    struct Row {
        SignalType type;
        QString name; // empty: a heading
        int count;    // of the signals below a heading
        bool operator==(const Row& other) const;
    };

    void listen(brisk::ModuleObject* node);
    void refreshSoon();
    void refresh();
    bool isShown(const Signal& signal) const;
    QVector<Row> rowsOf(const QVector<Signal>& all) const;
    void takeRows(const QVector<Row>& rows);
    QVariant headingData(const Row& row, int role) const;
    QVariant signalData(const Row& row, int role) const;

    FollowedNode m_io;
    QTimer m_timer;
    bool m_isActive = false;
    bool m_showsInputs = true;
    QString m_filter;
    QVector<Row> m_rows;
    QStringList m_forced;
    int m_shownCount = 0;
    int m_allCount = 0;
};

} // namespace pendant
