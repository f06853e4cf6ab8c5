#include <memory>
#include <pcre2.h>
#include <string>
#include <string_view>

#include "base/run_time_error.h"
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

/// The compiled expression, which all threads share, and what one of them needs to look with.
class Look {
 public:
  explicit Look(const std::string& expression)
      : code_(Compiled(expression)), found_(MadeFor(code_.get())) {}
  Look(const Look& other) : code_(other.code_), found_(MadeFor(code_.get())) {}
  Look& operator=(const Look&) = delete;
  Look(Look&&) noexcept = default;
  Look& operator=(Look&&) = delete;
  ~Look() = default;

  /// What goes on for too long is no match, as for the toolkit.
  bool operator()(std::string_view text) {
    const auto* const bytes = reinterpret_cast<PCRE2_SPTR>(text.data());
    return pcre2_match(code_.get(), bytes, text.size(), 0, 0, found_.get(), nullptr) >= 0;
  }

 private:
  using Code = std::shared_ptr<pcre2_code>;
  using Found = std::unique_ptr<pcre2_match_data, Closer>;

  static Code Compiled(const std::string& expression) {
    int error = 0;
    PCRE2_SIZE place = 0;
    const auto* const bytes = reinterpret_cast<PCRE2_SPTR>(expression.data());
    Code code(pcre2_compile(bytes, expression.size(), kOptions, &error, &place, nullptr), Closer());
    if (!code) throw RunTimeError(RunTimeErrorNumber::kOutOfMemory);
    // Where no code can be made of it, it is followed step by step.
    pcre2_jit_compile(code.get(), PCRE2_JIT_COMPLETE);
    return code;
  }

  static Found MadeFor(const pcre2_code* code) {
    Found found(pcre2_match_data_create_from_pattern(code, nullptr));
    if (!found) throw RunTimeError(RunTimeErrorNumber::kOutOfMemory);
    return found;
  }

  Code code_;
  Found found_;
};

}  // namespace

Matcher MatcherOf(const QRegularExpression& expression) {
  return Look(FromQt(expression.pattern()));
}

}  // namespace quillomat
