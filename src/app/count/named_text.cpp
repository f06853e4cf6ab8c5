#include "app/count/named_text.h"

#include <string>

#include "base/text_helpers.h"
#include "system/paths.h"

namespace quillomat {

CountedText TextNamedIn(const MainForm& frmMain) {
  if (frmMain.optFolder.Value()) {
    return {CountedText::Source::kFolder, AbsolutePath(frmMain.txbFolder.Text()),
            frmMain.chkIncludeSubfolders.IsChecked()};
  }
  if (frmMain.optInFile.Value()) {
    const std::string path(TrimBlanks(frmMain.txbFile[0].Text()));
    return {CountedText::Source::kFile, AbsolutePath(path)};
  }
  return {CountedText::Source::kClipboard};
}

}  // namespace quillomat
