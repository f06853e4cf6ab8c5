// The cells and lines of a listing. Index 0 is the header line.
#include <cmath>
#include <cstdio>

#include "reference/literal_arithmetic.h"
#include "reference/literal_engine.h"

namespace quillomat::reference {
namespace {

std::size_t Width(std::int16_t width) {
  return static_cast<std::size_t>(width);
}

double Log10(double x) {
  return std::log(x) / std::log(10.0);
}

/// Four decimals, and nothing before the decimal point of a value below 1.
Characters FormatLogarithm(double x) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.4f", x);
  const Characters formatted = FromUtf8(text.data());
  return CharacterAt(formatted, 1) == U"0" ? Mid(formatted, 2) : formatted;
}

Characters LogarithmOf(std::int32_t number, bool useLog10) {
  const auto x = static_cast<double>(number);
  return FormatLogarithm(useLog10 ? Log10(x) : std::log(x));
}

}  // namespace

Characters LiteralEngine::RankCell(std::int32_t index) const {
  const Characters text = index == 0 ? U"Rank" : Decimal(WordStore[Index(index)].Rank);
  return RightJustified(text, Width(RankWidth));
}

Characters LiteralEngine::FreqCell(std::int32_t index) const {
  const Characters text = index == 0 ? U"Freq" : Decimal(WordStore[Index(index)].Count);
  return RightJustified(text, Width(FreqWidth));
}

Characters LiteralEngine::FilesCell(std::int32_t index) const {
  if (index == 0) return U"  No. files";
  return RightJustified(Decimal(WordStore[Index(index)].NumFiles), Width(FilesWidth));
}

Characters LiteralEngine::LogRankCell(std::int32_t index, bool useLog10) const {
  Characters text = useLog10 ? U"L10(R)" : U"LN(R)";
  if (index > 0) text = LogarithmOf(WordStore[Index(index)].Rank, useLog10);
  return RightJustified(text, Width(RankWidth));
}

Characters LiteralEngine::LogFreqCell(std::int32_t index, bool useLog10) const {
  Characters text = useLog10 ? U"L10(F)" : U"LN(F)";
  if (index > 0) text = LogarithmOf(WordStore[Index(index)].Count, useLog10);
  return RightJustified(text, Width(FreqWidth));
}

Characters LiteralEngine::WordCell(std::int32_t index) const {
  const Characters text = index == 0 ? U"Word" : WordStore[Index(index)].Word;
  return LeftJustified(text, Width(WordWidth));
}

Characters LiteralEngine::LineText(std::int32_t index) const {
  const bool commas = outputToFile_ && choices.chkOutputWithCommas == 1;
  const Characters line = commas ? CommaLayout(index) : PlainLayout(index);
  return index == 0 ? HeaderLine(line) : line;
}

Characters LiteralEngine::PlainLayout(std::int32_t index) const {
  const bool useLog10 = choices.chkUseLog10 == 1;
  const Characters r = RankCell(index);
  const Characters f = FreqCell(index);
  const Characters w = WordCell(index);
  switch (request_.cboDisplayFormat) {
    case 0:
      return U" " + r + U"  " + f + U"  " + RTrim(w);
    case 1:
      return U" " + r + U"  " + w + U"  " + f;
    case 2:
      return U" " + r + U"  " + f;
    case 3:
      return U" " + r + U"  " + RTrim(w);
    case 4:
      return U" " + f + U"  " + r;
    case 5:
      return U"  " + f + U"  " + RTrim(w);
    case 6:
      return U"  " + w + U" " + r;
    case 7:
      return U"  " + w + U" " + f;
    case 10:
      return U" " + r + U"  " + f + U"  " + LogRankCell(index, useLog10) + U"  " +
             LogFreqCell(index, useLog10) + U"  " + RTrim(w);
    case 11:
      return U"  " + w + U" " + f + U" " + FilesCell(index);
    case 12:
      return Trim(w) + lineBreak_ + FileListText(index, false);
    case 13:
      return Trim(w) + lineBreak_ + FileListText(index, true);
    default:
      return Trim(w);  // 8 and 9
  }
}

Characters LiteralEngine::CommaLayout(std::int32_t index) const {
  const bool useLog10 = choices.chkUseLog10 == 1;
  const Characters r = RankCell(index);
  const Characters f = FreqCell(index);
  const Characters w = WordCell(index);
  switch (request_.cboDisplayFormat) {
    case 0:
      return U"  " + r + U",  " + f + U",  " + RTrim(w);
    case 1:
      return U"  " + r + U",  " + w + U",  " + f;
    case 2:
      return U"  " + r + U",  " + f;
    case 3:
      return U"  " + r + U",  " + RTrim(w);
    case 4:
      return U"  " + f + U",  " + r;
    case 5:
      return U"  " + f + U",  " + RTrim(w);
    case 6:
      return U"  " + w + U", " + r;
    case 7:
      return U"  " + w + U", " + f;
    case 10:
      return U"  " + r + U",  " + f + U",  " + LogRankCell(index, useLog10) + U",  " +
             LogFreqCell(index, useLog10) + U",  " + RTrim(w);
    default:
      return PlainLayout(index);  // no form of their own
  }
}

Characters LiteralEngine::HeaderLine(const Characters& header) const {
  switch (request_.cboDisplayFormat) {
    case 0:
    case 3:
    case 5:
    case 8:
      return RTrim(header) + U" (longest has " + Decimal(MaxWordLength) + U" characters)";
    case 12:
    case 13:
      if (!FolderIsAbbreviated()) return U"";
      return lineBreak_ + U"{Folder} = " + FromUtf8(choices.txbFolder) + lineBreak_;
    default:
      return header;
  }
}

bool LiteralEngine::FolderIsAbbreviated() const {
  constexpr std::size_t kLongestWritten = 13;
  return FromUtf8(choices.txbFolder).size() > kLongestWritten;
}

Characters LiteralEngine::FileListText(std::int32_t index, bool withFreq) const {
  const WordRec& entry = WordStore[Index(index)];
  const std::size_t folderLength = FromUtf8(choices.txbFolder).size();
  Characters text;
  for (std::int32_t k = 1; k <= entry.NumFiles; ++k) {
    const std::size_t start = Index(k - 1) * kFileDigits + 1;
    const std::int32_t number = NumericValue(Mid(entry.FileNumbers, start, kFileDigits));
    const std::int32_t frequency = NumericValue(Mid(entry.FileCounts, start, kFileDigits));
    const Characters& path = FileList[Index(number)];
    text += withFreq ? RightJustified(Decimal(frequency), kFileDigits) + U" " : U"    ";
    if (FolderIsAbbreviated()) {
      text += U"{Folder}" + Mid(path, folderLength + 1);
    } else {
      text += path;
    }
    text += lineBreak_;
  }
  return text;
}

}  // namespace quillomat::reference
