#include "cli/uncounted_notes.h"

#include <cstdint>
#include <string_view>

#include "cli/standard_output.h"

namespace quillomat {
namespace {

struct Wording {
  std::string_view one;
  /// Behind their number.
  std::string_view many;
};

constexpr Wording kForeignLetters{
    "1 letter of another alphabet was not counted; --letters all counts it.",
    " letters of other alphabets were not counted; --letters all counts them."};
constexpr Wording kLinesNotUtf8{
    "1 line was not UTF-8 and was read as Windows-1252; --encoding names another encoding.",
    " lines were not UTF-8 and were read as Windows-1252; --encoding names another encoding."};
constexpr Wording kBytesNotDecoded{"1 byte could not be decoded", " bytes could not be decoded"};

constexpr std::string_view kRunsLeftWhole =
    "Chinese, Japanese, Thai, Lao, Khmer and Burmese were not cut into words: the system has no "
    "working ICU library.";

/// Without the end of the line; false for none.
bool TellNumber(std::int64_t number, const Wording& wording, const Messages& messages,
                std::ostream& err) {
  if (number == 0) return false;
  err << Headed{MessageTone::kWarning, "Note: "};
  if (number == 1) {
    err << wording.one;
  } else {
    err << messages.Grouped(number) << wording.many;
  }
  return true;
}

/// Of several files the report tells how many bytes each has.
void TellBytesNotDecoded(std::int64_t bytes, std::string_view first, const Messages& messages,
                         std::ostream& err) {
  if (!TellNumber(bytes, kBytesNotDecoded, messages, err)) return;
  if (!first.empty()) {
    err << (bytes == 1 ? ": in " : ", the first of them in ") << first
        << (bytes == 1 ? "" : " (--report tells of all files)");
  }
  err << "; --encoding names another encoding.\n";
}

}  // namespace

void TellUncounted(const Uncounted& uncounted, const Messages& messages, std::ostream& err,
                   std::string_view firstNotDecoded) {
  const auto tell = [&](std::int64_t number, const Wording& wording) {
    if (TellNumber(number, wording, messages, err)) err << '\n';
  };
  // The encoding first: in a wrong one letters are others than were written.
  tell(uncounted.linesNotUtf8, kLinesNotUtf8);
  TellBytesNotDecoded(uncounted.bytesNotDecoded, firstNotDecoded, messages, err);
  tell(uncounted.foreignLetters, kForeignLetters);
  if (uncounted.runsLeftWhole) {
    err << Headed{MessageTone::kWarning, "Note: "} << kRunsLeftWhole << '\n';
  }
}

void TellGuessed(std::string_view names, std::ostream& err) {
  if (names.empty()) return;
  err << Headed{MessageTone::kWarning, "Note: "} << "read as " << names
      << ", as guessed; --encoding names another encoding.\n";
}

}  // namespace quillomat
