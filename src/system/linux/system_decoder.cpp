#include "system/system_decoder.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <iconv.h>
#include <string>
#include <type_traits>
#include <utility>

#include "base/run_time_error.h"

namespace quillomat {
namespace {

struct ConverterCloser {
  void operator()(iconv_t converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, ConverterCloser>;

/// What the C library calls the sets. Where a name stands for a smaller set than its texts have,
/// that of the larger one, which holds the smaller.
std::string LibraryNameOf(CharacterSet set) {
  switch (set) {
    case CharacterSet::kShiftJis:
      return "CP932";
    case CharacterSet::kEucKr:
      return "UHC";
    case CharacterSet::kMacRoman:
      return "MACINTOSH";
    case CharacterSet::kMacCyrillic:
      return "MAC-CYRILLIC";
    case CharacterSet::kIso8859Part11:
      return "CP874";
    default:
      return std::string(NameOf(set));
  }
}

/// Nothing where the C library knows no such set.
Converter OpenConverter(CharacterSet set) {
  iconv_t converter = iconv_open("UTF-8", LibraryNameOf(set).c_str());
  // The C library's own way to say that there is none.
  if (converter == reinterpret_cast<iconv_t>(-1)) {  // NOLINT(*-reinterpret-cast,*-no-int-to-ptr)
    return nullptr;
  }
  return Converter(converter);
}

class IconvDecoder final : public TextDecoder {
 public:
  explicit IconvDecoder(Converter converter) : converter_(std::move(converter)) {}

  void Decode(std::string_view bytes, std::string& text) override {
    input_.append(bytes);
    char* next = input_.data();
    std::size_t left = input_.size();
    while (Convert(&next, &left, text) == EILSEQ) {
      Convert(nullptr, nullptr, text);  // what it holds back until it sees the next character
      Replace(1, text);
      ++next;
      --left;
    }
    input_.erase(0, input_.size() - left);
  }

  void End(std::string& text) override {
    Convert(nullptr, nullptr, text);
    if (!input_.empty()) Replace(input_.size(), text);
    input_.clear();
  }

 private:
  /// Converts until the input ends (0), or with an unfinished character (EINVAL), or a byte is met
  /// that begins none (EILSEQ).
  int Convert(char** next, std::size_t* left, std::string& text) {
    std::array<char, 4096> output;  // NOLINT(cppcoreguidelines-pro-type-member-init): speed
    for (;;) {
      char* end = output.data();
      std::size_t room = output.size();
      const bool failed = iconv(converter_.get(), next, left, &end, &room) == kFailed;
      const int error = failed ? errno : 0;
      text.append(output.data(), output.size() - room);
      if (error != E2BIG) return error;
    }
  }

  static constexpr auto kFailed = static_cast<std::size_t>(-1);

  Converter converter_;
  /// Of an unfinished character.
  std::string input_;
};

}  // namespace

std::unique_ptr<TextDecoder> MakeTextDecoder(CharacterSet set) {
  if (auto decoder = MakeUnicodeDecoder(set)) return decoder;
  Converter converter = OpenConverter(set);
  if (!converter) {
    throw RunTimeError(RunTimeErrorNumber::kInvalidPropertyValue,
                       "this system cannot decode " + std::string(NameOf(set)));
  }
  return std::make_unique<IconvDecoder>(std::move(converter));
}

bool CanDecode(CharacterSet set) {
  return MakeUnicodeDecoder(set) || OpenConverter(set);
}

}  // namespace quillomat
