#include "app/count/input_file_row.h"

#include <array>
#include <charconv>

#include "base/text_helpers.h"

namespace quillomat {
namespace {

/// `amount` with two decimals behind a dot.
std::string TwoDecimals(double amount) {
  std::array<char, 40> text{};
  char* const end =
      std::to_chars(text.data(), text.data() + text.size(), amount, std::chars_format::fixed, 2)
          .ptr;
  return {text.data(), end};
}

}  // namespace

std::string FileSizeText(std::int64_t bytes, const NumberSigns& signs) {
  constexpr std::int64_t kFirstInKilobytes = 10'000;
  constexpr std::int64_t kKilobyte = 1024;
  constexpr std::int64_t kMegabyte = kKilobyte * kKilobyte;
  if (bytes < kFirstInKilobytes) return "Filesize: " + GroupDigits(bytes, signs.group) + " bytes";
  const bool kilobytes = bytes < kMegabyte;
  const double amount =
      static_cast<double>(bytes) / static_cast<double>(kilobytes ? kKilobyte : kMegabyte);
  return "Filesize: " + ReplaceAll(TwoDecimals(amount), ".", signs.decimal) +
         (kilobytes ? " KB" : " MB");
}

ScanFileResult InputFileRow::CheckInputFile(const std::string& path) {
  const InputFileCheck check = CheckInputPath(path);
  const bool isFolder = check.result == ScanFileResult::kFolderNotFile;
  if (isFolder && flags_.blnStartUpCompleted) frmMain_.txbFile[0].SetText("");
  ShowFileSize(check.bytes);
  return check.result;
}

void InputFileRow::ShowFileSize(std::optional<std::int64_t> bytes) {
  frmMain_.lblFilesize.SetCaption(bytes ? FileSizeText(*bytes, messages_.Signs()) : "");
}

}  // namespace quillomat
