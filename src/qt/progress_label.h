// The label that says how far a count has come. The program writes "[-->    ]" into it, 39 places
// between the brackets; shown is a bar of the system's own look. Any other text shows as it is.
#pragma once

#include <QLabel>
#include <optional>

namespace quillomat {

class ProgressLabel : public QLabel {
 public:
  explicit ProgressLabel(QWidget* parent = nullptr) : QLabel(parent) {}

  /// The share that is done, from 0 to 1; nothing when the text is no bar.
  [[nodiscard]] std::optional<double> Share() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quillomat
