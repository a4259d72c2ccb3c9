#pragma once

#include "brisk/export.h"
#include "brisk/moduleobject.h"

#include <QJsonValue>
#include <QObject>
#include <QString>

#include <memory>

namespace brisk {

/// Owns the data tree and reads and writes nodes as files. One per process, see ::m().
class BRISK_EXPORT ModuleManager : public QObject {
    Q_OBJECT

public:
    explicit ModuleManager(QObject* parent = nullptr);
    ~ModuleManager() override;

    /// The root of the tree; its name is empty. Lives as long as the manager.
    ModuleObject* root() const;

    /// Writes `json` (an object or array; a single value stands in an array of one) to `filePath` as UTF-8, with
    /// line breaks where `indented`. The folder must exist. Returns false when the file cannot be written; the old
    /// file is then as it was.
    bool writeToJson(const QString& filePath, const QJsonValue& json, bool indented);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace brisk

/// The process's module manager; made on first use.
BRISK_EXPORT brisk::ModuleManager* m();

/// The node at the dotted `key` below `parent`, from the root when that is null. What is missing is made, save items
/// of a list: for those an empty node that is in no tree comes back (it is emptied and handed out again by the next
/// such call). Never null.
BRISK_EXPORT brisk::ModuleObject* m(const QString& key, brisk::ModuleObject* parent = nullptr);

/// Joins the parts of a key with "."; empty parts are kept.
BRISK_EXPORT QString mName(const QString& a, const QString& b);
BRISK_EXPORT QString mName(const QString& a, const QString& b, const QString& c);
