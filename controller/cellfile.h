#pragma once

#include "controller/virtualcontroller.h"

#include <QByteArray>
#include <QString>

namespace controller {

/// Cells: files in JSON that say which keys, commands and requests a virtual controller knows.
class CellFile {
public:
    /// The cell that is compiled in, to be given to load().
    static QString defaultPath();

    /// Reads the cell at `path` into `controller`. Keys, commands and requests that it knows already stay, of the same
    /// name the cell's holds; robot, project and persistent variables are those of the cell alone.
    /// \param error says what is wrong, a sentence with file and place; untouched when all is well
    /// \return false when the file cannot be read or is no good; nothing of it is taken then
    static bool load(const QString& path, VirtualController* controller, QString* error);
    /// The same with the text of a cell; `name` stands for the file in `error`.
    static bool loadText(const QByteArray& text, const QString& name, VirtualController* controller, QString* error);
};

} // namespace controller
