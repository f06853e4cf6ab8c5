#include "qt/folded_run.h"

#include <QLayout>

#include "ui_main_form.h"

namespace quillomat {
namespace {

/// Where the bar is any shorter, it says nothing.
constexpr int kShortestBar = 120;
/// In the column of the settings, below what scrolls.
constexpr int kCountPlace = 1;

/// A widget that is put into another one is hidden by the toolkit, and loses the keyboard.
class KeptAsItIs {
 public:
  explicit KeptAsItIs(QWidget& widget)
      : widget_(widget), hidden_(widget.isHidden()), focused_(widget.hasFocus()) {}
  KeptAsItIs(const KeptAsItIs&) = delete;
  KeptAsItIs& operator=(const KeptAsItIs&) = delete;
  KeptAsItIs(KeptAsItIs&&) = delete;
  KeptAsItIs& operator=(KeptAsItIs&&) = delete;
  ~KeptAsItIs() {
    widget_.setVisible(!hidden_);
    if (focused_) widget_.setFocus(Qt::OtherFocusReason);
  }

 private:
  QWidget& widget_;
  bool hidden_;
  bool focused_;
};

}  // namespace

FoldedRun::FoldedRun(const Ui::frmMain& ui) : ui_(ui), row_(this) {
  row_.setContentsMargins(0, 0, 0, 0);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  ui.layout22->insertWidget(0, this);
  hide();
}

void FoldedRun::Follow(bool folded) {
  const KeptAsItIs count(*ui_.cmdCountWords);
  const KeptAsItIs bar(*ui_.barProgress);
  const KeptAsItIs mark(*ui_.lblTwirler);
  setVisible(folded);
  if (folded) {
    MoveHere();
  } else {
    MoveBack();
  }
}

void FoldedRun::MoveHere() {
  row_.addWidget(ui_.cmdCountWords);
  row_.addWidget(ui_.barProgress, 1);
  row_.addWidget(ui_.lblTwirler);
  row_.addStretch();
  ui_.barProgress->setMinimumWidth(kShortestBar);
}

void FoldedRun::MoveBack() {
  while (QLayoutItem* item = row_.takeAt(0)) delete item;
  ui_.barProgress->setMinimumWidth(0);
  ui_.layout21->insertWidget(kCountPlace, ui_.cmdCountWords);
  ui_.layout16->addWidget(ui_.barProgress, 2, 0, 2, 1);
  ui_.rowSuppress->layout()->addWidget(ui_.lblTwirler);
}

}  // namespace quillomat
