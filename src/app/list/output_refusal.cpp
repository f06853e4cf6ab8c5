#include "app/list/output_refusal.h"

namespace quillomat {

MessageBox OutputRefusal(NeededAs neededAs) {
  MessageBox box{"", "Invalid output file", MessageIcon::kExclamation};
  switch (neededAs) {
    case NeededAs::kText:
      box.text = "The output file cannot be the same as the input file.";
      box.title = "Error";
      break;
    case NeededAs::kPartOfFolder:
      box.text = "The output file cannot be in the folder or a subfolder.";
      break;
    case NeededAs::kWordsFile:
      box.text = "The output file cannot be the same as a words file.";
      break;
    case NeededAs::kState:
      box.text = "The output file cannot be the same as the state file that was loaded.";
      break;
  }
  return box;
}

}  // namespace quillomat
