// What runs a count and shows how far it is, while the settings are folded away: the count command,
// the progress bar and the mark of work move beside the commands of the result, and back again.
#pragma once

#include <QHBoxLayout>
#include <QWidget>

namespace Ui {
class frmMain;
}

namespace quillomat {

class FoldedRun final : public QWidget {
 public:
  /// Takes its place in the window's row of commands for the result.
  explicit FoldedRun(const Ui::frmMain& ui);

  void Follow(bool folded);

 private:
  void MoveHere();
  void MoveBack();

  const Ui::frmMain& ui_;
  QHBoxLayout row_;
};

}  // namespace quillomat
