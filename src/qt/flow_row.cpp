#include "qt/flow_row.h"

#include <memory>

#include "qt/flow_layout.h"

namespace quillomat {

FlowRow::FlowRow(QWidget* parent) : QWidget(parent) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void FlowRow::Flow() {
  std::unique_ptr<QLayout> row(layout());
  if (row == nullptr) return;
  auto flow = std::make_unique<FlowLayout>();
  flow->setContentsMargins(row->contentsMargins());
  flow->setSpacing(row->spacing());
  while (QLayoutItem* item = row->takeAt(0)) flow->addItem(item);
  row.reset();  // a widget has one layout at a time
  setLayout(flow.release());
}

void MakeRowsFlow(QWidget& window) {
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (auto* row = dynamic_cast<FlowRow*>(widget)) row->Flow();
  }
}

}  // namespace quillomat
