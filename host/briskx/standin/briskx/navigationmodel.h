#pragma once

#include "brisk/export.h"

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

namespace ot {
namespace gyre {
namespace standin {

struct Entry {
    QString title;
    QString icon;
    QString nav; ///< key of the centre page
};

struct Group {
    QString path;  ///< "robot.pack"
    QString title; ///< for people; the path when the group was not declared
    QString icon;
    QList<Entry> entries;
};

/// The navigation as the pendant shows it, read again from the tree ("gyre.page") whenever that changes.
class BRISK_EXPORT NavigationModel : public QObject {
    Q_OBJECT

public:
    static NavigationModel* instance();

    /// Declares a page group with its title and icon, in the order of the calls.
    void declareGroup(const QString& path, const QString& title, const QString& icon);
    /// Declared groups first, then those that registerPage() made by itself.
    QList<Group> groups() const;
    /// The title of the first entry that leads to the page; empty when none does.
    QString titleOf(const QString& nav) const;

signals:
    /// Entries or groups changed. Emitted once for a burst of changes, when control is back in the event loop.
    void changed();

private:
    NavigationModel();
    ~NavigationModel() override;
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace standin
} // namespace gyre
} // namespace ot
