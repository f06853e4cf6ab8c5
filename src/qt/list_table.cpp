#include "qt/list_table.h"

#include <string>

#include "listing/list_cells.h"
#include "qt/text_conversion.h"

namespace quillomat {

void HtmlTable::AddRow(const QStringList& cells) {
  rows_ += QStringLiteral("<tr>");
  for (const QString& cell : cells) {
    rows_ += QStringLiteral("<td>") + cell.toHtmlEscaped() + QStringLiteral("</td>");
  }
  rows_ += QStringLiteral("</tr>\n");
}

QString HtmlTable::Whole() const {
  return QStringLiteral("<table>\n") + rows_ + QStringLiteral("</table>\n");
}

QString HtmlTableOf(const QString& list, DisplayFormat format) {
  bool hasColumns = false;
  HtmlTable table;
  for (const QString& text : list.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    const std::string line = FromQt(text);
    const std::vector<std::string_view> cells = CellsOf(line, format);
    hasColumns = hasColumns || cells.size() > 1;
    QStringList shown;
    for (const std::string_view cell : cells) shown.append(ToQt(cell));
    table.AddRow(shown);
  }
  return hasColumns ? table.Whole() : QString();
}

std::unique_ptr<QMimeData> ClipboardDataOf(const QString& text,
                                           std::optional<DisplayFormat> format) {
  auto data = std::make_unique<QMimeData>();
  data->setText(text);
  const QString table = format ? HtmlTableOf(text, *format) : QString();
  if (!table.isEmpty()) data->setHtml(table);
  return data;
}

}  // namespace quillomat
