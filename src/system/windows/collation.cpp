#include "system/collation.h"

#include <array>
#include <string>
#include <windows.h>

#include "system/windows/wide_text.h"

namespace quillomat {
namespace {

/// Its size in bytes, the zero byte at its end counted; 0 for none.
int SortKey(const std::wstring& word, char* key, int bytes) {
  // The system's function gives bytes where the others give characters.
  return LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_SORTKEY, word.c_str(),
                       static_cast<int>(word.size()), reinterpret_cast<wchar_t*>(key), bytes,
                       nullptr, nullptr, 0);
}

}  // namespace

/// The system knows the user's language by itself.
struct Collation::Order {};

Collation::Collation() : order_(std::make_unique<Order>()) {}
Collation::Collation(Collation&&) noexcept = default;
Collation& Collation::operator=(Collation&&) noexcept = default;
Collation::~Collation() = default;

bool Collation::IsKnown() const {
  return order_ != nullptr;
}

void Collation::AppendKey(std::string& keys, std::string_view word) const {
  const std::wstring wide = ToWide(word);
  std::array<char, 1024> key{};
  const int bytes = SortKey(wide, key.data(), static_cast<int>(key.size()));
  if (bytes > 0) {
    keys.append(key.data(), static_cast<std::size_t>(bytes) - 1);
    return;
  }
  const int needed = SortKey(wide, nullptr, 0);
  std::string longKey(static_cast<std::size_t>(needed), '\0');
  if (needed == 0 || SortKey(wide, longKey.data(), needed) == 0) {
    keys.append(word);
  } else {
    keys.append(longKey, 0, longKey.size() - 1);
  }
}

}  // namespace quillomat
