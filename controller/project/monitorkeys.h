#pragma once

#include "controller/content.h"

#include <QObject>
#include <QStringList>

namespace controller {

class BusTable;
class PersistentVariables;

/// The bus keys by which persistent variables are registered, read and modified.
class MonitorKeys : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it.
    MonitorKeys(PersistentVariables* variables, BusTable* bus, QObject* parent = nullptr);

private:
    void select(const QStringList& names);
    Content selected() const;
    Content read(const QStringList& names);
    Content modify(const Content& sent);
    void noticeUnknown(const QStringList& names);

    PersistentVariables* m_variables;
    BusTable* m_bus;
    QStringList m_selected;
};

} // namespace controller
