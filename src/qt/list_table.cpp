#include "qt/list_table.h"

#include <QApplication>
#include <QClipboard>
#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "qt/text_conversion.h"

namespace quillomat {
namespace {

/// Cells that begin behind the copied part are not copied, cells that end before it are empty.
QStringList CellsOf(const CopiedLine& copied, const CellSource& cells) {
  const std::string line = FromQt(copied.line);
  const auto known = cells ? cells(line) : std::span<const CellSpan>();
  if (known.empty()) return {copied.line.mid(copied.begin, copied.end - copied.begin)};
  const auto begin = static_cast<std::size_t>(FromQt(copied.line.left(copied.begin)).size());
  const auto end = static_cast<std::size_t>(FromQt(copied.line.left(copied.end)).size());
  QStringList row;
  for (const CellSpan& cell : known) {
    if (cell.begin >= end) break;
    const std::size_t from = std::max(cell.begin, begin);
    const std::size_t to = std::min(cell.end, end);
    row.append(from < to ? ToQt(std::string_view(line).substr(from, to - from)) : QString());
  }
  return row;
}

/// What would part a cell or a row is written as programs write it.
QString OnOneLine(QString cell) {
  return cell.replace(QLatin1Char('\t'), QLatin1String("\\t"))
      .replace(QLatin1Char('\n'), QLatin1String("\\n"))
      .replace(QLatin1Char('\r'), QLatin1String("\\r"));
}

}  // namespace

void HtmlTable::AddCells(const QStringList& cells, const QString& element) {
  const QString begin = QLatin1Char('<') + element + QLatin1Char('>');
  const QString end = QStringLiteral("</") + element + QLatin1Char('>');
  rows_ += QStringLiteral("<tr>");
  for (const QString& cell : cells) rows_ += begin + cell.toHtmlEscaped() + end;
  rows_ += QStringLiteral("</tr>\n");
}

QString HtmlTable::Whole() const {
  return QStringLiteral("<table>\n") + rows_ + QStringLiteral("</table>\n");
}

void CopiedRows::AddTitles(const QStringList& titles) {
  text_ += titles.join(QLatin1Char('\t')) + QLatin1Char('\n');
  if (withTable_) table_.AddTitles(titles);
}

void CopiedRows::Add(const QStringList& cells) {
  hasRows_ = true;
  QStringList lines = cells;
  std::ranges::transform(lines, lines.begin(), OnOneLine);
  text_ += lines.join(QLatin1Char('\t')) + QLatin1Char('\n');
  if (withTable_) table_.AddRow(lines);
}

void CopiedRows::PutOnClipboard() {
  if (!hasRows_) return;
  // The clipboard takes the data over.
  QApplication::clipboard()->setMimeData(
      ClipboardDataOf(text_, withTable_ ? table_.Whole() : QString()).release());
}

std::vector<CopiedLine> LinesOf(const QString& text) {
  std::vector<CopiedLine> lines;
  for (const QString& line : text.split(QLatin1Char('\n'))) {
    lines.push_back({line, 0, line.size()});
  }
  return lines;
}

QString HtmlTableOf(const std::vector<CopiedLine>& lines, const CellSource& cells) {
  bool hasColumns = false;
  HtmlTable table;
  for (const CopiedLine& copied : lines) {
    if (copied.begin >= copied.end) continue;
    const QStringList row = CellsOf(copied, cells);
    hasColumns = hasColumns || row.size() > 1;
    table.AddRow(row);
  }
  return hasColumns ? table.Whole() : QString();
}

std::unique_ptr<QMimeData> ClipboardDataOf(const QString& text, const QString& table) {
  auto data = std::make_unique<QMimeData>();
  data->setText(WithReadableBytes(text));
  if (!table.isEmpty()) data->setHtml(WithReadableBytes(table));
  return data;
}

}  // namespace quillomat
