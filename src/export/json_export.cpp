// JSON, as one object or as an object a line.
#include <nlohmann/json.hpp>

#include "export/export_writer.h"
#include "export/json_text.h"

namespace quillomat {
namespace {

using Json = nlohmann::ordered_json;

void AppendRow(std::string& out, const ExportTable& table, const ExportRow& row) {
  out.push_back('{');
  bool first = true;
  for (const WordColumn column : table.columns) {
    if (!IsText(column) && !HasNumber(row, column)) continue;
    out.append(first ? "\"" : ", \"").append(NameOf(column)).append("\": ");
    first = false;
    if (IsText(column)) {
      out.append(QuotedJson(TextOf(row, column)));
    } else {
      AppendNumber(out, row, column);
    }
  }
  out.push_back('}');
}

Json ValueOf(const FactValue& value) {
  if (const auto* yes = std::get_if<bool>(&value)) return *yes;
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  Json points = Json::array();
  for (const GrowthPoint& point : std::get<std::vector<GrowthPoint>>(value)) {
    points.push_back(Json::array({point.instances, point.differentWords}));
  }
  return points;
}

Json ObjectOf(const std::vector<ExportFact>& facts) {
  Json object = Json::object();
  for (const ExportFact& fact : facts) object[fact.name] = ValueOf(fact.value);
  return object;
}

void AppendFacts(std::string& out, std::string_view name, const std::vector<ExportFact>& facts) {
  if (facts.empty()) return;
  out.append("  ").append(QuotedJson(name)).append(": ");
  out.append(ObjectOf(facts).dump(-1, ' ', false, Json::error_handler_t::replace));
  out.append(",\n");
}

}  // namespace

bool WriteJson(const ExportTable& table, ExportWriter& writer) {
  std::string& out = writer.Out();
  out.append("{\n");
  AppendFacts(out, "settings", table.settings);
  AppendFacts(out, "totals", table.totals);
  AppendFacts(out, "statistics", table.statistics);
  out.append("  \"rows\": [");
  std::string_view before = "\n    ";
  const bool whole = ForEachRow(table, [&](const ExportRow& row) {
    out.append(std::exchange(before, ",\n    "));
    AppendRow(out, table, row);
    return writer.EndRow();
  });
  out.append("\n  ]\n}\n");
  writer.Flush();
  return whole;
}

bool WriteJsonLines(const ExportTable& table, ExportWriter& writer) {
  std::string& out = writer.Out();
  const bool whole = ForEachRow(table, [&](const ExportRow& row) {
    AppendRow(out, table, row);
    out.push_back('\n');
    return writer.EndRow();
  });
  writer.Flush();
  return whole;
}

}  // namespace quillomat
