// One page of HTML that needs nothing else: a table whose columns sort when their heads are
// clicked.
#include <algorithm>
#include <utility>

#include "base/well_formed_text.h"
#include "export/export_writer.h"

namespace quillomat {
namespace {

constexpr std::string_view kHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>Word frequencies</title>
<style>
:root { color-scheme: light dark; }
body { font: 15px/1.5 system-ui, sans-serif; margin: 2em auto; max-width: 60em; padding: 0 1em; }
table { border-collapse: collapse; margin: 1em 0; }
th, td { padding: .15em .8em; text-align: right; font-variant-numeric: tabular-nums; }
th.text, td.text { text-align: left; }
thead th { position: sticky; top: 0; background: Canvas; border-bottom: 2px solid; }
th button { all: unset; cursor: pointer; font-weight: bold; }
th button:focus-visible { outline: 2px solid; }
tbody tr:nth-child(even) { background: color-mix(in srgb, CanvasText 5%, Canvas); }
</style>
</head>
<body>
<h1>Word frequencies</h1>
)";

/// The totals, which stand open then, say what is missing.
constexpr std::string_view kPartNotice =
    "<p role=\"note\"><strong>This list is of a part of the text.</strong></p>\n";

/// Sorts the rows by the column whose head was clicked, the other way if they are sorted by it.
constexpr std::string_view kTail = R"(</tbody>
</table>
<script>
const table = document.getElementById("words"), body = table.tBodies[0];
const heads = [...table.tHead.rows[0].cells];
heads.forEach((head, column) => head.firstElementChild.addEventListener("click", () => {
  const sorted = head.getAttribute("aria-sort");
  const down = sorted ? sorted === "ascending" : head.classList.contains("most");
  const text = head.classList.contains("text"), collator = new Intl.Collator();
  const value = row => text ? row.cells[column].textContent : Number(row.cells[column].textContent);
  const rows = [...body.rows].map(row => [value(row), row]);
  rows.sort((a, b) => (text ? collator.compare(a[0], b[0]) : a[0] - b[0]) * (down ? -1 : 1));
  heads.forEach(other => other.removeAttribute("aria-sort"));
  head.setAttribute("aria-sort", down ? "descending" : "ascending");
  body.append(...rows.map(pair => pair[1]));
}));
</script>
</body>
</html>
)";

/// Whether the totals say that something of the text is missing.
bool IsOfPart(const ExportTable& table) {
  const ExportFact incomplete{"complete", false};
  return std::ranges::find(table.totals, incomplete) != table.totals.end();
}

/// Each of several texts in a line of its own.
void AppendValue(std::string& out, const ExportFact& fact) {
  const auto* texts = std::get_if<std::vector<std::string>>(&fact.value);
  if (texts == nullptr) return AppendHtml(out, TextOf(fact));
  std::string_view before;
  for (const std::string& text : *texts) {
    out.append(std::exchange(before, "<br>"));
    AppendHtml(out, WellFormedText(text));
  }
}

void AppendFacts(std::string& out, std::string_view title, const std::vector<ExportFact>& facts,
                 bool open = false) {
  if (facts.empty()) return;
  out.append(open ? "<details open>" : "<details>")
      .append("<summary>")
      .append(title)
      .append("</summary>\n<table>\n");
  for (const ExportFact& fact : facts) {
    out.append(R"(<tr><th class="text" scope="row">)");
    AppendHtml(out, fact.name);
    out.append("</th><td>");
    AppendValue(out, fact);
    out.append("</td></tr>\n");
  }
  out.append("</table></details>\n");
}

/// Whether the rows come sorted by the column.
bool AreSortedBy(const ExportTable& table, WordColumn column) {
  return column ==
         (table.order == WordOrder::kAlphabetical ? WordColumn::kWord : WordColumn::kRank);
}

/// The class "most" has the largest numbers come first at a first click.
void AppendHeads(std::string& out, const ExportTable& table) {
  out.append(R"(<table id="words">)").append("\n<thead><tr>");
  for (const WordColumn column : table.columns) {
    out.append(R"(<th scope="col")");
    if (IsText(column)) out.append(R"( class="text")");
    if (StartsWithTheLargest(column)) out.append(R"( class="most")");
    if (AreSortedBy(table, column)) out.append(R"( aria-sort="ascending")");
    out.append("><button>").append(NameOf(column)).append("</button></th>");
  }
  out.append("</tr></thead>\n<tbody>\n");
}

}  // namespace

bool WriteHtml(const ExportTable& table, ExportWriter& writer) {
  std::string& out = writer.Out();
  out.append(kHead);
  const bool isOfPart = IsOfPart(table);
  if (isOfPart) out.append(kPartNotice);
  AppendFacts(out, "Totals", table.totals, isOfPart);
  AppendFacts(out, "Statistics", table.statistics);
  AppendFacts(out, "Settings", table.settings);
  AppendHeads(out, table);
  const bool whole = ForEachRow(table, [&](const ExportRow& row) {
    out.append("<tr>");
    for (const WordColumn column : table.columns) {
      out.append(IsText(column) ? R"(<td class="text">)" : "<td>");
      if (IsText(column)) {
        AppendHtml(out, TextOf(row, column));
      } else {
        AppendNumber(out, row, column);
      }
      out.append("</td>");
    }
    out.append("</tr>\n");
    return writer.EndRow();
  });
  out.append(kTail);
  writer.Flush();
  return whole;
}

}  // namespace quillomat
