#include "cli/result_export.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

#include "app/setting_values.h"
#include "app/settings_table.h"
#include "base/run_time_error.h"
#include "cli/export_options.h"
#include "export/word_export.h"
#include "listing/display_format.h"
#include "listing/statistics.h"
#include "listing/word_table.h"
#include "sources/output_rules.h"
#include "system/file_system.h"
#include "ui/controls.h"

namespace quillomat {
namespace {

bool NeedsFiles(const std::vector<WordColumn>& columns) {
  return std::ranges::any_of(columns, [](WordColumn column) {
    return column == WordColumn::kFile || column == WordColumn::kFiles;
  });
}

std::string ValueOf(const Control& control) {
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
    return std::to_string(static_cast<int>(box->Value()));
  }
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) return combo->Text();
  if (const auto* text = dynamic_cast<const TextBox*>(&control)) return text->Text();
  return {};
}

std::vector<ExportFact> SettingsOf(const Program& program) {
  std::vector<ExportFact> facts;
  for (const Setting& setting : AllSettings()) {
    facts.push_back({std::string(setting.control),
                     ValueOf(ControlOf(setting, program.frmMain, program.frmParams))});
  }
  return facts;
}

std::vector<ExportFact> TotalsOf(const CurrentWords& words) {
  std::vector<ExportFact> facts = {{"words", std::int64_t{words.totals.NumIncludedWords}},
                                   {"words-excluded", std::int64_t{words.totals.NumExcludedWords}},
                                   {"instances", std::int64_t{words.totals.TotalIncludedCount}},
                                   {"instances-of-all-words", std::int64_t{words.WordsRead}}};
  if (words.folder.filesScanned > 0) {
    facts.push_back({"files", std::int64_t{words.folder.filesScanned}});
    facts.push_back({"folders", std::int64_t{words.folder.foldersScanned}});
  }
  return facts;
}

/// The listed words, or the first ones, in the order of the list.
std::vector<std::int32_t> PlacesOf(const Program& program, const WordTable& words,
                                   const CommandLine& options) {
  const bool alphabetical =
      program.frmMain.cboWordOrder.ListIndex() == static_cast<int>(WordOrder::kAlphabetical);
  std::vector<std::int32_t> places = alphabetical ? words.Alphabetical() : words.ByFrequency();
  if (options.top && static_cast<std::size_t>(*options.top) < places.size()) {
    places.resize(static_cast<std::size_t>(*options.top));
  }
  return places;
}

/// Why the file may not be written, or nothing.
std::optional<std::string> FindFileFault(const Program& program, const std::string& path) {
  if (WhyNotToWrite(path, program.Words().counted) ||
      WhyNotToWrite(path, program.Settings().filesRead)) {
    return "is read by this count; it is not overwritten";
  }
  const bool exists = FileExists(path) && FileLength(path).has_value();
  if (exists && program.frmParams.chkWarnOnOverwrite.IsChecked()) {
    return "exists and is left as it is (--overwrite replaces it)";
  }
  return std::nullopt;
}

std::optional<std::string> ExportInto(const std::string& path, const Program& program,
                                      const ExportTable& table) {
  if (auto fault = FindFileFault(program, path)) return fault;
  try {
    static_cast<void>(ExportToFile(table, *ExportFormatOfPath(path), path, {}));
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return "cannot be written: " + error.Description();
  } catch (const std::bad_alloc&) {
    return "cannot be written: " + DescriptionOf(RunTimeErrorNumber::kOutOfMemory);
  }
}

}  // namespace

std::optional<std::string> ExportResult(const Program& program, const CommandLine& options) {
  const WordTable words(program.Words().Counted(), program.Words().WordsRead);
  const std::vector<WordColumn> columns = ExportColumns(options, words.KnowsFiles());
  if (NeedsFiles(columns) && !words.KnowsFiles()) {
    return "--columns: in which files a word occurs is known of folders with count-only words only";
  }
  const std::vector<std::int32_t> places = PlacesOf(program, words, options);
  const ExportTable table{
      words,
      places,
      columns,
      TotalsOf(program.Words()),
      FactsOf(StatisticsOf(program.Words().store, program.Words().orderFigures)),
      SettingsOf(program)};
  for (const std::string& path : options.exports) {
    if (const auto fault = ExportInto(path, program, table)) return path + " " + *fault;
  }
  return std::nullopt;
}

}  // namespace quillomat
