// A list as a table, so that a spreadsheet puts its columns into cells.
#pragma once

#include <QMimeData>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

#include "listing/list_cells.h"

namespace quillomat {

/// A line of which something is copied, and from where to where.
struct CopiedLine {
  QString line;
  qsizetype begin = 0;
  qsizetype end = 0;
};

/// The lines of a text, each as a whole.
[[nodiscard]] std::vector<CopiedLine> LinesOf(const QString& text);

/// An HTML table that is put together row by row.
class HtmlTable {
 public:
  /// `cells` as plain text.
  void AddRow(const QStringList& cells) { AddCells(cells, QStringLiteral("td")); }
  void AddTitles(const QStringList& titles) { AddCells(titles, QStringLiteral("th")); }
  [[nodiscard]] QString Whole() const;

 private:
  void AddCells(const QStringList& cells, const QString& element);

  QString rows_;
};

/// Rows of cells on their way to the clipboard: text with tabs between the cells, and a table.
class CopiedRows {
 public:
  /// Of very many rows the text is enough: it is what programs take over faster.
  explicit CopiedRows(qsizetype rows) : withTable_(rows <= kMostRowsOfATable) {}

  // A tab or a line break in a cell, as paths may have them, is written as "\t", "\n" or "\r".
  /// Before the rows.
  void AddTitles(const QStringList& titles);
  void Add(const QStringList& cells);
  /// Once, at the end. No row at all leaves the clipboard as it is.
  void PutOnClipboard();

 private:
  static constexpr qsizetype kMostRowsOfATable = 100'000;

  QString text_;
  bool hasRows_ = false;
  HtmlTable table_;
  bool withTable_;
};

/// The lines as an HTML table: a row a line, a cell a column. What is not copied of a cell is not
/// in the table, but cells stay in their columns. "" when no line has two columns.
[[nodiscard]] QString HtmlTableOf(const std::vector<CopiedLine>& lines, const CellSource& cells);

/// What goes on the clipboard: the plain text, and the table unless that is "".
[[nodiscard]] std::unique_ptr<QMimeData> ClipboardDataOf(const QString& text, const QString& table);

}  // namespace quillomat
