#include "base/character_set.h"

#include <algorithm>
#include <string>

namespace quillomat {
namespace {

struct Alias {
  std::string_view name;
  CharacterSet set;
};

// As Plain makes them. "cp125x", "win125x" and "8859x" are seen to by rule.
constexpr auto kAliases = std::to_array<Alias>({
    {"latin1", CharacterSet::kIso8859Part1},
    {"latin2", CharacterSet::kIso8859Part2},
    {"latin3", CharacterSet::kIso8859Part3},
    {"latin4", CharacterSet::kIso8859Part4},
    {"latin5", CharacterSet::kIso8859Part9},
    {"latin6", CharacterSet::kIso8859Part10},
    {"latin7", CharacterSet::kIso8859Part13},
    {"latin8", CharacterSet::kIso8859Part14},
    {"latin9", CharacterSet::kIso8859Part15},
    {"latin10", CharacterSet::kIso8859Part16},
    {"tis620", CharacterSet::kIso8859Part11},
    {"cp874", CharacterSet::kIso8859Part11},
    {"windows874", CharacterSet::kIso8859Part11},
    {"sjis", CharacterSet::kShiftJis},
    {"cp932", CharacterSet::kShiftJis},
    {"windows31j", CharacterSet::kShiftJis},
    {"ujis", CharacterSet::kEucJp},
    {"gbk", CharacterSet::kGb18030},
    {"gb2312", CharacterSet::kGb18030},
    {"cp936", CharacterSet::kGb18030},
    {"cp950", CharacterSet::kBig5},
    {"bigfive", CharacterSet::kBig5},
    {"cp949", CharacterSet::kEucKr},
    {"uhc", CharacterSet::kEucKr},
    {"macintosh", CharacterSet::kMacRoman},
    {"cp437", CharacterSet::kIbm437},
    {"cp850", CharacterSet::kIbm850},
    {"cp852", CharacterSet::kIbm852},
    {"cp855", CharacterSet::kIbm855},
    {"cp866", CharacterSet::kIbm866},
});

/// Letters and digits alone, without letter case.
std::string Plain(std::string_view name) {
  std::string plain;
  for (const char ch : name) {
    if (ch == '-' || ch == '_' || ch == ' ') continue;
    plain.push_back(ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch);
  }
  return plain;
}

/// "cp1252" as "windows1252", "88591" as "iso88591".
std::string Spelled(std::string_view plain) {
  for (const std::string_view start : {"cp125", "win125"}) {
    if (plain.starts_with(start)) {
      return "windows" + std::string(plain.substr(start.size() - 3));
    }
  }
  return (plain.starts_with("8859") ? "iso" : "") + std::string(plain);
}

}  // namespace

std::optional<CharacterSet> FindCharacterSet(std::string_view name) {
  const std::string spelled = Spelled(Plain(name));
  const auto alias = std::ranges::find(kAliases, spelled, &Alias::name);
  if (alias != kAliases.end()) return alias->set;
  const auto named = std::ranges::find(kCharacterSetNames, spelled, Plain);
  if (named == kCharacterSetNames.end()) return std::nullopt;
  return static_cast<CharacterSet>(named - kCharacterSetNames.begin());
}

}  // namespace quillomat
