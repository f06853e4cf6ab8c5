#include <array>
#include <cstdint>
#include <memory>
#include <new>
#include <pcre2.h>
#include <string>
#include <string_view>
#include <utility>

#include "qt/text_conversion.h"
#include "qt/word_expression.h"

namespace quillomat {
namespace {

/// As the toolkit asks for it: letters of any language, in any case.
constexpr std::uint32_t kOptions = PCRE2_UTF | PCRE2_UCP | PCRE2_CASELESS;

struct Closer {
  void operator()(pcre2_code* code) const { pcre2_code_free(code); }
  void operator()(pcre2_match_data* found) const { pcre2_match_data_free(found); }
};
using Code = std::shared_ptr<pcre2_code>;

PCRE2_SPTR BytesOf(std::string_view text) {
  return reinterpret_cast<PCRE2_SPTR>(text.data());
}

/// The compiled expression, which all threads share, and what one of them needs to look with.
class Look {
 public:
  explicit Look(Code code) : code_(std::move(code)), found_(MadeFor(*code_)) {}
  Look(const Look& other) : Look(other.code_) {}
  Look& operator=(const Look&) = delete;
  Look(Look&&) noexcept = default;
  Look& operator=(Look&&) = delete;
  ~Look() = default;

  /// What goes on for too long is no match, as for the toolkit.
  bool operator()(std::string_view text) {
    const int matched =
        pcre2_match(code_.get(), BytesOf(text), text.size(), 0, 0, found_.get(), nullptr);
    return matched >= 0;
  }

 private:
  using Found = std::unique_ptr<pcre2_match_data, Closer>;

  static Found MadeFor(const pcre2_code& code) {
    Found found(pcre2_match_data_create_from_pattern(&code, nullptr));
    if (!found) throw std::bad_alloc();
    return found;
  }

  Code code_;
  Found found_;
};

std::string DescriptionOf(int error) {
  std::array<PCRE2_UCHAR, 256> text{};
  pcre2_get_error_message(error, text.data(), text.size());
  return reinterpret_cast<const char*>(text.data());
}

}  // namespace

std::variant<Matcher, ExpressionFault> MatcherOf(const QRegularExpression& expression) {
  const std::string pattern = FromQt(expression.pattern());
  int error = 0;
  PCRE2_SIZE place = 0;
  const Code code(
      pcre2_compile(BytesOf(pattern), pattern.size(), kOptions, &error, &place, nullptr), Closer());
  if (!code) return ExpressionFault{DescriptionOf(error)};
  // Where no code can be made of it, it is followed step by step.
  pcre2_jit_compile(code.get(), PCRE2_JIT_COMPLETE);
  return Look(code);
}

}  // namespace quillomat
