// A list as a table, so that a spreadsheet puts its columns into cells.
#pragma once

#include <QMimeData>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

#include "listing/display_format.h"

namespace quillomat {

/// Answers with the format of the list on display; none when it is no list.
using ListFormatSource = std::function<std::optional<DisplayFormat>()>;

/// An HTML table that is put together row by row.
class HtmlTable {
 public:
  /// `cells` as plain text.
  void AddRow(const QStringList& cells);
  [[nodiscard]] QString Whole() const;

 private:
  QString rows_;
};

/// Lines of a list of that format as an HTML table: a row a line, a cell a column. "" when no line
/// has two columns.
[[nodiscard]] QString HtmlTableOf(const QString& list, DisplayFormat format);

/// What goes on the clipboard: the plain text, and the table if it is a list that makes one.
[[nodiscard]] std::unique_ptr<QMimeData> ClipboardDataOf(const QString& text,
                                                         std::optional<DisplayFormat> format);

}  // namespace quillomat
