#include "text/program_text.h"

#include <new>
#include <optional>
#include <utility>

#include "base/run_time_error.h"
#include "system/file_system.h"
#include "system/input_file.h"
#include "text/load_result.h"

namespace quillomat {

bool ProgramText::LoadProgramText(const std::string& fileName, Desktop& desktop) {
  const std::string path = AbsolutePath(JoinPath(DataFolder(), fileName));
  const int result = LoadFile(path);
  if (result > 0) return true;
  desktop.ShowMessage({.text = LoadErrorMessage(result, path),
                       .title = "",
                       .icon = MessageIcon::kCritical,
                       .buttons = MessageButtons::kOk,
                       .severity = MessageSeverity::kError});
  return false;
}

int ProgramText::LoadFile(const std::string& path) {
  try {
    InputFile file(path);
    return Load(file);
  } catch (const RunTimeError&) {
    return load_result::kCannotOpen;  // Load throws nothing
  } catch (const std::bad_alloc&) {
    return load_result::kGeneralMemory;
  }
}

int ProgramText::Load(ByteSource& source) {
  try {
    TextTable texts(texts_.get_allocator());
    const int result = ReadTextTable(source, texts);
    if (result > 0) texts_ = std::move(texts);
    return result;
  } catch (const RunTimeError&) {
    return load_result::kCannotRead;
  } catch (const std::bad_alloc&) {
    return load_result::kGeneralMemory;
  }
}

std::string ProgramText::GetText(int number) const {
  const auto text = texts_.find({number, language_});
  return text == texts_.end() ? std::string() : std::string(text->second);
}

std::string ProgramText::ToggleLanguage(Registry& registry) {
  language_ = OtherLanguage(language_);
  return WriteLanguage(registry, language_);
}

}  // namespace quillomat
