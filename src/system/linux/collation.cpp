#include "system/collation.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <langinfo.h>
#include <string_view>
#include <utility>

#include "system/linux/locale_handle.h"

namespace quillomat {
namespace {

constexpr std::size_t kUsualKeyBytes = 1024;
constexpr int kCategories = LC_COLLATE_MASK | LC_CTYPE_MASK;

/// "a" comes before "B" in every language, and after it where the code points decide.
bool GoesByCodePoints(locale_t locale) {
  return strcoll_l("a", "B", locale) > 0;
}

/// The words are in UTF-8, so the order of a locale with other characters is of no use.
bool IsUseful(const Locale& locale) {
  return locale && std::string_view(nl_langinfo_l(CODESET, locale.get())) == "UTF-8" &&
         !GoesByCodePoints(locale.get());
}

}  // namespace

struct Collation::Order {
  Locale locale;
};

Collation::Collation() {
  Locale locale(newlocale(kCategories, "", nullptr));
  if (IsUseful(locale)) order_ = std::make_unique<Order>(Order{std::move(locale)});
}

Collation::Collation(Collation&&) noexcept = default;
Collation& Collation::operator=(Collation&&) noexcept = default;
Collation::~Collation() = default;

bool Collation::IsKnown() const {
  return order_ != nullptr;
}

void Collation::AppendKey(std::string& keys, std::string_view word) const {
  if (order_ == nullptr) {
    keys.append(word);
    return;
  }
  const locale_t locale = order_->locale.get();
  const std::string ended(word);         // with a zero byte, as the C library wants it
  std::array<char, kUsualKeyBytes> key;  // NOLINT(cppcoreguidelines-pro-type-member-init): speed
  const std::size_t bytes = strxfrm_l(key.data(), ended.c_str(), key.size(), locale);
  if (bytes < key.size()) {
    keys.append(key.data(), bytes);
    return;
  }
  std::string longKey(bytes + 1, '\0');
  strxfrm_l(longKey.data(), ended.c_str(), longKey.size(), locale);
  keys.append(longKey, 0, bytes);
}

}  // namespace quillomat
