// The forms in which a result can be exported, told by the ending of a file's name.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

enum class ExportFormat { kCsv, kTsv, kJson, kJsonLines, kXlsx, kHtml, kMarkdown };

struct ExportFormatInfo {
  ExportFormat format;
  /// Of a file's name, without the dot, lower case.
  std::string_view ending;
  /// What a person knows it by.
  std::string_view name;
};

inline constexpr std::array<ExportFormatInfo, 7> kExportFormats = {{
    {ExportFormat::kCsv, "csv", "CSV"},
    {ExportFormat::kTsv, "tsv", "TSV"},
    {ExportFormat::kXlsx, "xlsx", "Excel"},
    {ExportFormat::kHtml, "html", "HTML"},
    {ExportFormat::kMarkdown, "md", "Markdown"},
    {ExportFormat::kJson, "json", "JSON"},
    {ExportFormat::kJsonLines, "jsonl", "JSON Lines"},
}};

/// The format of a file by the ending of its name, in any letter case ("htm" is HTML, too); nothing
/// for an ending that is none of ours.
[[nodiscard]] std::optional<ExportFormat> ExportFormatOfPath(std::string_view path);

/// "csv, tsv, xlsx, html, md, json, jsonl", for messages.
[[nodiscard]] std::string ExportEndings();

}  // namespace quillomat
