#include "app/list/output_refusal.h"

#include <string>

#include "base/text_helpers.h"

namespace quillomat {

void RefuseOutputFile(const Messages& messages, NeededAs neededAs) {
  const std::string title = "Invalid output file";
  switch (neededAs) {
    case NeededAs::kText:
      return messages.Refuse("The output file cannot be the same as the input file.", "Error");
    case NeededAs::kPartOfFolder:
      return messages.Refuse("The output file cannot be in the folder or a subfolder.", title);
    case NeededAs::kWordsFile:
      return messages.Refuse("The output file cannot be the same as a words file.", title);
    case NeededAs::kState:
      return messages.Refuse(
          "The output file cannot be the same as the state file that was loaded.", title);
  }
}

InputBox OverwriteQuestion(const std::string& path) {
  InputBox box;
  box.title = kOverwriteTitle;
  box.prompt = "To overwrite the current output file click on 'OK'." + std::string(kCrLf) +
               "To write to a different file edit the filepath below." + std::string(kCrLf) +
               "To disable file output click on 'Cancel'.";
  box.defaultAnswer = path;
  box.okCaption = "OK";
  box.cancelCaption = "Cancel";
  box.okLoses = true;
  return box;
}

}  // namespace quillomat
