#pragma once

#include "brisk/moduleobject.h"

#include <QJsonArray>

#include <memory>
#include <vector>

namespace pendant {

/// The records that somebody has put into a list before the project was there. They step aside while it is loaded.
class EarlyRecords {
public:
    /// Takes them out of `list`; those whose name is in `loaded` too go for good.
    EarlyRecords(brisk::ModuleObject* list, const QJsonArray& loaded);

    /// Puts them behind what is in the list now.
    void putBack(brisk::ModuleObject* list) const;

private:
    std::vector<std::unique_ptr<brisk::ModuleObject>> m_records;
};

} // namespace pendant
