#include "sources/source_check.h"

#include <functional>
#include <utility>
#include <variant>

#include "sources/folder_walk.h"
#include "sources/output_rules.h"
#include "sources/text_test.h"
#include "system/file_system.h"
#include "system/paths.h"

namespace quillomat {
namespace {

class SourceCheck {
 public:
  SourceCheck(const std::string& outputPath, std::function<bool()> stops)
      : outputPath_(outputPath), stops_(std::move(stops)) {}

  Refusal operator()(const TextOfClipboard& source) const {
    if (source.text.empty()) return Refusal::kEmpty;
    return IsText(source.text, kClipboardTestLength) ? Refusal::kNone : Refusal::kNotText;
  }
  Refusal operator()(const TextOfFile& source) const {
    if (source.path.empty()) return Refusal::kNothingNamed;
    if (IsPathSeparator(source.path.back()) || FolderExists(source.path)) return Refusal::kIsFolder;
    const bool isOutput = IsNeeded({CountedText::Source::kFile, source.path});
    return isOutput ? Refusal::kIsOutput : Refusal::kNone;
  }
  Refusal operator()(const TextOfStream& source) const {
    return source.bytes == nullptr ? Refusal::kNothingNamed : Refusal::kNone;
  }
  Refusal operator()(const TextOfFolder& source) const {
    if (FindExtensionFault(source.extensions)) return Refusal::kBadExtensions;
    if (source.path.empty()) return Refusal::kNothingNamed;
    if (!FolderExists(source.path)) return Refusal::kFolderNotFound;
    if (!FolderHasFiles(source.path, "*.*", source.subfolders, stops_)) {
      return Refusal::kFolderHasNoFiles;
    }
    return OutputIn(source);
  }
  Refusal operator()(const TextOfPaths& source) const {
    if (FindExtensionFault(source.extensions)) return Refusal::kBadExtensions;
    return source.paths.empty() ? Refusal::kNothingNamed : OutputIn(source);
  }

  [[nodiscard]] Refusal OutputIn(const TextOfFolder& source) const {
    return IsNeeded({CountedText::Source::kFolder, source.path, source.subfolders})
               ? Refusal::kOutputInFolder
               : Refusal::kNone;
  }
  [[nodiscard]] Refusal OutputIn(const TextOfPaths& source) const {
    if (outputPath_.empty()) return Refusal::kNone;
    const auto neededAs = WhyNotToWrite(outputPath_, {.source = CountedText::Source::kPaths,
                                                      .withSubfolders = source.subfolders,
                                                      .paths = source.paths});
    if (!neededAs) return Refusal::kNone;
    return *neededAs == NeededAs::kPartOfFolder ? Refusal::kOutputInFolder : Refusal::kIsOutput;
  }
  template <typename Source>
  [[nodiscard]] Refusal OutputIn(const Source& /*single*/) const {
    return Refusal::kNone;
  }

 private:
  [[nodiscard]] bool IsNeeded(const CountedText& text) const {
    return !outputPath_.empty() && WhyNotToWrite(outputPath_, text).has_value();
  }

  const std::string& outputPath_;
  /// Whether to look on for files.
  std::function<bool()> stops_;
};

}  // namespace

Refusal FaultOf(const CountSource& source, const std::string& outputPath, ScanYield& yield) {
  return std::visit(SourceCheck(outputPath, [&yield] { return yield.Yield(); }), source);
}

Refusal OutputFaultOf(const CountSource& source, const std::string& outputPath) {
  const SourceCheck check(outputPath, {});
  return std::visit([&check](const auto& text) { return check.OutputIn(text); }, source);
}

}  // namespace quillomat
