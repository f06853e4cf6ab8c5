#include "app/list/output_refusal.h"

#include <string>

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

}  // namespace quillomat
