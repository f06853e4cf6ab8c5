// The main window's row of the input file: its path and its size. The user's own file stands there
// or, while a folder is counted, one file of the folder after the other.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/count/input_file_check.h"
#include "app/messages.h"
#include "app/window_flags.h"
#include "ui/main_form.h"

namespace quillomat {

/// "Filesize: 4.20 MB".
[[nodiscard]] std::string FileSizeText(std::int64_t bytes, const NumberSigns& signs);

class InputFileRow {
 public:
  /// All must outlive it.
  InputFileRow(MainForm& frmMain, const Messages& messages, const WindowFlags& flags)
      : frmMain_(frmMain), messages_(messages), flags_(flags) {}

  /// Checks an input path (CheckInputPath) and shows the size of the file, or nothing. A folder's
  /// path empties the box.
  ScanFileResult CheckInputFile(const std::string& path);

  void ShowPath(const std::string& path) { frmMain_.txbFile[0].SetText(path); }
  /// Nothing for a size that is not known.
  void ShowFileSize(std::optional<std::int64_t> bytes);

  /// While it lives, the files of a folder may be shown; afterwards the user's own stands there
  /// again.
  class Loan {
   public:
    explicit Loan(InputFileRow& row)
        : frmMain_(row.frmMain_),
          usersPath_(frmMain_.txbFile[0].Text()),
          usersFilesize_(frmMain_.lblFilesize.Caption()) {}
    Loan(const Loan&) = delete;
    Loan& operator=(const Loan&) = delete;
    Loan(Loan&&) = delete;
    Loan& operator=(Loan&&) = delete;
    ~Loan() {
      frmMain_.txbFile[0].SetText(usersPath_);
      frmMain_.lblFilesize.SetCaption(usersFilesize_);
    }

   private:
    MainForm& frmMain_;
    std::string usersPath_;
    std::string usersFilesize_;
  };

 private:
  MainForm& frmMain_;
  const Messages& messages_;
  const WindowFlags& flags_;
};

}  // namespace quillomat
