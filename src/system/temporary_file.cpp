#include "system/temporary_file.h"

#include <cstddef>
#include <system_error>

#include "base/utf8.h"
#include "system/last_words.h"
#include "system/native_disk.h"
#include "system/native_path.h"
#include "system/paths.h"
#include "system/random_digits.h"
#include "system/system_error.h"

namespace quillomat {
namespace {

/// Names may have 255 bytes, on some disks fewer.
constexpr std::size_t kMostCharactersOfTargetsName = 30;

std::string NameBeside(const std::string& target) {
  const std::string name = FileNamePartOf(target);
  const std::string start = name.substr(0, BytesOfFirst(name, kMostCharactersOfTargetsName));
  return JoinPath(FolderPartOf(target), "." + start + "." + RandomDigits() + ".new");
}

}  // namespace

TemporaryFile::TemporaryFile(std::string asked, std::string target, std::string path)
    : asked_(std::move(asked)),
      target_(std::move(target)),
      path_(std::move(path)),
      unfinished_(path_) {}

TemporaryFile::Made TemporaryFile::For(const std::string& path) {
  if (NamesNothing(path)) return {};
  const std::optional<std::string> behind = BehindLinks(path);
  if (!behind || FileNamePartOf(*behind).empty()) return {};
  const std::string target = FromRootOn(*behind);
  std::unique_ptr<TemporaryFile> temporary(new TemporaryFile(path, target, NameBeside(target)));
  std::optional<NativeFile> file = NativeFile::CreateInPlaceOf(target, temporary->path_);
  if (!file) return {};
  temporary->isThere_ = true;
  temporary->unfinished_.LetTheEndCome();
  return {std::move(temporary), std::move(file)};
}

TemporaryFile::~TemporaryFile() {
  if (isThere_) RemoveFile(path_);
}

void TemporaryFile::TakeItsPlace() {
  WordsOfWrittenFile words(asked_);
  std::error_code error;
  unfinished_.HoldTheEnd();
  MoveFileOver(path_, target_, error);
  if (!error) words.TakeTheirPlace();
  unfinished_.LetTheEndCome();
  if (error) throw ToRunTimeError(error, FileAction::kOpenToWrite, target_);
  isThere_ = false;
  KeepName(target_);
}

}  // namespace quillomat
