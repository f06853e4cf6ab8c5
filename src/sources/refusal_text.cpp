#include "sources/refusal_text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillomat {
namespace {

struct Wording {
  Refusal reason;
  std::string_view inColumn;
  std::string_view behindName;
  /// The error says more.
  bool tellsError = false;
};

constexpr auto kWordings = std::to_array<Wording>({
    {Refusal::kNotText, "not text", "does not consist solely of text; convert it to text first"},
    {Refusal::kEmpty, "empty", "is empty; there is nothing to count"},
    {Refusal::kNeverText, "never text by its extension", "is never text by its extension"},
    {Refusal::kIsOutput, "the output file", "is the output file"},
    {Refusal::kIsFolder, "a folder", "is a folder"},
    {Refusal::kNotFound, "not found", "does not exist; check the path"},
    {Refusal::kFolderNotFound, "not found", "does not exist; check the path"},
    {Refusal::kFolderHasNoFiles, "no files", "contains no files"},
    {Refusal::kFolderUnreadable, "folder cannot be read", "cannot be read", true},
    {Refusal::kReadFailed, "reading failed", "cannot be read", true},
});
constexpr Wording kOther = {Refusal::kCannotBeOpened, "cannot be opened", "cannot be read", true};

const Wording& WordingOf(Refusal reason) {
  const auto* const wording = std::ranges::find(kWordings, reason, &Wording::reason);
  return wording == kWordings.end() ? kOther : *wording;
}

std::string WithError(std::string_view text, const Wording& wording,
                      const std::optional<RunTimeError>& error) {
  std::string whole(text);
  if (wording.tellsError && error) whole.append(": ").append(error->Description());
  return whole;
}

}  // namespace

std::string RefusalInColumn(Refusal reason, const std::optional<RunTimeError>& error) {
  const Wording& wording = WordingOf(reason);
  return WithError(wording.inColumn, wording, error);
}

std::string RefusalBehindName(Refusal reason, const std::optional<RunTimeError>& error) {
  const Wording& wording = WordingOf(reason);
  return WithError(wording.behindName, wording, error);
}

std::string RefusalInRun(Refusal reason, const std::optional<RunTimeError>& error) {
  if (reason == Refusal::kReadFailed && error) return error->Description();
  const bool ofFolder = reason == Refusal::kFolderUnreadable;
  return WithError(ofFolder ? "the folder cannot be read" : "the file cannot be opened",
                   WordingOf(reason), error);
}

}  // namespace quillomat
