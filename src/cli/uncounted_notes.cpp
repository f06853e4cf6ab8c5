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
constexpr Wording kBytesNotDecoded{
    "1 byte could not be decoded; --encoding names another encoding.",
    " bytes could not be decoded; --encoding names another encoding."};

constexpr std::string_view kRunsLeftWhole =
    "Chinese, Japanese, Thai, Lao, Khmer and Burmese were not cut into words: the system has no "
    "working ICU library.";

}  // namespace

void TellUncounted(const Uncounted& uncounted, const Messages& messages, std::ostream& err) {
  const auto tell = [&](std::int64_t number, const Wording& wording) {
    if (number == 0) return;
    err << Headed{MessageTone::kWarning, "Note: "};
    if (number == 1) {
      err << wording.one << '\n';
    } else {
      err << messages.Grouped(number) << wording.many << '\n';
    }
  };
  tell(uncounted.foreignLetters, kForeignLetters);
  tell(uncounted.linesNotUtf8, kLinesNotUtf8);
  tell(uncounted.bytesNotDecoded, kBytesNotDecoded);
  if (uncounted.runsLeftWhole) {
    err << Headed{MessageTone::kWarning, "Note: "} << kRunsLeftWhole << '\n';
  }
}

}  // namespace quillomat
