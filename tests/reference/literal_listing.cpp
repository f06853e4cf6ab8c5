// Ranks, the two walks, and where their lines go.
#include "reference/literal_arithmetic.h"
#include "reference/literal_engine.h"

namespace quillomat::reference {
namespace {

constexpr int kFormatWordCommas = 9;
constexpr int kFormatNumFiles = 11;
constexpr int kFormatFileList = 12;
constexpr int kFormatFileListFreq = 13;
constexpr std::size_t kPreviewLength = 2048;

}  // namespace

void LiteralEngine::RankByFrequency() {
  for (std::int32_t i = 1; i <= NumDifferentWords; ++i) {
    WordStore[Index(i)].Rank = 0;
    WordStore[Index(i)].NextByFrequency = 0;
  }
  ChainHead = 0;
  std::int32_t n = 0;
  for (std::int32_t f = MaxCount; f >= 1; --f) {
    for (std::int32_t i = 1; i <= NumDifferentWords; ++i) {
      WordRec& entry = WordStore[Index(i)];
      if (!entry.Included || entry.Count != f) continue;
      n += 1;
      entry.Rank = n;
      if (n == 1) ChainHead = i;
    }
    if (f % 100 == 0) {
      txbOutput += U". ";
      OutputToTxb(U". ");
    }
  }
  if (ChainHead != 0) LinkFrequencyChain();
}

void LiteralEngine::LinkFrequencyChain() {
  std::int32_t prev = ChainHead;
  for (std::int32_t k = 1; k <= NumIncludedWords; ++k) {
    for (std::int32_t i = 1; i <= NumDifferentWords; ++i) {
      if (WordStore[Index(i)].Rank != k + 1) continue;
      WordStore[Index(prev)].NextByFrequency = i;
      prev = i;
      break;
    }
  }
}

std::string LiteralEngine::CheckDisplayFormat(int format) const {
  if (format < kFormatNumFiles) return "";
  const bool countOnlyWords = CountOnlyList.count >= 1 || ExtraCountOnlyList.count >= 1;
  if (choices.optFolder && countOnlyWords) return "";
  std::string name = "word freq no.files";
  if (format == kFormatFileList) name = "word file-list";
  if (format == kFormatFileListFreq) name = "word file-list (+ freq)";
  return "The display format '" + name +
         "' is available\r\nonly when the source of the text is a folder\r\n"
         "and there are count-only words specified.";
}

TextboxListing LiteralEngine::ListToTextbox(const ListingRequest& request) {
  request_ = request;
  outputToFile_ = false;
  Walk();
  return {ToUtf8(txbOutput), ToUtf8(header_), ToUtf8(preview_), TextboxFull};
}

std::string LiteralEngine::ListToFile(const ListingRequest& request, std::string_view lineBreak) {
  request_ = request;
  outputToFile_ = true;
  lineBreak_ = FromUtf8(lineBreak);
  outputFile_.clear();
  Walk();
  outputToFile_ = false;
  lineBreak_ = U"\r\n";
  return ToUtf8(outputFile_);
}

std::string LiteralEngine::ListWords(const ListingRequest& request) {
  if (NumIncludedWords == 0) {
    ClearOutput();
    OutputToTxb(NoWordsMessage());
  } else {
    ListToTextbox(request);
  }
  if (txbOutput.size() >= 3 && request.cboDisplayFormat == kFormatWordCommas &&
      Right(txbOutput, 2) == U", ") {
    txbOutput.resize(txbOutput.size() - 2);
  }
  return ToUtf8(txbOutput);
}

void LiteralEngine::Walk() {
  ClearOutput();
  accumulator_.clear();
  preview_.clear();
  previewShown_ = false;
  if (choices.optFolder) WriteScanHeader();
  ComputeColumnWidths();
  txbOutput = accumulator_;
  header_ = txbOutput;
  if (request_.cboWordOrder == 1) {
    ListAlphabetical();
  } else {
    ListByFrequency();
  }
  txbOutput = accumulator_;
}

void LiteralEngine::ListAlphabetical() {
  for (std::int32_t i = 1; i <= NumDifferentWords; ++i) {
    if (!WordStore[Index(i)].Included) continue;
    FormatWordLine(i);
    Yield();
    if (StopRequested) return;
  }
}

void LiteralEngine::ListByFrequency() {
  std::int32_t current = ChainHead;
  for (std::int32_t k = 1; k <= NumIncludedWords; ++k) {
    FormatWordLine(current);
    current = WordStore[Index(current)].NextByFrequency;
    Yield();
    if (StopRequested) return;
  }
}

/// The first line of a folder's list. It goes into the accumulator, so no output file ever has it.
void LiteralEngine::WriteScanHeader() {
  const std::int32_t files = request_.numFiles;
  const std::int32_t folders = request_.numFolders;
  accumulator_ += Grouped(files) + U" file";
  if (files > 1) accumulator_ += U"s";
  accumulator_ += U" (in " + Grouped(folders) + U" folder";
  if (folders > 1) accumulator_ += U"s";
  accumulator_ += files == 1 ? U") was" : U") were";
  accumulator_ += U" scanned.\r\n";
}

void LiteralEngine::ComputeColumnWidths() {
  RankWidth = As16(Decimal(NumIncludedWords).size());
  FreqWidth = As16(Decimal(MaxCount).size());
  WordWidth = MaxWordLength;
  for (std::int16_t* width : {&RankWidth, &FreqWidth, &WordWidth}) {
    if (*width < MinColumnWidth) *width = MinColumnWidth;
  }
  FilesWidth = 4;
  FormatWordLine(0);
}

void LiteralEngine::FormatWordLine(std::int32_t index) {
  if (index == 0 && request_.cboDisplayFormat == kFormatWordCommas) return;
  const Characters line = LineText(index);
  if (outputToFile_) {
    EmitToFile(index, line);
  } else {
    EmitToTextbox(index, line);
  }
}

void LiteralEngine::EmitToTextbox(std::int32_t index, const Characters& line) {
  constexpr std::array<int, 4> kTwirler = {220, 221, 223, 222};
  if (accumulator_.size() < OutputLengthLimit) {
    if (request_.cboDisplayFormat == kFormatWordCommas) {
      accumulator_ += Trim(line) + U", ";
    } else {
      accumulator_ += line + lineBreak_;
    }
    TextboxFull = accumulator_.size() > OutputLengthLimit;
  }
  if (!previewShown_ && accumulator_.size() > kPreviewLength) {
    txbOutput = accumulator_;
    preview_ = txbOutput;
    previewShown_ = true;
  }
  lblTwirler = kTwirler[Index(index % 4)];
}

void LiteralEngine::EmitToFile(std::int32_t index, const Characters& line) {
  if (request_.cboDisplayFormat == kFormatWordCommas) {
    outputFile_ += Trim(line);
    if (index < NumDifferentWords) outputFile_ += U", ";
  } else {
    outputFile_ += line + lineBreak_;
  }
}

Characters LiteralEngine::NoWordsMessage() const {
  if (NumDifferentWords == 0) return U"No words satisfying the conditions were found.";
  const std::int32_t s = choices.cboShortWordSize;
  const std::int32_t t = choices.cboThresholdFrequency;
  Characters message = U"No words with more than " + Decimal(s + 1) + U" letter";
  if (s >= 1) message += U"s";
  message += U"\r\noccur at least ";
  if (choices.chkIgnoreInfrequentWords != 1) {
    message += U"once.";
  } else if (t == 0) {
    message += U"twice.";
  } else {
    message += Decimal(t + 1) + U" times.";
  }
  return message;
}

}  // namespace quillomat::reference
