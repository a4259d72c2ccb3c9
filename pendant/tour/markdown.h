#pragma once

#include <QString>
#include <QStringList>

namespace pendant {

/// `text` on one line, with what Markdown and a table of it would take for markup spelt out.
QString markdownText(const QString& text);

/// The heading and the row of dashes of a table. A heading that ends in "|" stands over numbers: its column is aligned
/// to the right, and the "|" is left out.
QString markdownTableHead(const QStringList& headings);
/// A row of a table; the cells are escaped.
QString markdownTableRow(const QStringList& cells);

} // namespace pendant
