#include "qt/list_table.h"

#include <QStringList>
#include <string>

#include "listing/list_cells.h"
#include "qt/text_conversion.h"

namespace quillomat {

QString HtmlTableOf(const QString& list, DisplayFormat format) {
  bool hasColumns = false;
  QString table = QStringLiteral("<table>\n");
  for (const QString& text : list.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    const std::string line = FromQt(text);
    const std::vector<std::string_view> cells = CellsOf(line, format);
    hasColumns = hasColumns || cells.size() > 1;
    table += QStringLiteral("<tr>");
    for (const std::string_view cell : cells) {
      table += QStringLiteral("<td>") + ToQt(cell).toHtmlEscaped() + QStringLiteral("</td>");
    }
    table += QStringLiteral("</tr>\n");
  }
  return hasColumns ? table + QStringLiteral("</table>\n") : QString();
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
