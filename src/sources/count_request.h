// A count to be made, as one value: the text, what a word is, which words matter. It is a snapshot,
// taken when the count starts; what the user changes later is the next count's affair. Counter
// (counter.h) turns it into a CountResult.
//
// A count as a program makes it, of two files and what is piped in:
//
//   CountRequest request;
//   request.source = TextOfPaths{.paths = {"a.txt", "-"}, .standardInput = &input};
//   request.scan.allowWordsWith[static_cast<std::size_t>(AllowFlag::kHyphen)] =
//       CheckState::kChecked;
//   CountResult result = Counter(request).Run();
//   result.Rank(request.filters);
//   ListByFrequency(result.Counted(), formatter, sink);
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "base/byte_source.h"
#include "base/character_set.h"
#include "engine/file_tally.h"
#include "engine/scan_settings.h"
#include "engine/word_filters.h"
#include "engine/word_list.h"
#include "sources/extension_filter.h"

namespace quillomat {

/// Scanned in one piece: a marker or a comment may run over its line breaks.
struct TextOfClipboard {
  std::string text;
};

/// One file, of any size; also a pipe or a device, which is read as it comes.
struct TextOfFile {
  std::string path;
};

/// Bytes of any number, read once, from where they stand, in constant memory.
struct TextOfStream {
  /// Outlives the count.
  ByteSource* bytes = nullptr;
  /// For messages; its extension chooses comment markers as that of a file does.
  std::string name;
};

/// The files of a folder in the order of their names; then, if asked for, those of its subfolders.
struct TextOfFolder {
  std::string path;
  bool subfolders = false;
  ExtensionFilter extensions;
};

/// Files, folders and standard input, counted together in the order given, as the files of a folder
/// are. What is named is read whatever its extension; the filter is for the files of folders.
struct TextOfPaths {
  /// "-" is standard input.
  std::vector<std::string> paths;
  bool subfolders = false;
  ExtensionFilter extensions;
  /// What "-" reads; outlives the count. A file named "-" where it is null.
  ByteSource* standardInput = nullptr;
};

using CountSource =
    std::variant<TextOfClipboard, TextOfFile, TextOfStream, TextOfFolder, TextOfPaths>;

/// What is done with a folder or a list of paths before its files are read.
enum class CountingPass {
  /// Nothing: files are read as they are met, and how many there are is not known.
  kNone,
  /// The files are counted, and the observer is asked whether to go on.
  kFiles,
  /// Their bytes, too, so that progress can be told in bytes.
  kFilesAndBytes,
};

struct CountRequest {
  CountSource source;
  ScanChoices scan;
  /// For CountResult::Rank, when the words have been counted.
  FilterChoices filters;
  WordLists lists;
  /// What the bytes of texts are in; those of the clipboard are characters already.
  CharacterSet encoding = CharacterSet::kAsFound;
  CountingPass countingPass = CountingPass::kNone;
  /// Of count-only words from a folder or a list of paths: in which files each occurs.
  bool tallyFiles = true;
  /// Where display formats may show these files (kListed), a word that occurs more than 32,767
  /// times in one of them ends the count with an overflow.
  TallyUse tallyUse = TallyUse::kListed;
  /// Work out the figures that hang on the order of words: CountResult::orderFigures. It makes a
  /// count slower.
  bool orderFigures = false;
  /// Keep a report of every file in the result, and count its lines. The observer is told of each
  /// file in any case.
  bool keepReports = false;
  /// Where the list will be written, or "": a file that must not be among those that are read
  /// (output_rules.h).
  std::string outputPath;
  /// ScanSettings::OpenComment as the count before has left it.
  int openComment = -1;
  /// How many threads may scan a large text, or the files of a folder, at the same time; with 1 the
  /// caller's does.
  std::size_t threads = 1;
};

}  // namespace quillomat
