#include "qt/list_table.h"

#include <QRegularExpression>
#include <QStringList>

namespace quillomat {

QString HtmlTableOf(const QString& list) {
  static const QRegularExpression betweenColumns(QStringLiteral(" {2,}"));
  bool hasColumns = false;
  QString table = QStringLiteral("<table>\n");
  for (const QString& line : list.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
    const QStringList cells = line.trimmed().split(betweenColumns);
    hasColumns = hasColumns || cells.size() > 1;
    table += QStringLiteral("<tr>");
    for (const QString& cell : cells) {
      table += QStringLiteral("<td>") + cell.toHtmlEscaped() + QStringLiteral("</td>");
    }
    table += QStringLiteral("</tr>\n");
  }
  return hasColumns ? table + QStringLiteral("</table>\n") : QString();
}

std::unique_ptr<QMimeData> ClipboardDataOf(const QString& list) {
  auto data = std::make_unique<QMimeData>();
  data->setText(list);
  const QString table = HtmlTableOf(list);
  if (!table.isEmpty()) data->setHtml(table);
  return data;
}

}  // namespace quillomat
