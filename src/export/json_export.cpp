// JSON, as one object or as an object a line.
#include <algorithm>
#include <nlohmann/json.hpp>
#include <vector>

#include "base/well_formed_text.h"
#include "export/export_writer.h"
#include "export/json_text.h"

namespace quillomat {
namespace {

using Json = nlohmann::ordered_json;

/// The columns, each once: no key may stand in an object twice.
std::vector<WordColumn> KeysOf(const ExportTable& table) {
  std::vector<WordColumn> keys;
  for (const WordColumn column : table.columns) {
    if (std::ranges::find(keys, column) == keys.end()) keys.push_back(column);
  }
  return keys;
}

void AppendRow(std::string& out, const std::vector<WordColumn>& keys, const ExportRow& row) {
  out.push_back('{');
  bool first = true;
  for (const WordColumn column : keys) {
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
  if (const auto* text = std::get_if<std::string>(&value)) return WellFormedText(*text);
  if (const auto* texts = std::get_if<std::vector<std::string>>(&value)) {
    Json array = Json::array();
    for (const std::string& each : *texts) array.push_back(WellFormedText(each));
    return array;
  }
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
  out.append(ObjectOf(facts).dump()).append(",\n");
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
  const std::vector<WordColumn> keys = KeysOf(table);
  const bool whole = ForEachRow(table, [&](const ExportRow& row) {
    out.append(std::exchange(before, ",\n    "));
    AppendRow(out, keys, row);
    return writer.EndRow();
  });
  out.append("\n  ]\n}\n");
  writer.Flush();
  return whole;
}

bool WriteJsonLines(const ExportTable& table, ExportWriter& writer) {
  std::string& out = writer.Out();
  const std::vector<WordColumn> keys = KeysOf(table);
  const bool whole = ForEachRow(table, [&](const ExportRow& row) {
    AppendRow(out, keys, row);
    out.push_back('\n');
    return writer.EndRow();
  });
  writer.Flush();
  return whole;
}

}  // namespace quillomat
