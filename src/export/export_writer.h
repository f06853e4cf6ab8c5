// Collects what an export writes and hands it on in large blocks. Shared by the formats that are
// text.
#pragma once

#include <cstddef>
#include <string>

#include "base/byte_sink.h"
#include "export/cell_text.h"
#include "export/export_table.h"

namespace quillomat {

class ExportWriter {
 public:
  ExportWriter(ByteSink& sink, const ExportProgress& progress) : sink_(sink), progress_(progress) {}

  /// What is written next is appended here.
  [[nodiscard]] std::string& Out() { return out_; }

  /// A row is complete; false when the export is to end.
  [[nodiscard]] bool EndRow() {
    constexpr std::size_t kRowsPerQuestion = 4096;
    if (out_.size() >= kBlockBytes) Flush();
    return ++rows_ % kRowsPerQuestion != 0 || !progress_ || progress_(rows_);
  }

  void Flush() {
    sink_.Write(out_);
    out_.clear();
  }

 private:
  static constexpr std::size_t kBlockBytes = std::size_t{256} * 1024;

  ByteSink& sink_;
  const ExportProgress& progress_;
  std::string out_;
  std::size_t rows_ = 0;
};

// Each writes the whole table; false when the export was ended.
[[nodiscard]] bool WriteCsv(const ExportTable& table, ExportWriter& writer);
[[nodiscard]] bool WriteTsv(const ExportTable& table, ExportWriter& writer);
[[nodiscard]] bool WriteJson(const ExportTable& table, ExportWriter& writer);
[[nodiscard]] bool WriteJsonLines(const ExportTable& table, ExportWriter& writer);
[[nodiscard]] bool WriteHtml(const ExportTable& table, ExportWriter& writer);
[[nodiscard]] bool WriteMarkdown(const ExportTable& table, ExportWriter& writer);

}  // namespace quillomat
