// A row of a window's .ui file whose items break into several rows where they would not fit. In the
// file it is a widget with a horizontal layout; MakeRowsFlow puts a FlowLayout in its place.
#pragma once

#include <QWidget>

namespace quillomat {

class FlowRow final : public QWidget {
 public:
  explicit FlowRow(QWidget* parent = nullptr);

  /// Once, when the row has its items: lets them flow, with the gaps of the layout they had.
  void Flow();
};

/// Lets all rows of a window flow.
void MakeRowsFlow(QWidget& window);

}  // namespace quillomat
