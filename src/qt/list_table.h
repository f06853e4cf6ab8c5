// A list as a table, so that a spreadsheet puts its columns into cells.
#pragma once

#include <QMimeData>
#include <QString>
#include <memory>

namespace quillomat {

/// The text as an HTML table: a row a line, a cell a column, where columns have at least two blanks
/// between them. "" when no line has two columns.
[[nodiscard]] QString HtmlTableOf(const QString& list);

/// What goes on the clipboard: the plain text, and the table if there is one.
[[nodiscard]] std::unique_ptr<QMimeData> ClipboardDataOf(const QString& list);

}  // namespace quillomat
