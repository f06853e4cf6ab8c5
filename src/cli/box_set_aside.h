// A text box that is set aside for a while, with what is in it.
#pragma once

#include <string>
#include <utility>

#include "ui/controls.h"

namespace quillomat {

/// The box is empty while this lives, and then has its text again.
class BoxSetAside {
 public:
  /// The box must outlive it.
  explicit BoxSetAside(TextBox& box) : box_(&box), text_(box.Text()) { box.SetText(""); }
  BoxSetAside(const BoxSetAside&) = delete;
  BoxSetAside& operator=(const BoxSetAside&) = delete;
  BoxSetAside(BoxSetAside&& other) noexcept
      : box_(std::exchange(other.box_, nullptr)), text_(std::move(other.text_)) {}
  BoxSetAside& operator=(BoxSetAside&&) = delete;
  ~BoxSetAside() {
    if (box_ != nullptr) box_->SetText(text_);
  }

 private:
  TextBox* box_;
  std::string text_;
};

}  // namespace quillomat
