#include "system/system_decoder.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <iconv.h>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "base/character_decoder.h"
#include "base/run_time_error.h"

namespace quillomat {
namespace {

struct ConverterCloser {
  void operator()(iconv_t converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, ConverterCloser>;

/// What the C library calls the set, and one that has what texts in it have besides. Where a name
/// stands for a smaller set than its texts have, that of the larger one, which holds the smaller.
std::vector<std::string> LibraryNamesOf(CharacterSet set) {
  switch (set) {
    case CharacterSet::kShiftJis:
      return {"CP932"};
    case CharacterSet::kEucJp:
      return {"EUC-JP", "EUC-JP-MS"};
    case CharacterSet::kBig5:
      return {"BIG5", "BIG5-HKSCS"};
    case CharacterSet::kEucKr:
      return {"UHC"};
    case CharacterSet::kMacRoman:
      return {"MACINTOSH"};
    case CharacterSet::kMacCyrillic:
      return {"MAC-CYRILLIC"};
    case CharacterSet::kIso8859Part11:
      return {"CP874"};
    default:
      return {std::string(NameOf(set))};
  }
}

/// Nothing where the C library knows no such set.
Converter OpenConverter(const std::string& libraryName) {
  iconv_t converter = iconv_open("UTF-8", libraryName.c_str());
  // The C library's own way to say that there is none.
  if (converter == reinterpret_cast<iconv_t>(-1)) {  // NOLINT(*-reinterpret-cast,*-no-int-to-ptr)
    return nullptr;
  }
  return Converter(converter);
}

/// The first for what it knows, the others for the rest.
std::vector<Converter> OpenConverters(CharacterSet set) {
  std::vector<Converter> converters;
  for (const std::string& name : LibraryNamesOf(set)) {
    if (Converter converter = OpenConverter(name)) converters.push_back(std::move(converter));
  }
  return converters;
}

constexpr auto kFailed = static_cast<std::size_t>(-1);

/// U+E000 to U+F8FF, where a converter puts characters that it knows no better place for.
bool IsPrivate(std::string_view character) {
  return character >= "\xEE\x80\x80" && character <= "\xEF\xA3\xBF";
}

/// Converts one character at a time, and nothing that is not whole.
class IconvCharacters final : public EncodedCharacters {
 public:
  explicit IconvCharacters(std::vector<Converter> converters)
      : converters_(std::move(converters)) {}

  std::string TextOf(std::string_view bytes) override {
    std::string privateText;
    for (const Converter& converter : converters_) {
      std::string text = Converted(converter.get(), bytes);
      if (text.empty()) continue;
      if (!IsPrivate(text)) return text;
      privateText = std::move(text);
    }
    return privateText;
  }

 private:
  /// Nothing where `bytes` are no character.
  static std::string Converted(iconv_t converter, std::string_view bytes) {
    std::array<char, 16> output{};
    std::string input(bytes);
    char* next = input.data();
    std::size_t left = input.size();
    char* end = output.data();
    std::size_t room = output.size();
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    if (iconv(converter, &next, &left, &end, &room) == kFailed || left > 0) return {};
    // What it holds back until it sees the next character.
    if (iconv(converter, nullptr, nullptr, &end, &room) == kFailed) return {};
    return {output.data(), end};
  }

  std::vector<Converter> converters_;
};

/// Of a set of single bytes in which marks stand behind their letters: the C library joins both.
class JoiningDecoder final : public TextDecoder {
 public:
  explicit JoiningDecoder(Converter converter) : converter_(std::move(converter)) {}

  void Decode(std::string_view bytes, std::string& text) override {
    std::string input(bytes);
    char* next = input.data();
    std::size_t left = input.size();
    while (Convert(&next, &left, text) == EILSEQ && left > 0) {
      Convert(nullptr, nullptr, text);  // what it holds back until it sees the next character
      Replace(1, text);
      ++next;
      --left;
    }
  }

  void End(std::string& text) override { Convert(nullptr, nullptr, text); }

 private:
  /// Converts until the input ends (0), or a byte is met that is no character (EILSEQ).
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

  Converter converter_;
};

bool HasMarksBehindLetters(CharacterSet set) {
  return set == CharacterSet::kWindows1255 || set == CharacterSet::kWindows1258;
}

}  // namespace

std::unique_ptr<TextDecoder> MakeTextDecoder(CharacterSet set) {
  if (auto decoder = MakeUnicodeDecoder(set)) return decoder;
  std::vector<Converter> converters = OpenConverters(set);
  if (converters.empty()) {
    throw RunTimeError(RunTimeErrorNumber::kInvalidPropertyValue,
                       "this system cannot decode " + std::string(NameOf(set)));
  }
  if (HasMarksBehindLetters(set)) {
    return std::make_unique<JoiningDecoder>(std::move(converters.front()));
  }
  return std::make_unique<CharacterDecoder>(
      set, std::make_unique<IconvCharacters>(std::move(converters)));
}

bool CanDecode(CharacterSet set) {
  return MakeUnicodeDecoder(set) || !OpenConverters(set).empty();
}

}  // namespace quillomat
