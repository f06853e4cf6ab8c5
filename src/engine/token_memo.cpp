#include "engine/token_memo.h"

#include <algorithm>
#include <bit>

namespace quillomat {

static_assert(std::endian::native == std::endian::little,
              "a token's bytes are cut out of numbers, lowest first");

TokenMemo::Key TokenMemo::BytesAtEnd(std::string_view token) {
  std::array<char, kMostBytes> bytes{};
  std::ranges::copy(token, bytes.begin());
  Key key{};
  key.low = LoadNumber<std::uint64_t>(bytes.data());
  key.high = LoadNumber<std::uint32_t>(bytes.data() + sizeof key.low);
  return key;
}

void TokenMemo::Remember(const Key& key, TokenOutcome outcome) {
  Entry entry;
  entry.low = key.low;
  entry.high = key.high;
  const HashSeed& seed = table_.Seed();
  table_.Remember(entry, outcome, [&seed](const Entry& placed) {
    return FoldedProduct(placed.low ^ seed.first, placed.high ^ seed.second);
  });
}

}  // namespace quillomat
